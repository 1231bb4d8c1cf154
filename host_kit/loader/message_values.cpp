#include "host_kit/loader/message_values.h"

namespace Rotavue::HostKit {

namespace {

/// The plug-in's copy of a list.
class Copy final : public Api::ArgumentList {
public:
    Copy(std::vector<MessageValue> values, std::int32_t lowerBound)
        : values_(std::move(values)), lowerBound_(lowerBound) {}

    std::int32_t lowerBound() const override { return lowerBound_; }

    std::int32_t upperBound() const override {
        const auto count = static_cast<std::int64_t>(values_.size());
        return static_cast<std::int32_t>(lowerBound_ + count - 1);
    }

    Host::Ref<Host::IHostObject> objectAt(std::int32_t position) const override {
        return at(position).object;
    }

    std::wstring textAt(std::int32_t position) const override { return at(position).text; }

    std::int32_t integerAt(std::int32_t position) const override {
        return static_cast<std::int32_t>(at(position).number);
    }

    std::uint16_t wordAt(std::int32_t position) const override {
        return static_cast<std::uint16_t>(at(position).number);
    }

    std::uint8_t byteAt(std::int32_t position) const override {
        return static_cast<std::uint8_t>(at(position).number);
    }

private:
    /// The plug-in asks for positions within the bounds only; for any other it gets no element.
    const MessageValue& at(std::int32_t position) const {
        static const MessageValue None;
        const auto index = static_cast<std::uint64_t>(std::int64_t{position} - lowerBound_);
        return index < values_.size() ? values_[index] : None;
    }

    std::vector<MessageValue> values_;
    std::int32_t lowerBound_;
};

}  // namespace

std::unique_ptr<Api::ArgumentList> MessageList::copy() const {
    return std::make_unique<Copy>(values_, lowerBound_);
}

void MessageAnswer::setInteger(std::size_t index, std::int32_t value) {
    auto* numbers = std::get_if<FourIntegers>(&value_);
    if (numbers != nullptr && index < numbers->size()) (*numbers)[index] = value;
}

}  // namespace Rotavue::HostKit
