#include "host_kit/memory/call_value.h"

#include "host_kit/memory/memory_object.h"
#include "host_kit/memory/utf8.h"

#include <array>
#include <charconv>
#include <cmath>

namespace Rotavue::HostKit {

namespace {

template <class Number>
void appendNumber(std::string& out, Number number) {
    std::array<char, 32> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    out.append(digits.data(), end);
}

void appendEscaped(std::string& out, char c) {
    constexpr std::string_view Plain = "\"\\\b\f\n\r\t";
    constexpr std::string_view Letter = "\"\\bfnrt";
    const std::size_t place = Plain.find(c);
    if (place != std::string_view::npos) {
        out.push_back('\\');
        out.push_back(Letter[place]);
    } else if (static_cast<unsigned char>(c) < 0x20) {
        constexpr std::string_view Hex = "0123456789abcdef";
        out.append("\\u00");
        out.push_back(Hex[static_cast<unsigned char>(c) >> 4U]);
        out.push_back(Hex[static_cast<unsigned char>(c) & 15U]);
    } else {
        out.push_back(c);
    }
}

struct JsonAppender {
    std::string& out;

    void operator()(std::nullptr_t) const { out.append("null"); }
    void operator()(bool value) const { out.append(value ? "true" : "false"); }
    void operator()(std::int64_t value) const { appendNumber(out, value); }
    void operator()(const std::string& text) const { appendJson(out, text); }
    void operator()(const CallValue::List& list) const { appendList(out, list, "[]"); }

    void operator()(double value) const {
        if (!std::isfinite(value)) out.push_back('"');
        appendNumber(out, value);
        if (!std::isfinite(value)) out.push_back('"');
    }
};

}  // namespace

std::string nameOf(const Host::IHostObject& object) {
    const auto* known = dynamic_cast<const MemoryObject*>(&object);
    return known == nullptr ? "object" : known->name();
}

CallValue toCallValue(bool value) {
    return {value};
}

CallValue toCallValue(std::int16_t value) {
    return {std::int64_t{value}};
}

CallValue toCallValue(std::int32_t value) {
    return {std::int64_t{value}};
}

CallValue toCallValue(std::uint32_t value) {
    return {std::int64_t{value}};
}

CallValue toCallValue(double value) {
    return {value};
}

CallValue toCallValue(const std::string& utf8) {
    return {utf8};
}

CallValue toCallValue(const std::wstring& text) {
    return {toUtf8(text)};
}

CallValue toCallValue(Host::DataPosition position) {
    return toCallValue(std::vector<std::int32_t>{position.block, position.offset});
}

CallValue toCallValue(const Host::HostVersion& version) {
    return toCallValue(std::vector<std::int32_t>{version.major, version.minor, version.build});
}

CallValue toCallValue(const std::vector<std::int32_t>& numbers) {
    CallValue::List list;
    for (const std::int32_t number : numbers)
        list.push_back(toCallValue(number));
    return {std::move(list)};
}

CallValue toCallValue(const std::vector<CallValue>& values) {
    return {values};
}

void appendJson(std::string& out, const CallValue& value) {
    std::visit(JsonAppender{out}, value.value);
}

void appendJson(std::string& out, std::string_view utf8) {
    out.push_back('"');
    for (const char c : utf8)
        appendEscaped(out, c);
    out.push_back('"');
}

void appendList(std::string& out, const std::vector<CallValue>& values, std::string_view brackets) {
    out.push_back(brackets[0]);
    std::string_view separator;
    for (const CallValue& value : values) {
        out.append(separator);
        appendJson(out, value);
        separator = ", ";
    }
    out.push_back(brackets[1]);
}

}  // namespace Rotavue::HostKit
