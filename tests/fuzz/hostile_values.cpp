#include "tests/fuzz/hostile_values.h"

#include "plugin/settings/panel_table.h"

#include <array>
#include <limits>

namespace Rotavue::Fuzz {

namespace {

namespace Plugin = Meridax::VisualControls::Rotavue;

using IntegerLimits = std::numeric_limits<std::int32_t>;
using DoubleLimits = std::numeric_limits<double>;

constexpr std::array<std::int32_t, 16> Integers{0,
                                                1,
                                                2,
                                                3,
                                                -1,
                                                -2,
                                                100,
                                                1000,
                                                32767,
                                                -32768,
                                                65536,
                                                1 << 30,
                                                IntegerLimits::max(),
                                                IntegerLimits::max() - 1,
                                                IntegerLimits::min(),
                                                IntegerLimits::min() + 1};

constexpr std::array<double, 20> Numbers{0.0,
                                         -0.0,
                                         1.0,
                                         -1.0,
                                         0.5,
                                         360.0,
                                         1e-3,
                                         1e9,
                                         2147483647.0,
                                         2147483648.0,
                                         -2147483649.0,
                                         1e15,
                                         1e300,
                                         -1e308,
                                         DoubleLimits::max(),
                                         DoubleLimits::min(),
                                         DoubleLimits::denorm_min(),
                                         DoubleLimits::infinity(),
                                         -DoubleLimits::infinity(),
                                         DoubleLimits::quiet_NaN()};

constexpr std::array<const wchar_t*, 24> Texts{
    L"",           L"True",        L"False",   L"0",
    L"1",          L"-1",          L"5",       L"45,5",
    L"2147483647", L"-2147483648", L"1e308",   L"1e-320",
    L"nan",        L"inf",         L"1e300",   L"99999999999999999999",
    L"CCW",        L"CW",          L"Raw",     L"Average",
    L"Harmonic",   L"Reference",   L"SubSync", L"rms"};

constexpr std::array<const wchar_t*, 10> Properties{L"OrbitType",
                                                    L"OrbitAnalysisChannelType",
                                                    L"Orbit X Angle",
                                                    L"Orbit Y Angle",
                                                    L"Orbit Tacho Angle",
                                                    L"Orbit Rotation Direction",
                                                    L"Orbit Clearance Width",
                                                    L"Orbit Clearance Height",
                                                    L"Orbit Amplitude",
                                                    L"unknown"};

std::wstring anyText(ByteSource& bytes) {
    std::wstring text;
    for (std::size_t length = bytes.below(16); length > 0; --length)
        text += static_cast<wchar_t>(bytes.flag() ? bytes.byte() : bytes.raw<std::uint32_t>());
    return text;
}

}  // namespace

std::int32_t integer(ByteSource& bytes) {
    const std::size_t choice = bytes.below(32);
    if (choice < Integers.size()) return Integers[choice];
    return choice < 28 ? bytes.raw<std::int16_t>() : bytes.raw<std::int32_t>();
}

double number(ByteSource& bytes) {
    const std::size_t choice = bytes.below(32);
    if (choice < Numbers.size()) return Numbers[choice];
    return choice < 28 ? bytes.raw<std::int16_t>() / 16.0 : bytes.raw<double>();
}

std::wstring text(ByteSource& bytes) {
    constexpr std::size_t Long = 100'000;
    const std::size_t choice = bytes.below(64);
    if (choice < Texts.size()) return Texts[choice];
    if (choice == Texts.size()) return std::wstring(Long, L'9');
    return choice < 44 ? std::to_wstring(number(bytes)) : anyText(bytes);
}

std::wstring settingKey(ByteSource& bytes) {
    const std::size_t choice = bytes.below(Plugin::SettingsTable.size() + 1);
    if (choice == Plugin::SettingsTable.size()) return anyText(bytes);
    const auto key = Plugin::SettingsTable[choice].key;
    return {key.begin(), key.end()};
}

std::wstring propertyName(ByteSource& bytes) {
    return Properties[bytes.below(Properties.size())];
}

std::wstring widgetName(ByteSource& bytes) {
    const auto& axis = Plugin::AxisWidgets;
    const auto& advanced = Plugin::AdvancedWidgets;
    const std::size_t choice = bytes.below(axis.size() + advanced.size() + 1);
    if (choice < axis.size()) return axis[choice].name;
    const std::size_t rest = choice - axis.size();
    return rest < advanced.size() ? advanced[rest].name : text(bytes);
}

}  // namespace Rotavue::Fuzz
