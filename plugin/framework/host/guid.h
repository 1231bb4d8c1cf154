#pragma once

#include <array>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace Meridax::Host {

/// A 16-byte identifier of an interface or a class, laid out as the component model has it.
struct Guid {
    std::uint32_t first = 0;
    std::uint16_t second = 0;
    std::uint16_t third = 0;
    std::array<std::uint8_t, 8> rest{};

    auto operator<=>(const Guid&) const = default;
};

namespace Detail {

consteval std::uint64_t hexDigit(char c) {
    if (c >= '0' && c <= '9') return static_cast<std::uint64_t>(c - '0');
    if (c >= 'A' && c <= 'F') return static_cast<std::uint64_t>(c - 'A') + 10;
    throw "an identifier is written in upper-case hexadecimal digits";
}

consteval std::uint64_t hexNumber(std::string_view digits) {
    std::uint64_t value = 0;
    for (const char c : digits)
        value = value * 16 + hexDigit(c);
    return value;
}

}  // namespace Detail

/// The identifier written as "{82D0CAB4-6B17-4810-BA3F-06C235E76366}". A slip in the text does not
/// compile.
consteval Guid guid(std::string_view text) {
    if (text.size() != 38 || text[0] != '{' || text[37] != '}') throw "38 characters in braces";
    if (text[9] != '-' || text[14] != '-' || text[19] != '-' || text[24] != '-') throw "dashes";
    Guid result;
    result.first = static_cast<std::uint32_t>(Detail::hexNumber(text.substr(1, 8)));
    result.second = static_cast<std::uint16_t>(Detail::hexNumber(text.substr(10, 4)));
    result.third = static_cast<std::uint16_t>(Detail::hexNumber(text.substr(15, 4)));
    constexpr std::array<std::size_t, 8> Places{20, 22, 25, 27, 29, 31, 33, 35};
    for (std::size_t i = 0; i < Places.size(); ++i) {
        result.rest[i] = static_cast<std::uint8_t>(Detail::hexNumber(text.substr(Places[i], 2)));
    }
    return result;
}

}  // namespace Meridax::Host
