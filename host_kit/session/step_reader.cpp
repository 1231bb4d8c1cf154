#include "host_kit/session/step_reader.h"

#include "host_kit/session/member_table.h"

#include <array>
#include <charconv>
#include <limits>
#include <optional>
#include <span>

namespace Rotavue::HostKit {

namespace {

constexpr std::int64_t Greatest32 = std::numeric_limits<std::int32_t>::max();

Argument readObject(const Field& field, const HostReader& reader) {
    const auto name = ObjectName::parse(field.utf8());
    if (!name || !name->isDescribedBy(reader.host().description)) {
        field.refuse(ObjectName::allowed());
    }
    return *name;
}

Argument readArgument(const Field& field, const HostReader& reader) {
    if (field.isNull()) return nullptr;
    if (field.isWhole()) return field.cutNumber();
    if (!field.isObject() || field.size() != 1) {
        field.refuse(R"(a whole number, null, {"text": "..."} or {"object": NAME})");
    }
    std::optional<Argument> argument;
    needMembersAmong(field, std::to_array<std::string_view>({"text", "object"}));
    field.ifThere("text", [&](const Field& text) { argument = text.text(); });
    field.ifThere("object", [&](const Field& name) { argument = readObject(name, reader); });
    return *argument;
}

Step readMessage(const Field& step, HostReader& reader) {
    MessageStep message;
    message.code = static_cast<std::uint32_t>(
        step.member("message", "").whole(0, std::numeric_limits<std::uint32_t>::max()));
    step.ifThere("args", [&](const Field& list) {
        message.nullList = list.isNull();
        if (message.nullList) return;
        list.eachItem(
            [&](const Field& item) { message.arguments.push_back(readArgument(item, reader)); });
    });
    const auto last = static_cast<std::int64_t>(message.arguments.size());
    step.ifThere("lowerBound", [&](const Field& bound) {
        message.lowerBound = static_cast<std::int32_t>(bound.whole(0, Greatest32 - last));
    });
    return message;
}

Step readPatch(const Field& step, HostReader& reader) {
    const Field patch = step.member("patch", "");
    reader.readPatch(Field(patch.json(), patch.pointer(), true));
    return PatchStep{&patch.json()};
}

WidgetValue readWidgetValue(const Field& field) {
    if (field.isBoolean()) return field.boolean();
    if (!field.isNumber()) field.refuse("true, false or a number");
    if (field.isWhole()) return field.cutNumber();
    return field.number();
}

Step readWidget(const Field& step, HostReader&) {
    const Field widget = step.member("widget", "");
    needMembersAmong(widget, std::to_array<std::string_view>({"name", "value"}));
    return WidgetStep{widget.member("name", "a text").text(),
                      readWidgetValue(widget.member("value", "true, false or a number"))};
}

std::uint32_t readStatus(const Field& field) {
    const std::string& text = field.utf8();
    std::uint32_t status = 0;
    const char* end = text.data() + text.size();
    const bool hex = text.size() == 10 && text.starts_with("0x");
    const auto parsed = std::from_chars(text.data() + (hex ? 2 : 0), end, status, 16);
    if (!hex || parsed.ptr != end || !Host::Status::isFailure(status)) {
        field.refuse("a failed status, \"0x80000000\" to \"0xFFFFFFFF\"");
    }
    return status;
}

Step readFail(const Field& step, HostReader&) {
    const Field fail = step.member("fail", "");
    needMembersAmong(fail, std::to_array<std::string_view>({"operation", "call", "status"}));
    const Field name = fail.member("operation", "an operation of the host");
    const auto operation = findOperation(name.utf8());
    if (!operation) name.refuse("an operation of the host, such as \"IHostChannel.getValue\"");
    Fault fault;
    fault.operation = operation;
    fault.call = fail.member("call", "a whole number from 1").whole(1, Greatest32);
    fault.status = readStatus(fail.member("status", "a text such as \"0x80004005\""));
    return FailStep{fault};
}

Step readRelease(const Field& step, HostReader&) {
    const Field release = step.member("release", "");
    if (!release.isBoolean() || !release.boolean()) release.refuse("true");
    return ReleaseStep{};
}

/// A kind of step: the members that it may have, the first of which names it.
struct StepRow {
    std::array<std::string_view, 3> members;
    std::size_t count;
    Step (*read)(const Field&, HostReader&);
};

constexpr std::array<StepRow, 5> StepRows{{
    {{"message", "args", "lowerBound"}, 3, readMessage},
    {{"patch"}, 1, readPatch},
    {{"widget"}, 1, readWidget},
    {{"fail"}, 1, readFail},
    {{"release"}, 1, readRelease},
}};

}  // namespace

Step readStep(const Field& step, HostReader& reader) {
    const StepRow* kind = nullptr;
    for (const StepRow& row : StepRows) {
        if (kind == nullptr && step.has(row.members[0])) kind = &row;
    }
    if (kind == nullptr) step.refuse("an object with message, patch, widget, fail or release");
    needMembersAmong(step, std::span(kind->members).first(kind->count));
    return kind->read(step, reader);
}

}  // namespace Rotavue::HostKit
