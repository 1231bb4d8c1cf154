#pragma once

#include "host_kit/memory/operation.h"
#include "plugin/framework/host/data/data_position.h"
#include "plugin/framework/host/data/host_app.h"
#include "plugin/framework/host/host_object.h"
#include "plugin/framework/host/ref.h"

#include <concepts>
#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace Rotavue::HostKit {

/// An argument or a result as a log shows it: null, a boolean, an integer, another number, a text
/// (UTF-8) or a list. An object is its name, as a text.
struct CallValue {
    using List = std::vector<CallValue>;

    std::variant<std::nullptr_t, bool, std::int64_t, double, std::string, List> value = nullptr;

    bool operator==(const CallValue&) const = default;
};

/// The name of an object as logs and sessions call it, such as "channel:orbit"; "object" for one
/// that is not a memory host's.
std::string nameOf(const Host::IHostObject& object);

CallValue toCallValue(bool value);
CallValue toCallValue(std::int16_t value);
CallValue toCallValue(std::int32_t value);
CallValue toCallValue(std::uint32_t value);
CallValue toCallValue(double value);
CallValue toCallValue(const std::string& utf8);
CallValue toCallValue(const std::wstring& text);
CallValue toCallValue(Host::DataPosition position);
CallValue toCallValue(const Host::HostVersion& version);
CallValue toCallValue(const std::vector<std::int32_t>& numbers);
CallValue toCallValue(const std::vector<CallValue>& values);

template <std::derived_from<Host::IHostObject> Interface>
CallValue toCallValue(const Interface& object) {
    return {nameOf(object)};
}

template <class Interface>
CallValue toCallValue(const Host::Ref<Interface>& object) {
    return object ? toCallValue(*object) : CallValue{};
}

/// Appends the value as JSON: texts unescaped where JSON allows, integers as integers, other
/// numbers in their shortest form that reads back the same. No locale has a say. A number that is
/// none becomes the text "nan", "inf" or "-inf".
void appendJson(std::string& out, const CallValue& value);

/// Appends a text as a JSON string.
void appendJson(std::string& out, std::string_view utf8);

/// Appends the values between brackets, separated by comma and blank.
void appendList(std::string& out, const std::vector<CallValue>& values, std::string_view brackets);

}  // namespace Rotavue::HostKit
