#include "workbench/setup/setup_rules.h"

#include <gtest/gtest.h>

#include "workbench/recording/recording_error.h"

namespace Rotavue::Workbench {
namespace {

std::string faultOf(const SetupEntries& entries) {
    try {
        checkSetup("f", entries);
    } catch (const RecordingError& error) {
        return error.what();
    }
    return "taken";
}

TEST(SetupRules, KeysAreTheSixteenSettingsInTheirOrder) {
    const std::vector<std::string> keys{
        "useManualMagnitudeLimits",
        "drawClearance",
        "clearanceColor",
        "displayTime",
        "revolutions",
        "tickCount",
        "singleAxis",
        "displayType",
        "graphType",
        "historyType",
        "autoScaleType",
        "showOnlyLastPosition",
        "minXValue",
        "maxXValue",
        "minYValue",
        "maxYValue",
    };
    EXPECT_EQ(settingKeys(), keys);
}

TEST(SetupRules, TextsAreThoseThatThePanelOffers) {
    struct Case {
        const char* key;
        std::vector<const char*> taken;
        std::vector<const char*> refused;
        const char* allowed;
    };
    const std::vector<const char*> truth{"True", "False", "true", "false", "1", "0"};
    const std::vector<const char*> untruth{"", "yes", "2", "TRUEX"};
    const Case cases[] = {
        {"useManualMagnitudeLimits", truth, untruth, "True or False"},
        {"drawClearance", truth, untruth, "True or False"},
        {"clearanceColor",
         {"0", "16750848", "-2147483648", "2147483647"},
         {"2147483648", "0x10", "1.5", "red"},
         "a whole number from -2147483648 to 2147483647"},
        {"displayTime",
         {"1", "2,5", "2.5", "1e3", "10000.000000000000000"},
         {"0.5", "10000.5", "nan", "inf", "12abc", "", "1,5,5"},
         "a number from 1 to 10000"},
        {"revolutions",
         {"1", "25"},
         {"0", "26", "1.0", "+1", "99999999999999999999"},
         "a whole number from 1 to 25"},
        {"tickCount", {"0", "20"}, {"-1", "21"}, "a whole number from 0 to 20"},
        {"singleAxis", truth, untruth, "True or False"},
        {"displayType", {"0", "1"}, {"2", "Time"}, "0 (RPM) or 1 (Time)"},
        {"graphType", {"0", "1"}, {"-1", "01"}, "0 (Grid) or 1 (Circle)"},
        {"historyType", {"0", "1"}, {"7"}, "0 (Revolutions) or 1 (Time)"},
        {"autoScaleType", {"0", "1"}, {"7"}, "0 (Absolute) or 1 (Relative)"},
        {"showOnlyLastPosition", truth, untruth, "True or False"},
        {"minXValue", {"-1", "1e300", "-0,5"}, {"-", "1e999", "-inf"}, "a number"},
        {"maxXValue", {"1"}, {"one"}, "a number"},
        {"minYValue", {"1"}, {"one"}, "a number"},
        {"maxYValue", {"1"}, {"one"}, "a number"},
    };
    for (const Case& c : cases) {
        for (const char* text : c.taken)
            EXPECT_TRUE(isSettingText(c.key, text)) << c.key << ' ' << text;
        for (const char* text : c.refused)
            EXPECT_FALSE(isSettingText(c.key, text)) << c.key << ' ' << text;
        EXPECT_EQ(allowedTexts(c.key), c.allowed) << c.key;
    }
}

TEST(SetupRules, FaultsNameKeyTextAndWhatIsAllowed) {
    EXPECT_EQ(faultOf({{"revolutions", "8", 3}}), "taken");
    EXPECT_EQ(faultOf({{"revolutions", "8", 3}, {"tickCount", "many", 4}}),
              "f:4: found \"many\" for \"tickCount\", allowed: a whole number from 0 to 20");
    EXPECT_EQ(faultOf({{"tickCount", "", 4}}),
              "f:4: found nothing for \"tickCount\", allowed: a whole number from 0 to 20");
    EXPECT_EQ(
        faultOf({{"Revolutions", "8", 3}}),
        "f:3: found no setting \"Revolutions\" (the nearest is \"revolutions\"), allowed: the "
        "keys that \"rotavue setup new\" writes");
    EXPECT_EQ(faultOf({{"tickCount", "5", 3}, {"tickCount", "5", 9}}),
              "f:9: found \"tickCount\" a second time, after line 3, allowed: each key once");
}

TEST(SetupRules, LongTextIsCutInItsMessage) {
    EXPECT_EQ(faultOf({{"displayTime", std::string(1'000'000, '7'), 3}}),
              "f:3: found \"" + std::string(40, '7') +
                  "...\" for \"displayTime\", allowed: a number from 1 to 10000");
}

TEST(SetupRules, UnknownKeyHasNoTexts) {
    EXPECT_FALSE(isSettingKey("revolution"));
    EXPECT_FALSE(isSettingText("revolution", "1"));
}

}  // namespace
}  // namespace Rotavue::Workbench
