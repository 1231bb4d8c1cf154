#include "workbench/window/docks/property_panel.h"

#include "tests/workbench/window/docks/dock_application.h"
#include "tests/workbench/window/docks/loaded_control.h"
#include "workbench/window/docks/color_button.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTabWidget>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

namespace Rotavue::Workbench {
namespace {

/// What a change has made of the control's settings.
struct SettingsChange {
    QString caption;
    ControlSettings before;
    ControlSettings after;
};

/// The panel of a control of the real module.
class PropertyPanelTest : public ::testing::Test {
protected:
    PropertyPanelTest() {
        panel.resize(320, 420);
        panel.show("Bearing 1", control.messages());
        panel.QWidget::show();
        QObject::connect(&panel, &PropertyPanel::changed, [this](const QWidget* changed) {
            changes.push_back({changed->accessibleName(), before, control.save()});
            before = changes.back().after;
        });
    }

    template <class Editor>
    Editor& editor(const char* name) {
        auto* found = panel.findChild<Editor*>(name);
        EXPECT_NE(found, nullptr) << name;
        return *found;
    }

    void toPage(int page) { panel.findChild<QTabWidget*>()->setCurrentIndex(page); }

    void choose(const char* combo, int index) {
        auto& box = editor<QComboBox>(combo);
        box.setFocus();
        const auto key = index > box.currentIndex() ? Qt::Key_Down : Qt::Key_Up;
        QTest::keyClick(&box, key);
        ASSERT_EQ(box.currentIndex(), index);
    }

    LoadedControl control;
    ControlSettings before = control.save();
    PropertyPanel panel;
    std::vector<SettingsChange> changes;
};

TEST_F(PropertyPanelTest, HasThePagesGroupsAndWidgetsOfThePlugIn) {
    const auto& tabs = *panel.findChild<QTabWidget*>();
    ASSERT_EQ(tabs.count(), 2);
    EXPECT_EQ(tabs.tabText(0), "Axis");
    EXPECT_EQ(tabs.tabText(1), "Advanced");
    EXPECT_EQ(tabs.widget(0)->findChild<QGroupBox*>()->title(), "Axis");
    EXPECT_EQ(tabs.widget(1)->findChild<QGroupBox*>()->title(), "Drawing Options");
    EXPECT_EQ(editor<QSpinBox>("TickCount").minimum(), 0);
    EXPECT_EQ(editor<QSpinBox>("TickCount").maximum(), 20);
    EXPECT_EQ(editor<QCheckBox>("AutoScaleCheckbox").text(), "Auto scale");
    EXPECT_EQ(editor<QComboBox>("AutoScaleType").itemText(1), "Relative");
    EXPECT_EQ(editor<QDoubleSpinBox>("HistoryTime").maximum(), 10000.0);
}

TEST_F(PropertyPanelTest, ShowsTheSettingsOfANewControl) {
    EXPECT_EQ(editor<QSpinBox>("TickCount").value(), 5);
    EXPECT_TRUE(editor<QCheckBox>("AutoScaleCheckbox").isChecked());
    EXPECT_TRUE(editor<QCheckBox>("SingleAxis").isChecked());
    EXPECT_EQ(editor<ColorButton>("ClearanceColor").color(), QColor(0xFF, 0x99, 0x00));
    EXPECT_EQ(editor<QDoubleSpinBox>("HistoryTime").value(), 100.0);
    EXPECT_TRUE(changes.empty());
}

TEST_F(PropertyPanelTest, ChangeGoesToTheControlAsOneStep) {
    auto& ticks = editor<QSpinBox>("TickCount");
    ticks.setFocus();
    ticks.selectAll();
    QTest::keyClicks(&ticks, "12");
    EXPECT_TRUE(changes.empty());  // not entered yet
    QTest::keyClick(&ticks, Qt::Key_Return);
    ASSERT_EQ(changes.size(), 1U);
    EXPECT_EQ(changes[0].caption, "Number of ticks");
    EXPECT_EQ(changes[0].after[L"tickCount"], L"12");
    EXPECT_EQ(changes[0].before.count(L"tickCount"), 0U);  // 5, which a document leaves out
}

TEST_F(PropertyPanelTest, PlugInDisablesTheKindOfScaleOnceTheScaleIsManual) {
    EXPECT_TRUE(editor<QComboBox>("AutoScaleType").isEnabled());
    QTest::mouseClick(&editor<QCheckBox>("AutoScaleCheckbox"), Qt::LeftButton, {}, {8, 8});
    EXPECT_FALSE(editor<QComboBox>("AutoScaleType").isEnabled());
    ASSERT_EQ(changes.size(), 1U);
    EXPECT_EQ(changes[0].after[L"useManualMagnitudeLimits"], L"True");
}

TEST_F(PropertyPanelTest, PlugInShowsTheHistoryThatItsTypeUses) {
    toPage(1);
    EXPECT_TRUE(editor<QSpinBox>("HistoryRevolutions").isVisible());
    EXPECT_FALSE(editor<QDoubleSpinBox>("HistoryTime").isVisible());
    choose("HistoryType", 1);
    EXPECT_FALSE(editor<QSpinBox>("HistoryRevolutions").isVisible());
    EXPECT_TRUE(editor<QDoubleSpinBox>("HistoryTime").isVisible());
}

TEST_F(PropertyPanelTest, PlugInEnablesTheColourWithTheClearance) {
    toPage(1);
    EXPECT_FALSE(editor<ColorButton>("ClearanceColor").isEnabled());
    editor<QCheckBox>("Clearance").setFocus();
    QTest::keyClick(&editor<QCheckBox>("Clearance"), Qt::Key_Space);
    EXPECT_TRUE(editor<ColorButton>("ClearanceColor").isEnabled());
    editor<ColorButton>("ClearanceColor").choose(QColor(0x00, 0x72, 0xB2));
    ASSERT_EQ(changes.size(), 2U);
    EXPECT_EQ(changes[1].after[L"clearanceColor"], std::to_wstring(0x0072B2));
}

// A circle is always scaled absolutely, and that is what filling the panel sets: the step of undo
// holds it too.
TEST_F(PropertyPanelTest, CircleTakesTheRelativeScaleBackInTheSameStep) {
    choose("AutoScaleType", 1);
    toPage(1);
    choose("GraphType", 1);
    EXPECT_EQ(editor<QComboBox>("AutoScaleType").currentIndex(), 0);
    EXPECT_FALSE(editor<QComboBox>("AutoScaleType").isEnabled());
    ASSERT_EQ(changes.size(), 2U);
    EXPECT_EQ(changes[1].before[L"autoScaleType"], L"1");
    EXPECT_EQ(changes[1].after.count(L"autoScaleType"), 0U);  // 0, which a document leaves out
    EXPECT_EQ(changes[1].after[L"graphType"], L"1");
}

TEST_F(PropertyPanelTest, RefreshShowsWhatAnotherHandHasSetAndTellsNobody) {
    control.load({{L"tickCount", L"9"}, {L"useManualMagnitudeLimits", L"1"}});
    panel.refresh();
    EXPECT_EQ(editor<QSpinBox>("TickCount").value(), 9);
    EXPECT_FALSE(editor<QCheckBox>("AutoScaleCheckbox").isChecked());
    EXPECT_TRUE(changes.empty());
}

TEST_F(PropertyPanelTest, ShowsANumberOutsideItsLimitsAsItStands) {
    control.load({{L"revolutions", L"400"}});
    panel.refresh();
    toPage(1);
    auto& revolutions = editor<QSpinBox>("HistoryRevolutions");
    EXPECT_EQ(revolutions.value(), 400);
    revolutions.setFocus();
    QTest::keyClick(&revolutions, Qt::Key_Down);
    EXPECT_EQ(revolutions.value(), 25);  // the greatest that the panel offers
    EXPECT_EQ(changes.back().after[L"revolutions"], L"25");
}

TEST_F(PropertyPanelTest, WheelChangesOnlyWhatHasTheFocus) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&panel));
    auto& ticks = editor<QSpinBox>("TickCount");
    const auto turnWheel = [&ticks] {
        const QPoint place = ticks.rect().center();
        QWheelEvent event(place, ticks.mapToGlobal(place), {}, {0, 120}, Qt::NoButton, {},
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&ticks, &event);
    };
    editor<QCheckBox>("SingleAxis").setFocus();
    turnWheel();
    EXPECT_EQ(ticks.value(), 5);
    ticks.setFocus();
    turnWheel();
    EXPECT_EQ(ticks.value(), 6);
}

