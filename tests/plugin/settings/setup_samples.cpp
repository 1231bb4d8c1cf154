#include "tests/plugin/settings/setup_samples.h"

#include <array>
#include <bit>
#include <cmath>
#include <limits>
#include <vector>

namespace Meridax::VisualControls::Rotavue {
namespace {

constexpr int NoNumber = 0;
constexpr int OutOfRange = 4;

template <class Choices>
auto pick(Random& random, const Choices& choices) {
    return choices[static_cast<std::size_t>(
        anyOf(random, 0, static_cast<std::int32_t>(std::size(choices)) - 1))];
}

std::wstring anyTail(Random& random) {
    return pick(random,
                std::array<const wchar_t*, 8>{L"", L"", L"", L" ", L"x", L" um", L"#", L"\u00B5"});
}

// A number of thousandths, spelled with a point or a comma.
DoubleSample anyThousandths(Random& random) {
    const std::int32_t whole = anyOf(random, 0, 99999);
    const std::int32_t thousandths = anyOf(random, 0, 999);
    const bool negative = anyOf(random, 0, 1) == 1;
    const std::wstring digits = std::to_wstring(1000 + thousandths).substr(1);
    const wchar_t point = anyOf(random, 0, 1) == 1 ? L'.' : L',';
    const double magnitude = (whole * 1000 + static_cast<double>(thousandths)) / 1000.0;
    return {(negative ? L"-" : L"") + std::to_wstring(whole) + point + digits + anyTail(random),
            negative ? -magnitude : magnitude};
}

}  // namespace

std::int32_t anyOf(Random& random, std::int32_t least, std::int32_t most) {
    return std::uniform_int_distribution<std::int32_t>(least, most)(random);
}

BoolSample anyBool(Random& random) {
    static const std::vector<BoolSample> samples = {
        {L"True", true},
        {L"False", false},
        {L"tRUE", true},
        {L"FALSE", false},
        {L"1", true},
        {L"0", false},
        {L"-3", true},
        {L"2.5", true, false},
        {L"2,5", false, true},
        {L"0,5", false, true},
        {L"4.9e-324", false},
        {L"inf", true},
        {std::wstring(L"1\0001", 3), true},
        {L"1e-20", false},
        {L"0.0", false},
        {L"yes", false},
        {L"", false},
        {L"1x", false},
        {L"True ", false},
        {L"nan", false},
        {L"\u00FC", false},
        {L"True#", false},
        {L"1e999", true},
        {std::wstring(5000, L'9'), true},
        {std::wstring(5000, L'x'), false},
    };
    return pick(random, samples);
}

IntegerSample anyInteger(Random& random) {
    static const std::vector<IntegerSample> odd = {
        {L"7", 7},
        {L"-1", -1},
        {L"+3", 3},
        {L" 4", 4},
        {L"007", 7},
        {L"2.9", 2},
        {L"0x10", 0},
        {L"4294967296", 0},
        {L"4294967297", 1},
        {L"2147483648", -2147483647 - 1},
        {L"-2147483649", 2147483647},
        {L"2147483647", 2147483647},
        {L"-2147483648", -2147483647 - 1},
        {L"4294967295", -1},
        {L"9223372036854775807", -1},
        {L"-9223372036854775808", 0},
        {std::wstring(L"8\0009", 3), 8},
        {L"1e3", 1},
        {L"3,7", 3},
        {L"", 0, NoNumber},
        {L"abc", 0, NoNumber},
        {L"-", 0, NoNumber},
        {L"True", 0, NoNumber},
        {L"\u0663", 0, NoNumber},
        {L"s", 0, NoNumber},
        {L"nan", 0, NoNumber},
        {L"9223372036854775808", 0, OutOfRange},
        {L"-9223372036854775809", 0, OutOfRange},
        {std::wstring(5000, L'9'), 0, OutOfRange},
        {std::wstring(5000, L'0') + L"5", 5},
        {std::wstring(5000, L'z'), 0, NoNumber},
    };
    const std::int32_t small = anyOf(random, -2, 3);
    const std::int32_t wide = std::bit_cast<std::int32_t>(static_cast<std::uint32_t>(random()));
    switch (anyOf(random, 0, 4)) {
        case 0:
            return pick(random, odd);
        case 1:
            return {std::to_wstring(wide) + anyTail(random), wide};
        default:
            return {std::to_wstring(small) + anyTail(random), small};
    }
}

DoubleSample anyDouble(Random& random) {
    constexpr double Infinity = std::numeric_limits<double>::infinity();
    static const std::vector<DoubleSample> odd = {
        {L"1,5,5", 1.5},
        {L"1.000,5", 1.0},
        {L"-7", -7.0},
        {L"1e300", 1e300},
        {L"-1e300", -1e300},
        {L"1e-20", 1e-20},
        {L"inf", Infinity},
        {L"-inf", -Infinity},
        {L"nan", std::nan("")},
        {L"0x10", 16.0},
        {L",5", 0.5},
        {L"5.", 5.0},
        {L"1.7976931348623157e308", 1.7976931348623157e308},
        {L"-1,7976931348623157e308", -1.7976931348623157e308},
        {L"2.2250738585072014e-308", 2.2250738585072014e-308},
        {L"-2147483648", -2147483648.0},
        {L"9223372036854775807", 9223372036854775808.0},
        {L"-0", -0.0},
        {L"", 0, NoNumber},
        {L"abc", 0, NoNumber},
        {L".", 0, NoNumber},
        {L"True", 0, NoNumber},
        {L"s", 0, NoNumber},
        {L"1e400", 0, OutOfRange},
        {L"1e-400", 0, OutOfRange},
        {L"4.9e-324", 0, OutOfRange},
        {L"1,8e308", 0, OutOfRange},
        {std::wstring(5000, L'9'), 0, OutOfRange},
        {std::wstring(5000, L'0') + L"2.5", 2.5},
    };
    return anyOf(random, 0, 3) == 0 ? pick(random, odd) : anyThousandths(random);
}

}  // namespace Meridax::VisualControls::Rotavue
