#include "plugin/setup_document/xml_exception.h"
#include "tests/plugin/settings/settings_state.h"
#include "tests/plugin/setup_document/c_locale.h"
#include "tests/plugin/setup_document/entry_node.h"
#include "tests/plugin/setup_document/unused_node.h"

#include <gtest/gtest.h>

#include <limits>
#include <map>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace Meridax::VisualControls::Rotavue {
namespace {

using Tests::EntryNode;
using Utils::Serialization::XmlException;

using Row = std::vector<std::string>;
using Entries = std::map<std::string, std::string>;

SettingsState loadedFrom(const Entries& entries, const SettingsState& before = {}) {
    RotavueVisualControl control;
    putState(control, before);
    EntryNode node;
    node.entries = entries;
    control.persistSetup(node);
    return stateOf(control);
}

void saveInto(EntryNode& node, const SettingsState& state) {
    RotavueVisualControl control;
    putState(control, state);
    node.writing = true;
    control.persistSetup(node);
}

TEST(SavedSetup, OfANewControlHasSixteenKeysInTheirOrder) {
    EntryNode node;
    saveInto(node, SettingsState{});
    EXPECT_EQ(node.writes, (std::vector<Row>{
                               {"useManualMagnitudeLimits", "False", "False#"},
                               {"drawClearance", "False", "False#"},
                               {"clearanceColor", "16750848", "16750848#"},
                               {"displayTime", "100.000000000000000", "100.000000000000000#"},
                               {"revolutions", "1", "1"},
                               {"tickCount", "5", "5"},
                               {"singleAxis", "True", "True"},
                               {"displayType", "0", "0"},
                               {"graphType", "0", "0"},
                               {"historyType", "0", "0"},
                               {"autoScaleType", "0", "0"},
                               {"showOnlyLastPosition", "False", "False"},
                               {"minXValue", "-1.000000000000000", "-1.000000000000000"},
                               {"maxXValue", "1.000000000000000", "1.000000000000000"},
                               {"minYValue", "-1.000000000000000", "-1.000000000000000"},
                               {"maxYValue", "1.000000000000000", "1.000000000000000"},
                           }));
    EXPECT_TRUE(node.reads.empty());
    EXPECT_EQ(node.directionQuestions, 16) << "the direction is asked once for each key";
}

TEST(SavedSetup, OfANewControlKeepsTheFirstFourKeysOnly) {
    EntryNode node;
    saveInto(node, SettingsState{});
    EXPECT_EQ(node.entries, (Entries{{"useManualMagnitudeLimits", "False"},
                                     {"drawClearance", "False"},
                                     {"clearanceColor", "16750848"},
                                     {"displayTime", "100.000000000000000"}}));
}

TEST(SavedSetup, HoldsEverySettingThatIsNotItsDefault) {
    EntryNode node;
    saveInto(node, unusualState());
    EXPECT_EQ(node.entries, (Entries{{"useManualMagnitudeLimits", "True"},
                                     {"drawClearance", "True"},
                                     {"clearanceColor", "-7"},
                                     {"displayTime", "250.500000000000000"},
                                     {"revolutions", "3"},
                                     {"tickCount", "9"},
                                     {"singleAxis", "False"},
                                     {"displayType", "1"},
                                     {"graphType", "1"},
                                     {"historyType", "1"},
                                     {"autoScaleType", "1"},
                                     {"showOnlyLastPosition", "True"},
                                     {"minXValue", "-4.000000000000000"},
                                     {"maxXValue", "4.000000000000000"},
                                     {"minYValue", "-4.000000000000000"},
                                     {"maxYValue", "4.000000000000000"}}));
}

TEST(SavedSetup, AlwaysStoresTheFirstFourKeysEvenAsTheyReadWhenMissing) {
    SettingsState state;
    state.clearanceColor = 0;
    state.displayTime = 0.0;
    EntryNode node;
    saveInto(node, state);
    EXPECT_EQ(node.entries.at("clearanceColor"), "0");
    EXPECT_EQ(node.entries.at("displayTime"), "0.000000000000000");
}

TEST(SavedSetup, NormalisesWhatLeftItsRange) {
    RotavueVisualControl control;
    SettingsState state;
    state.useManualMagnitudeLimits = 7;
    state.graphType = 7;
    state.historyType = -1;
    state.autoScaleType = 2;
    state.displayType = 7;
    putState(control, state);
    EntryNode node;
    node.writing = true;
    control.persistSetup(node);
    // The texts are those of before.
    EXPECT_EQ(node.entries.at("graphType"), "7");
    EXPECT_EQ(node.entries.at("historyType"), "-1");
    EXPECT_EQ(node.entries.at("autoScaleType"), "2");
    EXPECT_EQ(node.entries.at("useManualMagnitudeLimits"), "False");
    EXPECT_EQ(stateOf(control).graphType, 0);
    EXPECT_EQ(stateOf(control).historyType, 0);
    EXPECT_EQ(stateOf(control).autoScaleType, 0);
    EXPECT_EQ(stateOf(control).useManualMagnitudeLimits, 0) << "only 1 counts as on";
    EXPECT_EQ(stateOf(control).displayType, 7) << "not checked";
}

TEST(Setup, MakesTheNextLayoutRunInFullInBothDirections) {
    for (const bool writing : {true, false}) {
        RotavueVisualControl control;
        ASSERT_TRUE(RotavueVisualControlAccess(control).graph.state().layoutValid);
        EntryNode node;
        node.writing = writing;
        control.persistSetup(node);
        EXPECT_FALSE(RotavueVisualControlAccess(control).graph.state().layoutValid);
    }
}

// A document that has nothing to give from the key of that name on.
class EndingNode final : public Tests::UnusedNode {
public:
    EndingNode(bool writes, const char* lastKey) : writes_(writes), lastKey_(lastKey) {}

