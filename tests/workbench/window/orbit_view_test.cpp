#include "workbench/window/orbit_view.h"

#include "tests/workbench/window/window_fixture.h"

#include <QEnterEvent>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTimer>

namespace Rotavue::Workbench {
namespace {

class OrbitViewTest : public WindowTest {
protected:
    /// A view whose axes the user has set to 80 um, so that its limits can be edited.
    OrbitView& openManual() {
        OrbitView& view = open();
        const Settings settings = withLimits(
            view.plane(), {.xMin = -80, .xMax = 80, .yMin = -80, .yMax = 80, .manual = true});
        bench().setSettings(view.plane(), settings);
        settle();
        return view;
    }

    /// Clicks on a limit; what the user does in the editor is done as soon as it is open.
    void editLimit(OrbitView& view, const std::function<void(LimitEditor&)>& user) {
        const std::optional<QPoint> place = findLimit(view);
        ASSERT_TRUE(place);
        bool opened = false;
        QTest::mouseMove(&view, *place);
        settle();
        QTimer::singleShot(0, &view, [&] {
            opened = view.editor().isEditing();
            user(view.editor());
        });
        QTest::mouseClick(&view, Qt::LeftButton, {}, *place);
        settle();
        EXPECT_TRUE(opened);
    }

    static double xMax(OrbitView& view) { return axisLimits(view.plane()).xMax; }
};

TEST_F(OrbitViewTest, ShowsTheOrbitInTheCurvesColour) {
    OrbitView& view = open();
    EXPECT_TRUE(hasColor(pictureOf(view), 0xFF0072B2));
}

// The display's own pointer, which tells of coming and leaving by itself.
TEST_F(OrbitViewTest, TheReadoutComesWithThePointerAndLeavesWithIt) {
    OrbitView& view = open();
    QWidget& elsewhere = *window_.statusBar();
    ASSERT_TRUE(putPointer(elsewhere, elsewhere.rect().center()));
    const QImage before = pictureOf(view);
    ASSERT_TRUE(putPointer(view, view.rect().center()));
    EXPECT_GT(differences(before, pictureOf(view)), 20);
    ASSERT_TRUE(putPointer(elsewhere, elsewhere.rect().center()));
    EXPECT_EQ(differences(before, pictureOf(view)), 0);
}

// Two corners of the plot are far from each other, and so are the samples that are next to them.
TEST_F(OrbitViewTest, TheReadoutIsThatOfThePlaceWhereThePointerCame) {
    OrbitView& view = open();
    QWidget& elsewhere = *window_.statusBar();
    const auto readoutAt = [&](const QPoint& place) {
        EXPECT_TRUE(putPointer(elsewhere, elsewhere.rect().center()));
        QEnterEvent entered(place, place, view.mapToGlobal(place));
        QApplication::sendEvent(&view, &entered);
        return pictureOf(view);
    };
    const QSize size = view.size();
    const QImage lower = readoutAt({size.width() / 3, size.height() * 2 / 3});
    const QImage upper = readoutAt({size.width() * 2 / 3, size.height() / 3});
    EXPECT_GT(differences(lower, upper), 20);
}

TEST_F(OrbitViewTest, ALimitIsEditedInItsPlace) {
    OrbitView& view = openManual();
    editLimit(view, [](LimitEditor& editor) {
        EXPECT_TRUE(editor.hasFocus());
        EXPECT_EQ(std::abs(editor.text().toDouble()), 80.0);
        QTest::keyClicks(&editor, "120,5");
        QTest::keyClick(&editor, Qt::Key_Return);
    });
    // One limit sets all four of an absolute scale.
    EXPECT_DOUBLE_EQ(xMax(view), 120.5);
    EXPECT_TRUE(view.hasFocus());
    EXPECT_FALSE(view.editor().isVisible());
    bench().undoStack().undo();
    EXPECT_DOUBLE_EQ(xMax(view), 80.0);
}

TEST_F(OrbitViewTest, EscapeLeavesTheLimitAndGivesTheFocusBack) {
    OrbitView& view = openManual();
    const int commands = bench().undoStack().count();
    editLimit(view, [](LimitEditor& editor) {
        QTest::keyClicks(&editor, "7");
        QTest::keyClick(&editor, Qt::Key_Escape);
    });
    EXPECT_DOUBLE_EQ(xMax(view), 80.0);
    EXPECT_TRUE(view.hasFocus());
    EXPECT_EQ(bench().undoStack().count(), commands);
}

TEST_F(OrbitViewTest, WhatIsNoNumberCannotBeTyped) {
    OrbitView& view = openManual();
    editLimit(view, [](LimitEditor& editor) {
        QTest::keyClicks(&editor, "abc9x0");
        EXPECT_EQ(editor.text(), "90");
        QTest::keyClick(&editor, Qt::Key_Return);
    });
    EXPECT_DOUBLE_EQ(xMax(view), 90.0);
}

TEST_F(OrbitViewTest, TheControlIsDrawnAndAnswersWhileItsEditorIsOpen) {
    OrbitView& view = openManual();
    const QSignalSpy drawn(&view, &OrbitView::drawn);
    editLimit(view, [&](LimitEditor& editor) {
        const auto before = drawn.count();
        bench().setCursor(0.5);
        QTest::mouseMove(&view, {100, 100});
        settle();
        EXPECT_GT(drawn.count(), before);
        EXPECT_TRUE(editor.isEditing());
        QTest::keyClick(&editor, Qt::Key_Escape);
    });
    EXPECT_EQ(view.plane().position(), 5000U);
}

TEST_F(OrbitViewTest, AClickElsewhereEndsTheEditing) {
    OrbitView& view = openManual();
    editLimit(view, [&](LimitEditor& editor) {
        QTest::keyClicks(&editor, "7");
        window_.tiles().viewOf(&view.plane())->setFocus(Qt::MouseFocusReason);
    });
    EXPECT_DOUBLE_EQ(xMax(view), 80.0);
}

TEST_F(OrbitViewTest, APlaneMayBeClosedWhileItsLimitIsEdited) {
    OrbitView& view = openManual();
    editLimit(view, [&](LimitEditor&) { bench().removePlane(view.plane()); });
    settle();
    EXPECT_TRUE(bench().planes().empty());
    EXPECT_TRUE(window_.tiles().tiles().empty());
}

TEST_F(OrbitViewTest, TheWindowMayBeClosedWhileALimitIsEdited) {
    OrbitView& view = openManual();
    bench().undoStack().setClean();
    editLimit(view, [&](LimitEditor&) { window_.close(); });
    EXPECT_FALSE(window_.isVisible());
    EXPECT_DOUBLE_EQ(xMax(view), 80.0);
}

TEST_F(OrbitViewTest, WhatTheControlFailsAtIsReportedOnce) {
    OrbitView& view = open();
    const QSignalSpy troubled(&bench(), &Bench::troubled);
    view.plane().host().fail(HostKit::operation("IHostVisualControl.getChannels"));
    view.repaint();
    EXPECT_EQ(troubled.count(), 1);
    view.repaint();
    EXPECT_EQ(troubled.count(), 1);
}

}  // namespace
}  // namespace Rotavue::Workbench
