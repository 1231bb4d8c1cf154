#include "host_kit/session/field_readers.h"

#include "host_kit/namespaces.h"
#include "host_kit/session/member_table.h"
#include "plugin/framework/unicode.h"

#include <charconv>

namespace Rotavue::HostKit {

namespace {

constexpr auto EditAnswerRows = std::to_array<MemberRow<EditAnswer>>({
    row<&EditAnswer::accepted>("accepted"),
    row<&EditAnswer::text>("text"),
});

constexpr auto HostRows = std::to_array<MemberRow<HostFacts>>({
    row<&HostFacts::version>("version"),
    row<&HostFacts::acquiring>("acquiring"),
    row<&HostFacts::wholeDataset>("wholeDataset"),
    row<&HostFacts::blockSize>("blockSize"),
    row<&HostFacts::sampleRate>("sampleRate"),
    row<&HostFacts::currentPosition>("currentPosition"),
    row<&HostFacts::firstPosition>("firstPosition"),
    row<&HostFacts::lastPosition>("lastPosition"),
    row<&HostFacts::acquiredSampleCount>("acquiredSampleCount"),
    row<&HostFacts::editText>("editText"),
});

constexpr auto ChannelRows = std::to_array<MemberRow<ChannelDescription>>({
    row<&ChannelDescription::name>("name"),
    row<&ChannelDescription::unit>("unit"),
    row<&ChannelDescription::color>("color"),
    row<&ChannelDescription::displayValue>("displayValue"),
    row<&ChannelDescription::decimals>("decimals"),
    row<&ChannelDescription::asynchronous>("asynchronous"),
    row<&ChannelDescription::array>("array"),
    row<&ChannelDescription::arraySize>("arraySize"),
    row<&ChannelDescription::storageKind>("storageKind"),
    row<&ChannelDescription::sampleCount>("sampleCount"),
    row<&ChannelDescription::writePosition>("writePosition"),
    row<&ChannelDescription::sampleCounter>("sampleCounter"),
    row<&ChannelDescription::bufferSize>("bufferSize"),
    row<&ChannelDescription::rateDivider>("rateDivider"),
    row<&ChannelDescription::sampleRate>("sampleRate"),
    row<&ChannelDescription::scale>("scale"),
    row<&ChannelDescription::timestamps>("timestamps"),
    row<&ChannelDescription::axes>("axes"),
    row<&ChannelDescription::properties>("properties"),
    row<&ChannelDescription::values>("values"),
});

constexpr auto CanvasRows = std::to_array<MemberRow<CanvasMetrics>>({
    row<&CanvasMetrics::fontHeight>("fontHeight"),
    row<&CanvasMetrics::charWidth>("charWidth"),
    row<&CanvasMetrics::textHeight>("textHeight"),
});

/// The component that a member of `values` names.
std::int32_t componentIn(const std::string& name, const Field& member) {
    std::int32_t component = 0;
    const char* end = name.data() + name.size();
    const auto [stop, error] = std::from_chars(name.data(), end, component);
    if (error != std::errc() || stop != end || std::to_string(component) != name) {
        member.refuseBecause("names no component; allowed: whole numbers such as \"4\"");
    }
    return component;
}

}  // namespace

void readInto(const Field& field, bool& value) {
    value = field.boolean();
}

void readInto(const Field& field, std::int32_t& value) {
    value = field.integer();
}

void readInto(const Field& field, std::uint32_t& color) {
    color = field.color();
}

void readInto(const Field& field, double& value) {
    value = field.number();
}

void readInto(const Field& field, std::wstring& value) {
    value = field.text();
}

void readInto(const Field& field, std::optional<std::int32_t>& value) {
    value = field.integer();
}

void readInto(const Field& field, TimeStamps& stamps) {
    stamps = field.numbers();
}

void readInto(const Field& field, Host::HostVersion& version) {
    field.needItems(3, "[major, minor, build]");
    version = {field.item(0).integer(), field.item(1).integer(), field.item(2).integer()};
}

void readInto(const Field& field, Host::DataPosition& position) {
    field.needItems(2, "[block, offset]");
    position = {field.item(0).integer(), field.item(1).integer()};
}

void readInto(const Field& field, EditAnswer& answer) {
    readMembers(field, answer, EditAnswerRows);
}

void readInto(const Field& field, Scale& scale) {
    field.needItems(2, "[factor, offset]");
    scale = {field.item(0).number(), field.item(1).number()};
}

void readInto(const Field& field, std::optional<std::vector<AxisDescription>>& axes) {
    axes.reset();
    if (field.isNull()) return;
    axes.emplace();
    field.eachItem([&](const Field& axis) {
        axis.needItems(2, "[start, step]");
        axes->push_back({axis.item(0).number(), axis.item(1).number()});
    });
}

void readInto(const Field& field, std::map<std::wstring, std::wstring>& texts) {
    field.eachMember([&](const std::string& name, const Field& member) {
        const std::wstring key = Api::wideFromUtf8(name);
        member.takesAway() ? void(texts.erase(key)) : void(texts[key] = member.text());
    });
}

void readInto(const Field& field, ComponentValues& values) {
    field.eachMember([&](const std::string& name, const Field& member) {
        const std::int32_t component = componentIn(name, member);
        member.takesAway() ? values.erase(component) : void(values[component] = member.numbers());
    });
}

void readInto(const Field& field, HostFacts& facts) {
    readMembers(field, facts, HostRows);
}

void readInto(const Field& field, ChannelDescription& channel) {
    readMembers(field, channel, ChannelRows);
}

void readInto(const Field& field, CanvasMetrics& metrics) {
    readMembers(field, metrics, CanvasRows);
}

}  // namespace Rotavue::HostKit
