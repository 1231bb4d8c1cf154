#include "workbench/window/docks/color_button.h"

#include <QColorDialog>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace Rotavue::Workbench {
namespace {

TEST(ColorButton, ShowsTheCodeOfTheColourAndTellsNobody) {
    ColorButton button;
    const QSignalSpy chosen(&button, &ColorButton::colorChosen);
    button.setColor(QColor(0xFF, 0x99, 0x00));
    EXPECT_EQ(button.text(), "#ff9900");
    EXPECT_EQ(chosen.count(), 0);
}

TEST(ColorButton, TellsAnotherColourOnce) {
    ColorButton button;
    const QSignalSpy chosen(&button, &ColorButton::colorChosen);
    button.choose(Qt::black);  // which it has
    button.choose(QColor());   // the dialog was cancelled
    EXPECT_EQ(chosen.count(), 0);
    button.choose(Qt::red);
    EXPECT_EQ(chosen.count(), 1);
    EXPECT_EQ(button.color(), QColor(Qt::red));
}

TEST(ColorButton, OpensItsDialogByKeyboard) {
    ColorButton button;
    button.setColor(Qt::green);
    button.show();
    button.setFocus();
    QTest::keyClick(&button, Qt::Key_Space);
    auto* dialog = button.findChild<QColorDialog*>();
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->currentColor(), QColor(Qt::green));
    dialog->setCurrentColor(Qt::blue);
    dialog->accept();
    EXPECT_EQ(button.color(), QColor(Qt::blue));
}

}  // namespace
}  // namespace Rotavue::Workbench
