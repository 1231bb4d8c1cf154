// Ten thousand setups of valid, odd and hostile texts, through the host's document, against a model
// that knows of each text what it is worth because it made it up.

#include "host_kit/memory/memory_host.h"
#include "plugin/setup_document/meridax_dcom_node.h"
#include "plugin/setup_document/xml_exception.h"
#include "tests/plugin/settings/settings_state.h"
#include "tests/plugin/settings/setup_samples.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <charconv>
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
    explicit MadeUpSetup(Random& random) : random_(random) { expect(); }

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
        return sample.value;
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

// What is left of a number after it was saved with 15 digits behind the point.
double afterSaving(double value) {
    if (!std::isfinite(value)) return value;
    std::array<char, 400> text{};
    const auto end = std::to_chars(text.begin(), text.end(), value, std::chars_format::fixed, 15);
    double result = 0;
    std::from_chars(text.data(), end.ptr, result);
    return result;
}

SettingsState afterSaving(SettingsState state) {
    for (double* number : {&state.displayTime, &state.minXValue, &state.maxXValue, &state.minYValue,
                           &state.maxYValue})
        *number = afterSaving(*number);
    return state;
}

// NaN is to count as equal to itself here.
SettingsState comparable(SettingsState state) {
    for (double* number : {&state.displayTime, &state.minXValue, &state.maxXValue, &state.minYValue,
                           &state.maxYValue})
        if (std::isnan(*number)) *number = 123456789.0;
    return state;
}

std::optional<int> persist(RotavueVisualControl& control, ::Rotavue::HostKit::MemoryHost& host,
                           bool writing) {
    Utils::Dcom::Utils::MeridaxDCOMNode node(host.document(), host.node());
    node.setWriting(writing);
    try {
        control.persistSetup(node);
    } catch (const Utils::Serialization::XmlException& error) {
        return error.code;
    }
    return std::nullopt;
}

TEST(RandomSetups, GiveTheSettingsOrTheErrorAndTheStateOfTheModel) {
    Random random(20240607);
    ::Rotavue::HostKit::MemoryHost host;
    RotavueVisualControl control;
    SettingsState model;
    int failures = 0;
    for (int i = 0; i < 10'000; ++i) {
        const MadeUpSetup setup(random);
        host.description.setup = setup.texts();
        const std::optional<int> expected = setup.loadInto(model);
        ASSERT_EQ(persist(control, host, false), expected) << i;
        ASSERT_EQ(comparable(stateOf(control)), comparable(model)) << i;
        if (expected) ++failures;
        // What was loaded, whole or in part, is saved and comes back in another control.
        host.description.setup.clear();
        ASSERT_EQ(persist(control, host, true), std::nullopt) << i;
        ASSERT_EQ(comparable(stateOf(control)), comparable(model)) << i;
        RotavueVisualControl other;
        ASSERT_EQ(persist(other, host, false), std::nullopt) << i;
        ASSERT_EQ(comparable(stateOf(other)), comparable(afterSaving(model))) << i;
    }
    // Both roads were taken, and often.
    EXPECT_GT(failures, 300);
    EXPECT_LT(failures, 5'000);
    EXPECT_EQ(host.references(), 0);
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
