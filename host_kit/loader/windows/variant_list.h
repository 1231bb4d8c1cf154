#pragma once

#include "host_kit/loader/message_values.h"
#include "plugin/module/windows/platform_headers.h"

#include <cstdint>

namespace Rotavue::HostKit {

/// An owned `VARIANT`.
class OwnedVariant {
public:
    OwnedVariant() noexcept { ::VariantInit(&value_); }
    OwnedVariant(const OwnedVariant&) = delete;
    OwnedVariant(OwnedVariant&& other) noexcept : value_(other.detach()) {}
    OwnedVariant& operator=(const OwnedVariant&) = delete;
    ~OwnedVariant() { ::VariantClear(&value_); }

    /// Hands the value out and leaves this one empty.
    [[nodiscard]] VARIANT detach() noexcept;

    VARIANT* get() noexcept { return &value_; }
    const VARIANT& operator*() const noexcept { return value_; }
    const VARIANT* operator->() const noexcept { return &value_; }
    VARIANT* operator->() noexcept { return &value_; }

private:
    VARIANT value_;
};

/// The argument list of a message as it crosses: an array of variants, or an empty variant for a
/// null list. Raises `HostError` 0x8007000E where there is no memory for it.
OwnedVariant variantOf(std::uint32_t code, const MessageList* list);

/// Writes what a message left in its result, if anything.
void readResult(const VARIANT& result, MessageAnswer& answer);

}  // namespace Rotavue::HostKit
