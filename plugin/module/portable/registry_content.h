#pragma once

#include <cstdint>
#include <string>
#include <utility>

namespace Meridax::VisualControls::Rotavue {

/// What a registry value holds: a text, which begins empty, or a number of 32 bits. A mark and two
/// members rather than a variant, because this compiler's variants do not survive a copy for which
/// there is no memory.
class RegistryContent {
public:
    RegistryContent() = default;
    RegistryContent(std::wstring text) : text_(std::move(text)) {}
    RegistryContent(const wchar_t* text) : text_(text) {}
    RegistryContent(std::uint32_t number) : isNumber_(true), number_(number) {}

    /// The text, or null where it is a number.
    const std::wstring* text() const { return isNumber_ ? nullptr : &text_; }

    /// The number, or null where it is a text.
    const std::uint32_t* number() const { return isNumber_ ? &number_ : nullptr; }

    bool operator==(const RegistryContent&) const = default;

private:
    bool isNumber_ = false;
    std::uint32_t number_ = 0;  ///< 0 in a text
    std::wstring text_;         ///< empty in a number
};

}  // namespace Meridax::VisualControls::Rotavue
