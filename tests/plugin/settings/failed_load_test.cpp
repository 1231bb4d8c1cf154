// What a control holds after a load that ended early.

#include "plugin/framework/host/host_error.h"
#include "plugin/setup_document/xml_exception.h"
#include "tests/plugin/settings/settings_state.h"
#include "tests/plugin/setup_document/entry_node.h"
#include "tests/plugin/setup_document/unused_node.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace Meridax::VisualControls::Rotavue {
namespace {

using Utils::Serialization::XmlException;

// A setup that differs from an unusual control in all sixteen settings. Loading it changes the
// control from a circle to a grid, which leaves limits alone.
const std::vector<std::pair<std::string, std::string>> Stored = {
    {"useManualMagnitudeLimits", "False"},
    {"drawClearance", "False"},
    {"clearanceColor", "5"},
    {"displayTime", "20"},
    {"revolutions", "7"},
    {"tickCount", "2"},
    {"singleAxis", "True"},
    {"displayType", "0"},
    {"graphType", "0"},
    {"historyType", "0"},
    {"autoScaleType", "0"},
    {"showOnlyLastPosition", "False"},
    {"minXValue", "-10"},
    {"maxXValue", "11"},
    {"minYValue", "-12"},
    {"maxYValue", "13"},
};

constexpr SettingsState Loaded{0, false, 5, 20.0, 7, 2, true, 0, 0, 0, 0, false, -10, 11, -12, 13};

// The state after a load that failed at the key of that place, counted from 0.
SettingsState stateAfterFailingAt(std::size_t place) {
    if (place < 12) return unusualState();
    SettingsState state = Loaded;
    const SettingsState before = unusualState();
    if (place <= 12) state.minXValue = before.minXValue;
    if (place <= 13) state.maxXValue = before.maxXValue;
    if (place <= 14) state.minYValue = before.minYValue;
    state.maxYValue = before.maxYValue;
    return state;
}

bool isBool(const std::string& key) {
    return key == "useManualMagnitudeLimits" || key == "drawClearance" || key == "singleAxis" ||
           key == "showOnlyLastPosition";
}

// The code of the exception with which loading ended; -1 without one.
std::int32_t codeOfLoading(RotavueVisualControl& control, Tests::EntryNode& node) {
    try {
        control.persistSetup(node);
    } catch (const XmlException& error) {
        return error.code;
    }
    return -1;
}

TEST(FailedLoad, IsReallyFromOneStateToAnotherInAllSettings) {
    RotavueVisualControl control;
    putState(control, unusualState());
    Tests::EntryNode node;
    node.entries = {Stored.begin(), Stored.end()};
    control.persistSetup(node);
    EXPECT_EQ(stateOf(control), Loaded);
}

TEST(FailedLoad, LeavesWhatItsKeyTells) {
    struct Spoiled {
        const char* text;
        std::int32_t code;
    };
    for (const Spoiled& spoiled :
         {Spoiled{"abc", 0}, {"", 0}, {"s", 0}, {"99999999999999999999e999", 4}}) {
        for (std::size_t place = 0; place < Stored.size(); ++place) {
            const std::string& key = Stored[place].first;
            if (isBool(key)) continue;
            RotavueVisualControl control;
            putState(control, unusualState());
            Tests::EntryNode node;
            node.entries = {Stored.begin(), Stored.end()};
            node.entries[key] = spoiled.text;
            EXPECT_EQ(codeOfLoading(control, node), spoiled.code) << key;
            EXPECT_EQ(stateOf(control), stateAfterFailingAt(place)) << key;
            EXPECT_EQ(node.reads.back().front(), key) << "nothing is read after the failure";
        }
    }
}

TEST(FailedLoad, NeverComesFromABool) {
    for (const auto& [key, text] : Stored) {
        if (!isBool(key)) continue;
        RotavueVisualControl control;
        Tests::EntryNode node;
        node.entries = {{key, "99999999999999999999e999x"}};
        EXPECT_EQ(codeOfLoading(control, node), -1) << key;
    }
}

// A document whose n-th read or write fails.
class FailingNode final : public Tests::UnusedNode {
public:
    FailingNode(bool writing, std::size_t place) : writing_(writing), left_(place) {}

    bool isWriting() const override { return writing_; }

    void writeValue(const Text&, const Text&, const Text&) override { take(); }

    void readValue(const Text& key, Text& value, const Text&) const override {
        take();
        for (const auto& [storedKey, text] : Stored)
            if (storedKey == key) value = text;
    }

private:
    void take() const {
        if (left_ == 0) throw Host::HostError(Host::Status::Unspecified);
        --left_;
    }

    bool writing_;
    mutable std::size_t left_;
};

TEST(FailedLoad, OfTheHostLeavesTheSameAsASpoiledText) {
    for (std::size_t place = 0; place < Stored.size(); ++place) {
        RotavueVisualControl control;
        putState(control, unusualState());
        FailingNode node(false, place);
        EXPECT_THROW(control.persistSetup(node), Host::HostError);
        EXPECT_EQ(stateOf(control), stateAfterFailingAt(place)) << Stored[place].first;
    }
}

TEST(FailedSave, ChangesNoSetting) {
    for (std::size_t place = 0; place < Stored.size(); ++place) {
        RotavueVisualControl control;
        putState(control, unusualState());
        FailingNode node(true, place);
        EXPECT_THROW(control.persistSetup(node), Host::HostError);
        EXPECT_EQ(stateOf(control), unusualState()) << Stored[place].first;
    }
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