    bool isWriting() const override { return writes_; }
    void writeValue(const Text& key, const Text&, const Text&) override { endAt(key); }
    void readValue(const Text& key, Text& value, const Text& defaultValue) const override {
        endAt(key);
        value = defaultValue;
    }

private:
    void endAt(const Text& key) const {
        if (key == lastKey_) throw XmlException(0);
    }

    bool writes_;
    std::string lastKey_;
};

TEST(Setup, LeavesTheLayoutAloneWhereItEndsBeforeTheSettingsAreStored) {
    for (const bool writing : {true, false}) {
        for (const auto& [key, valid] :
             {std::pair{"useManualMagnitudeLimits", true}, std::pair{"tickCount", true},
              std::pair{"showOnlyLastPosition", true}, std::pair{"minXValue", false},
              std::pair{"maxYValue", false}}) {
            RotavueVisualControl control;
            EndingNode node(writing, key);
            EXPECT_THROW(control.persistSetup(node), XmlException) << key;
            EXPECT_EQ(RotavueVisualControlAccess(control).graph.state().layoutValid, valid) << key;
        }
    }
}

TEST(SavedSetup, ThatFailsNormalisesOnlyOnceTheSettingsAreStored) {
    SettingsState state = unusualState();
    state.graphType = 7;
    state.historyType = -1;
    for (const auto& [key, graphType, historyType] :
         {std::tuple{"autoScaleType", 7, -1}, std::tuple{"showOnlyLastPosition", 7, -1},
          std::tuple{"minXValue", 0, 0}}) {
        RotavueVisualControl control;
        putState(control, state);
        EndingNode node(true, key);
        EXPECT_THROW(control.persistSetup(node), XmlException) << key;
        EXPECT_EQ(stateOf(control).graphType, graphType) << key;
        EXPECT_EQ(stateOf(control).historyType, historyType) << key;
    }
}

TEST(SavedSetup, OfACircleLeavesLimitsThatAreNotSquareAsTheyAre) {
    SettingsState state;
    state.graphType = 1;
    state.maxYValue = 0.5;
    RotavueVisualControl control;
    putState(control, state);
    EntryNode node;
    node.writing = true;
    control.persistSetup(node);
    EXPECT_EQ(stateOf(control), state);
    EXPECT_EQ(node.entries.at("maxYValue"), "0.500000000000000");
}

TEST(LoadedSetup, AsksForSixteenKeysWithTheirDefaults) {
    RotavueVisualControl control;
    EntryNode node;
    control.persistSetup(node);
    EXPECT_EQ(node.reads, (std::vector<Row>{
                              {"useManualMagnitudeLimits", "False"},
                              {"drawClearance", "False"},
                              {"clearanceColor", "0"},
                              {"displayTime", "0.000000000000000"},
                              {"revolutions", "1"},
                              {"tickCount", "5"},
                              {"singleAxis", "True"},
                              {"displayType", "0"},
                              {"graphType", "0"},
                              {"historyType", "0"},
                              {"autoScaleType", "0"},
                              {"showOnlyLastPosition", "False"},
                              {"minXValue", "-1.000000000000000"},
                              {"maxXValue", "1.000000000000000"},
                              {"minYValue", "-1.000000000000000"},
                              {"maxYValue", "1.000000000000000"},
                          }));
    EXPECT_TRUE(node.writes.empty());
    EXPECT_EQ(node.directionQuestions, 16);
}

TEST(LoadedSetup, ThatIsEmptyDiffersFromANewControlInColorAndDisplayTime) {
    SettingsState expected;
    expected.clearanceColor = 0;
    expected.displayTime = 0.0;
    EXPECT_EQ(loadedFrom({}), expected);
    EXPECT_EQ(loadedFrom({}, unusualState()), expected);
}

TEST(LoadedSetup, TakesNumbersAsTheyStandButThreeThatMustBeZeroOrOne) {
    struct Case {
        const char* key;
        const char* text;
        std::int32_t SettingsState::*field;
        std::int32_t value;
    };
    using S = SettingsState;
    const Case cases[] = {
        {"graphType", "1", &S::graphType, 1},
        {"graphType", "7", &S::graphType, 0},
        {"graphType", "-1", &S::graphType, 0},
        {"historyType", "1", &S::historyType, 1},
        {"historyType", "-1", &S::historyType, 0},
        {"historyType", "2", &S::historyType, 0},
        {"autoScaleType", "1", &S::autoScaleType, 1},
        {"autoScaleType", "-2147483648", &S::autoScaleType, 0},
        {"displayType", "7", &S::displayType, 7},
        {"displayType", "-1", &S::displayType, -1},
        {"tickCount", "21", &S::tickCount, 21},
        {"tickCount", "-2", &S::tickCount, -2},
        {"tickCount", "4294967296", &S::tickCount, 0},
        {"revolutions", "26", &S::revolutions, 26},
        {"revolutions", "-2147483648", &S::revolutions, std::numeric_limits<std::int32_t>::min()},
        {"revolutions", "12abc", &S::revolutions, 12},
        {"clearanceColor", "4294967295", &S::clearanceColor, -1},
        {"useManualMagnitudeLimits", "true", &S::useManualMagnitudeLimits, 1},
        {"useManualMagnitudeLimits", "2", &S::useManualMagnitudeLimits, 1},
        {"useManualMagnitudeLimits", "yes", &S::useManualMagnitudeLimits, 0},
    };
    for (const Case& c : cases)
        EXPECT_EQ(loadedFrom({{c.key, c.text}}).*c.field, c.value) << c.key << " " << c.text;
}

TEST(LoadedSetup, TakesBoolsInManySpellingsAndNeverFails) {
    struct Case {
        const char* text;
        bool value;
    };
    for (const Case& c : {Case{"1", true},
                          {"TRUE", true},
                          {"0", false},
                          {"abc", false},
                          {"", false},
                          {"False", false}}) {
        EXPECT_EQ(loadedFrom({{"singleAxis", c.text}}).singleAxis, c.value) << c.text;
        EXPECT_EQ(loadedFrom({{"drawClearance", c.text}}).drawClearance, c.value) << c.text;
        EXPECT_EQ(loadedFrom({{"showOnlyLastPosition", c.text}}).showOnlyLastPosition, c.value)
            << c.text;
    }
}

TEST(LoadedSetup, TakesAPointOrACommaInEveryLocale) {
    for (const char* name : {"C", "en_US.UTF-8", "de_DE.UTF-8"}) {
        const Tests::CLocale locale(name);
        ASSERT_TRUE(locale.isSet()) << name;
        EXPECT_EQ(loadedFrom({{"displayTime", "2,5"}}).displayTime, 2.5) << name;
        EXPECT_EQ(loadedFrom({{"displayTime", "2.5"}}).displayTime, 2.5) << name;
        EntryNode node;
        saveInto(node, unusualState());
        EXPECT_EQ(node.entries.at("displayTime"), "250.500000000000000") << name;
        EXPECT_EQ(loadedFrom(node.entries), unusualState()) << name;
    }
}

TEST(LoadedSetup, TakesAMegabyteOfTextLikeAnyOther) {
    const std::string zeros(1 << 20, '0');
    EXPECT_EQ(loadedFrom({{"tickCount", zeros + "7"}}).tickCount, 7);
    EXPECT_EQ(loadedFrom({{"displayTime", zeros + "7.5" + zeros}}).displayTime, 7.5);
    EXPECT_FALSE(loadedFrom({{"singleAxis", zeros + "x"}}).singleAxis);
}

TEST(LoadedSetup, PassesOverKeysThatItDoesNotKnow) {
    SettingsState expected = loadedFrom({});
    EXPECT_EQ(loadedFrom({{"TickCount", "9"}, {"version", "2"}, {"tickcount", "abc"}}), expected);
}

TEST(LoadedSetup, OfACircleKeepsTheStoredLimitsAsTheyStand) {
    const SettingsState loaded = loadedFrom({{"graphType", "1"},
                                             {"minXValue", "-1"},
                                             {"maxXValue", "2"},
                                             {"minYValue", "-3"},
                                             {"maxYValue", "0.5"}});
    EXPECT_EQ(loaded.graphType, 1);
    EXPECT_EQ(loaded.minXValue, -1.0);
    EXPECT_EQ(loaded.maxXValue, 2.0);
    EXPECT_EQ(loaded.minYValue, -3.0);
    EXPECT_EQ(loaded.maxYValue, 0.5);
}

TEST(LoadedSetup, OfACircleFirstSquaresTheLimitsOfBefore) {
    RotavueVisualControl control;
    SettingsState before;
    before.minXValue = -1.0;
    before.maxXValue = 2.0;
    before.minYValue = -3.0;
    before.maxYValue = 0.5;
    putState(control, before);
    EntryNode node;
    node.entries = {{"graphType", "1"}, {"maxXValue", "abc"}};
    EXPECT_THROW(control.persistSetup(node), XmlException);
    // The lower x limit is the missing key's; the rest are squared to the largest magnitude, 3.
    const SettingsState after = stateOf(control);
    EXPECT_EQ(after.minXValue, -1.0);
    EXPECT_EQ(after.maxXValue, 3.0);
    EXPECT_EQ(after.minYValue, -3.0);
    EXPECT_EQ(after.maxYValue, 3.0);
}

TEST(LoadedSetup, MayHaveLimitsInTheWrongOrder) {
    const SettingsState loaded = loadedFrom({{"minXValue", "5"}, {"maxXValue", "-5"}});
    EXPECT_EQ(loaded.minXValue, 5.0);
    EXPECT_EQ(loaded.maxXValue, -5.0);
}

TEST(Setup, ThatIsSavedAndLoadedOnTheSameNodeMovesOnlyWhatLeftItsRange) {
    SettingsState state = unusualState();
    state.graphType = 7;
    state.historyType = -1;
    state.autoScaleType = 2;
    state.displayType = 7;
    RotavueVisualControl control;
    putState(control, state);
    EntryNode node;
    node.writing = true;
    control.persistSetup(node);
    node.writing = false;
    control.persistSetup(node);
    state.graphType = 0;
    state.historyType = 0;
    state.autoScaleType = 0;
    EXPECT_EQ(stateOf(control), state);
}

TEST(Setup, ThatIsSavedAndLoadedLeavesAllSixteenSettings) {
    for (const SettingsState& state : {SettingsState{}, unusualState()}) {
        EntryNode node;
        saveInto(node, state);
        EXPECT_EQ(loadedFrom(node.entries), state);
        EXPECT_EQ(loadedFrom(node.entries, unusualState()), state);
    }
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