TEST_F(PropertyPanelTest, UndoneStepIsLoadedAndShown) {
    auto& ticks = editor<QSpinBox>("TickCount");
    ticks.setFocus();
    QTest::keyClick(&ticks, Qt::Key_Up);
    EXPECT_EQ(ticks.value(), 6);
    control.load(changes.back().before);
    panel.refresh();
    EXPECT_EQ(ticks.value(), 5);
}

TEST_F(PropertyPanelTest, PagesGoBeforeTheControlDoes) {
    panel.clear();
    EXPECT_FALSE(panel.findChild<QTabWidget*>()->isVisible());
    EXPECT_EQ(panel.findChild<QSpinBox*>("TickCount"), nullptr);
    panel.refresh();  // of nothing
    panel.show("Bearing 2", control.messages());
    EXPECT_EQ(panel.findChild<QTabWidget*>()->count(), 2);
}

TEST_F(PropertyPanelTest, FrontPageStaysInFrontForTheNextControl) {
    toPage(1);
    panel.show("Bearing 2", control.messages());
    EXPECT_EQ(panel.findChild<QTabWidget*>()->currentIndex(), 1);
}

TEST_F(PropertyPanelTest, RefusalOfThePlugInIsToldAndLeavesThePanelStanding) {
    const QSignalSpy failures(&panel, &PropertyPanel::failed);
    PanelMessages messages = control.messages();
    messages.read = [](const auto&) { throw Host::HostError(Host::Status::Unspecified); };
    panel.show("Bearing 1", messages);
    QTest::keyClick(&editor<QCheckBox>("SingleAxis"), Qt::Key_Space);
    ASSERT_EQ(failures.count(), 1);
    EXPECT_EQ(failures[0][0].toString(), "the plug-in failed: a call of the host gave 0x80004005");
    EXPECT_TRUE(changes.empty());
}

TEST_F(PropertyPanelTest, LooksItsPart) {
    screenshot(panel, "property-panel-axis");
    toPage(1);
    QTest::mouseClick(&editor<QCheckBox>("Clearance"), Qt::LeftButton, {}, {8, 8});
    screenshot(panel, "property-panel-advanced");
}

}  // namespace
}  // namespace Rotavue::Workbench
