// Each key with texts that nobody writes: a megabyte long, beyond every range, no numbers at all.

#include "tests/plugin/orbit_control/control_test.h"
#include "tests/plugin/settings/setup_round_trip.h"

#include <functional>
#include <limits>

namespace Meridax::VisualControls::Rotavue {
namespace {

constexpr int NoNumber = 0;
constexpr int OutOfRange = 4;

// A number, or the code with which reading it fails.
template <class T>
struct Worth {
    Worth(T number) : value(number) {}  // NOLINT(google-explicit-constructor): reads as the number
    static Worth failing(int code) {
        Worth worth{T{}};
        worth.code = code;
        return worth;
    }

    T value;
    std::optional<int> code;
};

using Integer = Worth<std::int32_t>;
using Double = Worth<double>;

struct Hostile {
    const char* what;
    std::wstring text;
    bool boolean;
    Integer integer;
    Double number;
};

constexpr std::size_t Megabyte = 1 << 20;
constexpr std::int32_t Least = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t Most = std::numeric_limits<std::int32_t>::max();
constexpr double Infinity = std::numeric_limits<double>::infinity();

std::wstring many(wchar_t character) {
    return std::wstring(Megabyte, character);
}

const std::vector<Hostile>& hostileTexts() {
    static const Integer noInteger = Integer::failing(NoNumber);
    static const Double noNumber = Double::failing(NoNumber);
    static const Double tooLarge = Double::failing(OutOfRange);
    static const Integer tooWide = Integer::failing(OutOfRange);
    static const double nan = std::nan("");
    static const std::vector<Hostile> texts = {
        {"a megabyte of nines", many(L'9'), true, tooWide, tooLarge},
        {"7 behind a megabyte of zeros", many(L'0') + L"7", true, 7, 7.0},
        {"3 behind a megabyte of blanks", many(L' ') + L"3", true, 3, 3.0},
        {"5 before a megabyte of letters", L"5" + many(L'x'), false, 5, 5.0},
        // In the C locale a truth value ends at the comma.
        {"a third of a megabyte", L"0," + many(L'3'), false, 0, 1.0 / 3.0},
        {"a megabyte of letters", many(L'x'), false, noInteger, noNumber},
        {"a megabyte of signs", many(L'-'), false, noInteger, noNumber},
        {"a megabyte of commas", many(L','), false, noInteger, noNumber},
        {"a megabyte beyond ASCII", many(L'\u0664'), false, noInteger, noNumber},
        {"a megabyte behind True", L"True" + many(L'e'), false, noInteger, noNumber},
        {"nothing", L"", false, noInteger, noNumber},
        {"half a pair of surrogates", std::wstring(1, static_cast<wchar_t>(0xD800)), false,
         noInteger, noNumber},
        {"a zero character", std::wstring(L"1\0002", 3), true, 1, 1.0},
        {"nan", L"nan", false, noInteger, nan},
        {"-NAN", L"-NAN", false, noInteger, nan},
        {"inf", L"inf", true, noInteger, Infinity},
        {"-Infinity", L"-Infinity", true, noInteger, -Infinity},
        {"1e308", L"1e308", true, 1, 1e308},
        {"-1e308", L"-1e308", true, -1, -1e308},
        {"1e309", L"1e309", true, 1, tooLarge},
        {"the least normal number", L"2.2250738585072014e-308", false, 2, 2.2250738585072014e-308},
        {"a denormal number", L"4.9e-324", false, 4, tooLarge},
        {"the most of 32 bits", L"2147483647", true, Most, 2147483647.0},
        {"one more", L"2147483648", true, Least, 2147483648.0},
        {"the least of 32 bits", L"-2147483648", true, Least, -2147483648.0},
        {"one less", L"-2147483649", true, Most, -2147483649.0},
        {"the most of 64 bits", L"9223372036854775807", true, -1, 9223372036854775808.0},
        {"one more than that", L"9223372036854775808", true, tooWide, 9223372036854775808.0},
        {"the least of 64 bits", L"-9223372036854775808", true, 0, -9223372036854775808.0},
        {"one less than that", L"-9223372036854775809", true, tooWide, -9223372036854775808.0},
        {"a hexadecimal number", L"0x7fffffff", true, 0, 2147483647.0},
    };
    return texts;
}

// What a load of one hostile text does: puts it in its setting or gives the code.
struct Key {
    const wchar_t* name;
    std::function<std::optional<int>(SettingsState&, const Hostile&)> load;
};

Key booleanKey(const wchar_t* name, bool SettingsState::*field) {
    return {name, [field](SettingsState& state, const Hostile& hostile) {
                state.*field = hostile.boolean;
                return std::optional<int>();
            }};
}

Key integerKey(const wchar_t* name, std::int32_t SettingsState::*field, bool zeroOrOne = false) {
    return {name, [=](SettingsState& state, const Hostile& hostile) {
                const std::int32_t value = hostile.integer.value;
                state.*field = zeroOrOne && value != 0 && value != 1 ? 0 : value;
                return hostile.integer.code;
            }};
}

Key doubleKey(const wchar_t* name, double SettingsState::*field) {
    return {name, [field](SettingsState& state, const Hostile& hostile) {
                state.*field = hostile.number.value;
                return hostile.number.code;
            }};
}

const std::vector<Key>& keys() {
    using S = SettingsState;
    static const std::vector<Key> all = {
        {L"useManualMagnitudeLimits",
         [](SettingsState& state, const Hostile& hostile) {
             state.useManualMagnitudeLimits = hostile.boolean ? 1 : 0;
             return std::optional<int>();
         }},
        booleanKey(L"drawClearance", &S::drawClearance),
        integerKey(L"clearanceColor", &S::clearanceColor),
        doubleKey(L"displayTime", &S::displayTime),
        integerKey(L"revolutions", &S::revolutions),
        integerKey(L"tickCount", &S::tickCount),
        booleanKey(L"singleAxis", &S::singleAxis),
        integerKey(L"displayType", &S::displayType),
        integerKey(L"graphType", &S::graphType, true),
        integerKey(L"historyType", &S::historyType, true),
        integerKey(L"autoScaleType", &S::autoScaleType, true),
        booleanKey(L"showOnlyLastPosition", &S::showOnlyLastPosition),
        doubleKey(L"minXValue", &S::minXValue),
        doubleKey(L"maxXValue", &S::maxXValue),
        doubleKey(L"minYValue", &S::minYValue),
        doubleKey(L"maxYValue", &S::maxYValue),
    };
    return all;
}

constexpr std::size_t FirstLimit = 12;

// The state of a new control after a load of nothing but that text. A setup without a limit has the
// limits of a new control.
SettingsState stateAfter(std::size_t key, const Hostile& hostile, std::optional<int>& code) {
    SettingsState state;
    code = keys()[key].load(state, hostile);
    if (code) state = SettingsState{};
    if (code && key < FirstLimit) return state;
    if (keys()[key].name != std::wstring(L"clearanceColor")) state.clearanceColor = 0;
    if (keys()[key].name != std::wstring(L"displayTime")) state.displayTime = 0.0;
    return state;
}

class HostileSetup : public ControlTest, public testing::WithParamInterface<std::size_t> {
protected:
    // Loads the text beside others that let a frame use every setting.
    void load(const Hostile& hostile, const wchar_t* historyType) {
        host.description.setup = {{L"useManualMagnitudeLimits", L"True"},
                                  {L"drawClearance", L"True"},
                                  {L"historyType", historyType}};
        host.description.setup[keys()[GetParam()].name] = hostile.text;
        persist(control, host, false);
    }

