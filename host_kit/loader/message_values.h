#pragma once

#include "host_kit/namespaces.h"
#include "plugin/framework/host/host_object.h"
#include "plugin/framework/host/ref.h"
#include "plugin/framework/message_arguments.h"

#include <array>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace Rotavue::HostKit {

/// One element of an argument list: an object, a text or a number. Like the elements of the
/// platform's lists it says nothing of its kind to the plug-in, which reads the one that it expects
/// at the position and finds null, an empty text or 0 where that is not there.
struct MessageValue {
    MessageValue() = default;
    MessageValue(std::nullptr_t) {}
    MessageValue(std::int64_t value) : number(value) {}
    MessageValue(std::int32_t value) : number(value) {}
    MessageValue(std::wstring value) : text(std::move(value)) {}
    MessageValue(const wchar_t* value) : text(value) {}

    template <class Interface>
    MessageValue(const Host::Ref<Interface>& value)
        : object(Host::Ref<Host::IHostObject>::share(value.get())) {}

    Host::Ref<Host::IHostObject> object;
    std::wstring text;
    std::int64_t number = 0;  ///< cut to the width of its place when it is read
};

/// The argument list of one message:
///
///     control.message(45, {0});
///     control.message(42, {host.canvas(), 0, 0, 300, 200, 0, 0, 1});
class MessageList final : public Api::MessageArguments {
public:
    MessageList(std::initializer_list<MessageValue> values) : values_(values) {}

    /// A list whose first element has the position `lowerBound`.
    explicit MessageList(std::vector<MessageValue> values, std::int32_t lowerBound = 0)
        : values_(std::move(values)), lowerBound_(lowerBound) {}

    std::unique_ptr<Api::ArgumentList> copy() const override;

    const std::vector<MessageValue>& values() const { return values_; }
    std::int32_t lowerBound() const { return lowerBound_; }

private:
    std::vector<MessageValue> values_;
    std::int32_t lowerBound_ = 0;
};

/// The out value of one message: what it wrote, or nothing.
class MessageAnswer final : public Api::MessageResult {
public:
    using FourIntegers = std::array<std::int32_t, 4>;

    /// Nothing, message 0's number, the boolean of 3, 24 and 30, or the four numbers of 6.
    using Value = std::variant<std::monostate, std::int16_t, bool, FourIntegers>;

    const Value& value() const { return value_; }

    void putInteger16(std::int16_t value) override { value_ = value; }
    void putBoolean(bool value) override { value_ = value; }
    void putFourIntegers() override { value_ = FourIntegers{}; }
    void setInteger(std::size_t index, std::int32_t value) override;

private:
    Value value_;
};

}  // namespace Rotavue::HostKit
