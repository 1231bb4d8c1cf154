#include "plugin/framework/guid_text.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace Meridax::VisualControls::Api {

namespace {

/// The 16 bytes in the order in which the text shows them.
using GuidBytes = std::array<std::uint8_t, 16>;

constexpr std::array<std::size_t, 16> DigitPlaces{1,  3,  5,  7,  10, 12, 15, 17,
                                                  20, 22, 25, 27, 29, 31, 33, 35};
constexpr std::wstring_view Blank = L"{00000000-0000-0000-0000-000000000000}";
constexpr std::wstring_view Digits = L"0123456789ABCDEF";

GuidBytes bytesOf(const Host::Guid& id) {
    const auto byte = [](std::uint32_t number, unsigned shift) {
        return static_cast<std::uint8_t>(number >> shift);
    };
    GuidBytes bytes{byte(id.first, 24), byte(id.first, 16), byte(id.first, 8), byte(id.first, 0),
                    byte(id.second, 8), byte(id.second, 0), byte(id.third, 8), byte(id.third, 0)};
    for (std::size_t i = 0; i < id.rest.size(); ++i)
        bytes[8 + i] = id.rest[i];
    return bytes;
}

Host::Guid guidOf(const GuidBytes& bytes) {
    Host::Guid id;
    for (std::size_t i = 0; i < 4; ++i)
        id.first = (id.first << 8) | bytes[i];
    id.second = static_cast<std::uint16_t>((bytes[4] << 8) | bytes[5]);
    id.third = static_cast<std::uint16_t>((bytes[6] << 8) | bytes[7]);
    for (std::size_t i = 0; i < id.rest.size(); ++i)
        id.rest[i] = bytes[8 + i];
    return id;
}

/// The value of a hexadecimal digit, 16 for any other character.
std::uint8_t digitValue(wchar_t character) {
    if (character >= L'a' && character <= L'f') character -= L'a' - L'A';
    const std::size_t value = Digits.find(character);
    return static_cast<std::uint8_t>(value == std::wstring_view::npos ? 16 : value);
}

bool isPunctuatedLikeGuid(std::wstring_view text) {
    if (text.size() != Blank.size()) return false;
    for (std::size_t i = 0; i < text.size(); ++i)
        if (Blank[i] != L'0' && text[i] != Blank[i]) return false;
    return true;
}

}  // namespace

std::wstring guidText(const Host::Guid& identifier) {
    std::wstring text{Blank};
    const GuidBytes bytes = bytesOf(identifier);
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        text[DigitPlaces[i]] = Digits[bytes[i] >> 4U];
        text[DigitPlaces[i] + 1] = Digits[bytes[i] & 15U];
    }
    return text;
}

std::optional<Host::Guid> parseGuid(std::wstring_view text) {
    if (!isPunctuatedLikeGuid(text)) return std::nullopt;
    GuidBytes bytes{};
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const std::uint8_t high = digitValue(text[DigitPlaces[i]]);
        const std::uint8_t low = digitValue(text[DigitPlaces[i] + 1]);
        if (high > 15 || low > 15) return std::nullopt;
        bytes[i] = static_cast<std::uint8_t>((high << 4) | low);
    }
    return guidOf(bytes);
}

}  // namespace Meridax::VisualControls::Api