    void expectToBeUsable(const Hostile& hostile) {
        EXPECT_NO_THROW(control.fillProperties(host.panel())) << hostile.what;
        host.record(drawing());
        EXPECT_NO_THROW(draw()) << hostile.what;
        EXPECT_GT(host.takeCalls().size(), 10U) << hostile.what;
        EXPECT_TRUE(control.clipboardText().ends_with(L"\r\n\r\n")) << hostile.what;
    }
};

TEST_P(HostileSetup, GivesTheSettingOrItsErrorAndComesBack) {
    for (const Hostile& hostile : hostileTexts()) {
        RotavueVisualControl loaded;
        host.description.setup = {{keys()[GetParam()].name, hostile.text}};
        std::optional<int> code;
        const SettingsState expected = stateAfter(GetParam(), hostile, code);
        EXPECT_EQ(persist(loaded, host, false), code) << hostile.what;
        EXPECT_EQ(comparable(stateOf(loaded)), comparable(expected)) << hostile.what;
        host.description.setup.clear();
        EXPECT_EQ(persist(loaded, host, true), std::nullopt) << hostile.what;
        RotavueVisualControl again;
        EXPECT_EQ(persist(again, host, false), std::nullopt) << hostile.what;
        EXPECT_EQ(comparable(stateOf(again)), comparable(afterSaving(expected))) << hostile.what;
    }
}

// Whatever was loaded, the messages that use it come to their ends.
TEST_P(HostileSetup, LeavesAControlThatFillsItsPanelDrawsAndCopies) {
    describeOrbit("orbit", {1, 3, 5, 7}, {2, 4, 6, 8});
    describeTacho("tacho", {10, 350, 10, 350});
    assignGroup({"orbit", "tacho"});
    control.buildProperties(host.panel());
    for (const Hostile& hostile : hostileTexts()) {
        for (const wchar_t* historyType : {L"0", L"1"}) {
            load(hostile, historyType);
            expectToBeUsable(hostile);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Keys, HostileSetup, testing::Range<std::size_t>(0, 16),
                         [](const auto& key) {
                             const std::wstring name = keys()[key.param].name;
                             return std::string(name.begin(), name.end());
                         });

TEST(HostileSetups, ReachEveryKeyOfASetup) {
    ::Rotavue::HostKit::MemoryHost host;
    RotavueVisualControl control;
    host.record();
    persist(control, host, false);
    std::vector<std::string> asked;
    for (const std::string& line : host.takeCalls())
        if (line.starts_with("IHostXmlDocument.ReadValue")) asked.push_back(line);
    ASSERT_EQ(asked.size(), keys().size());
    for (std::size_t i = 0; i < asked.size(); ++i) {
        const std::wstring name = keys()[i].name;
        EXPECT_NE(asked[i].find('"' + std::string(name.begin(), name.end()) + '"'),
                  std::string::npos)
            << asked[i];
    }
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
