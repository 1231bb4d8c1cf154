#include "workbench/files/message_bar.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>
#include <QToolButton>

namespace Rotavue::Workbench {
namespace {

TEST(MessageBarTest, IsThereOnlyWhileThereIsSomethingToTell) {
    MessageBar bar;
    EXPECT_TRUE(bar.isHidden());
    bar.tell("a.csv:3:1: found nothing");
    EXPECT_FALSE(bar.isHidden());
    EXPECT_EQ(bar.findChild<QLabel*>("messageText")->text(), "a.csv:3:1: found nothing");
    bar.findChild<QToolButton*>("messageClose")->click();
    EXPECT_TRUE(bar.isHidden());
    EXPECT_TRUE(bar.lines().isEmpty());
}

TEST(MessageBarTest, TellsTheNewestFiveEachOnce) {
    MessageBar bar;
    for (int i = 0; i < 7; ++i)
        bar.tell(QString::number(i));
    bar.tell("4");
    EXPECT_EQ(bar.lines(), (QStringList{"2", "3", "5", "6", "4"}));
}

TEST(MessageBarTest, ShowsMarkupAsItStands) {
    MessageBar bar;
    bar.tell("<b>a</b>");
    EXPECT_EQ(bar.findChild<QLabel*>("messageText")->textFormat(), Qt::PlainText);
}

TEST(MessageBarTest, ARemedyStandsBehindItsLineAndTakesItAlong) {
    MessageBar bar;
    int runs = 0;
    bar.tell("a.csv is wrong", {"Mend", [&runs] { ++runs; }});
    bar.tell("b.csv is wrong");
    EXPECT_EQ(bar.findChildren<QPushButton*>().size(), 1);
    bar.findChild<QPushButton*>("messageRemedy")->click();
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(bar.lines(), QStringList{"b.csv is wrong"});
    EXPECT_EQ(bar.findChild<QPushButton*>("messageRemedy"), nullptr);
}

TEST(MessageBarTest, ALineThatIsToldAgainHasTheNewestRemedy) {
    MessageBar bar;
    bar.tell("a.csv is wrong", {"Mend", [] {}});
    bar.tell("a.csv is wrong");
    EXPECT_EQ(bar.findChild<QPushButton*>("messageRemedy"), nullptr);
}

}  // namespace
}  // namespace Rotavue::Workbench
