#include "tests/workbench/window/window_fixture.h"
#include "workbench/window/docks/channel_tree.h"

#include <QTreeWidget>

namespace Rotavue::Workbench {
namespace {

class UsableActionsTest : public WindowTest {
protected:
    QAction& channelAction(const QString& words) {
        for (QAction* one : window_.findChild<ChannelTree*>()->findChildren<QAction*>())
            if (one->text().remove('&').startsWith(words)) return *one;
        ADD_FAILURE() << words.toStdString();
        return action("undo");
    }

    void select(int plane, int row) {
        auto* tree = window_.findChild<QTreeWidget*>("Channels");
        QTreeWidgetItem* item = tree->topLevelItem(plane);
        tree->setCurrentItem(row < 0 ? item : item->child(row));
    }

    static bool says(const QAction& one, const QString& why) {
        return one.toolTip().endsWith(": " + why);
    }
};

// What needs a recording; each says so in its tool tip, behind its key.
constexpr const char* OfAPlane[] = {
    "saveView",    "saveViewAs",  "closePlane",    "equalAxes",    "editLimits",    "play",
    "start",       "back",        "forward",       "end",          "backMany",      "forwardMany",
    "copyNumbers", "copyPicture", "exportPicture", "exportReport", "takeRunOutFile"};

TEST_F(UsableActionsTest, WithoutARecordingNothingIsOffered) {
    for (const char* name : OfAPlane) {
        EXPECT_FALSE(action(name).isEnabled()) << name;
        EXPECT_TRUE(says(action(name), "nothing is open")) << action(name).toolTip().toStdString();
    }
    for (const char* words : {"Add orders", "Add a reference", "Show this alone", "Remove"}) {
        EXPECT_FALSE(channelAction(words).isEnabled()) << words;
        EXPECT_TRUE(says(channelAction(words), "nothing is open")) << words;
    }
    EXPECT_TRUE(action("open").isEnabled());
}

TEST_F(UsableActionsTest, WithOneItIsAndTheToolTipsAreShortAgain) {
    open();
    for (const char* name : OfAPlane) {
        EXPECT_TRUE(action(name).isEnabled()) << name;
        EXPECT_FALSE(action(name).toolTip().contains("nothing is open")) << name;
    }
    EXPECT_TRUE(channelAction("Add orders").isEnabled());
    EXPECT_EQ(channelAction("Add orders").toolTip(), "Add orders... (Ins)");
}

TEST_F(UsableActionsTest, WhatIsForSeveralPlanesNeedsTwo) {
    open();
    for (const char* name : {"nextPlane", "previousPlane", "lockScale"}) {
        EXPECT_FALSE(action(name).isEnabled()) << name;
        EXPECT_TRUE(says(action(name), "there are no two planes")) << name;
    }
    open(rotor("Bearing 2"));
    for (const char* name : {"nextPlane", "previousPlane", "lockScale"})
        EXPECT_TRUE(action(name).isEnabled()) << name;
}

TEST_F(UsableActionsTest, OrdersNeedAKeyphasor) {
    Recording recording = rotor();
    recording.angle.edit().clear();
    open(recording);
    EXPECT_FALSE(channelAction("Add orders").isEnabled());
    EXPECT_TRUE(says(channelAction("Add orders"), "needs a keyphasor"));
    EXPECT_TRUE(channelAction("Add a reference").isEnabled());
}

// Rows: raw, direct by angle, average, 1X, 2X, not 1X, below 1X, shaft centre.
TEST_F(UsableActionsTest, ActionsOfACurveFollowTheSelection) {
    open();
    select(0, -1);
    EXPECT_TRUE(says(channelAction("Show this alone"), "no curve is selected"));
    select(0, 0);
    EXPECT_TRUE(channelAction("Show this alone").isEnabled());
    EXPECT_TRUE(channelAction("Remove").isEnabled());
    EXPECT_FALSE(channelAction("Rests at").isEnabled());
    select(0, 1);
    EXPECT_TRUE(says(channelAction("Remove"), "it is not shown"));
    select(0, 7);
    EXPECT_TRUE(channelAction("Rests at").isEnabled());
}

TEST_F(UsableActionsTest, RunOutSaysWhatIsMissing) {
    open();
    EXPECT_TRUE(says(action("takeRunOut"), "no stretch is marked in the waveforms"));
    EXPECT_TRUE(says(action("compensateVector"), "no run-out of this plane has been taken"));
    window_.markedStretch().set(TimeSpan{0.2, 1.0});
    EXPECT_TRUE(action("takeRunOut").isEnabled());
    EXPECT_TRUE(action("takeRunOut").toolTip().endsWith("(Ctrl+Shift+U)"));
}

}  // namespace
}  // namespace Rotavue::Workbench
