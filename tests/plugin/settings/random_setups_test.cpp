// Ten thousand setups of valid, odd and hostile texts, and some more under other locales, through
// the host's document, against a model that knows of each text what it is worth because it made it
// up.

#include "tests/plugin/settings/setup_round_trip.h"
#include "tests/plugin/settings/setup_samples.h"
#include "tests/plugin/setup_document/c_locale.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <string>

namespace Meridax::VisualControls::Rotavue {
namespace {

using Setup = std::map<std::wstring, std::wstring>;

constexpr std::int32_t zeroOrOne(std::int32_t value) {
    return value == 0 || value == 1 ? value : 0;
}

// A made-up setup and what loading it does to a control.
class MadeUpSetup {
public:
    MadeUpSetup(Random& random, bool withComma) : random_(random), withComma_(withComma) {
        expect();
    }

    const Setup& texts() const { return texts_; }

    // The state after a load, and the code with which it failed.
    std::optional<int> loadInto(SettingsState& state) const;

private:
    void expect();

    // One key in eight is missing.
    bool isMissing() { return anyOf(random_, 0, 7) == 0; }

    bool boolean(const wchar_t* key, bool missing) {
        if (isMissing()) return missing;
        const BoolSample sample = anyBool(random_);
        texts_[key] = sample.text;
        return withComma_ ? sample.withComma.value_or(sample.value) : sample.value;
    }

    template <class Sample, class T>
    T number(const wchar_t* key, Sample (*make)(Random&), T missing) {
        ++numbers_;
        if (isMissing()) return missing;
        // Most setups are to come through.
        Sample sample = make(random_);
        if (sample.code) sample = make(random_);
        texts_[key] = sample.text;
        if (sample.code && !code_) {
            code_ = sample.code;
            failedNumber_ = numbers_;
        }
        return sample.value;
    }

    Random& random_;
    bool withComma_;  // the decimal point of the C locale
    Setup texts_;
    SettingsState loaded_;
    int numbers_ = 0;
    std::optional<int> code_;
    int failedNumber_ = 0;
};

void MadeUpSetup::expect() {
    loaded_.useManualMagnitudeLimits = boolean(L"useManualMagnitudeLimits", false) ? 1 : 0;
    loaded_.drawClearance = boolean(L"drawClearance", false);
    loaded_.clearanceColor = number(L"clearanceColor", anyInteger, 0);
    loaded_.displayTime = number(L"displayTime", anyDouble, 0.0);
    loaded_.revolutions = number(L"revolutions", anyInteger, 1);
    loaded_.tickCount = number(L"tickCount", anyInteger, 5);
    loaded_.singleAxis = boolean(L"singleAxis", true);
    loaded_.displayType = number(L"displayType", anyInteger, 0);
    loaded_.graphType = zeroOrOne(number(L"graphType", anyInteger, 0));
    loaded_.historyType = zeroOrOne(number(L"historyType", anyInteger, 0));
    loaded_.autoScaleType = zeroOrOne(number(L"autoScaleType", anyInteger, 0));
    loaded_.showOnlyLastPosition = boolean(L"showOnlyLastPosition", false);
    loaded_.minXValue = number(L"minXValue", anyDouble, -1.0);
    loaded_.maxXValue = number(L"maxXValue", anyDouble, 1.0);
    loaded_.minYValue = number(L"minYValue", anyDouble, -1.0);
    loaded_.maxYValue = number(L"maxYValue", anyDouble, 1.0);
    if (anyOf(random_, 0, 3) == 0) texts_[L"an unknown key"] = L"abc";
}

std::optional<int> MadeUpSetup::loadInto(SettingsState& state) const {
    // Numbers 1 to 8 stand before the limits, 9 to 12 are the limits.
    if (code_ && failedNumber_ <= 8) return code_;
    SettingsState after = loaded_;
    const bool toCircle = loaded_.graphType == 1 && state.graphType != 1;
    const double reach = std::max({std::abs(state.minXValue), std::abs(state.maxXValue),
                                   std::abs(state.minYValue), std::abs(state.maxYValue)});
    const int kept = code_ ? failedNumber_ : 13;
    if (kept <= 9) after.minXValue = toCircle ? -reach : state.minXValue;
    if (kept <= 10) after.maxXValue = toCircle ? reach : state.maxXValue;
    if (kept <= 11) after.minYValue = toCircle ? -reach : state.minYValue;
    if (kept <= 12) after.maxYValue = toCircle ? reach : state.maxYValue;
    state = after;
    return code_;
}

struct Run {
    std::string locale;
    int setups;
};

class RandomSetups : public testing::TestWithParam<Run> {
protected:
    // What was loaded, whole or in part, is saved and comes back in another control.
    void expectToComeBack(const SettingsState& model) {
        host_.description.setup.clear();
        ASSERT_EQ(persist(control_, host_, true), std::nullopt);
        ASSERT_EQ(comparable(stateOf(control_)), comparable(model));
        RotavueVisualControl other;
        ASSERT_EQ(persist(other, host_, false), std::nullopt);
        ASSERT_EQ(comparable(stateOf(other)), comparable(afterSaving(model)));
    }

    ::Rotavue::HostKit::MemoryHost host_;
    RotavueVisualControl control_;
};

TEST_P(RandomSetups, GiveTheSettingsOrTheErrorAndTheStateOfTheModel) {
    const Tests::CLocale locale(GetParam().locale);
    ASSERT_TRUE(locale.isSet());
    Random random(20240607);
    SettingsState model;
    int failures = 0;
    for (int i = 0; i < GetParam().setups; ++i) {
        const MadeUpSetup setup(random, GetParam().locale == "de_DE.UTF-8");
        host_.description.setup = setup.texts();
        const std::optional<int> expected = setup.loadInto(model);
        ASSERT_EQ(persist(control_, host_, false), expected) << i;
        ASSERT_EQ(comparable(stateOf(control_)), comparable(model)) << i;
        if (expected) ++failures;
        ASSERT_NO_FATAL_FAILURE(expectToComeBack(model)) << i;
    }
    // Both roads were taken, and often.
    EXPECT_GT(failures, GetParam().setups / 30);
    EXPECT_LT(failures, GetParam().setups / 2);
    EXPECT_EQ(host_.references(), 0);
}

// Making a locale for each number takes its time: there are fewer under the named ones.
INSTANTIATE_TEST_SUITE_P(Locales, RandomSetups,
                         testing::Values(Run{"C", 10'000}, Run{"en_US.UTF-8", 2'000},
                                         Run{"de_DE.UTF-8", 2'000}),
                         [](const auto& name) {
                             return name.param.locale.substr(0, name.param.locale.find('_'));
                         });

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
