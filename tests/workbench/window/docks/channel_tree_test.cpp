#include "workbench/window/docks/channel_tree.h"

#include "tests/workbench/window/docks/dock_application.h"

#include <QInputDialog>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace Rotavue::Workbench {
namespace {

const CurveRequest Raw{CurveKind::Raw};
const CurveRequest Average{CurveKind::Average};
const CurveRequest First{CurveKind::Harmonic, {1.0}};
const CurveRequest Center{CurveKind::ShaftCenter};

using Curves = std::vector<CurveRequest>;

/// Two planes, the second without a keyphasor; what is wanted is shown, as the window does it.
class ChannelTreeTest : public ::testing::Test {
protected:
    ChannelTreeTest() {
        planes = {{.name = "Bearing 1", .file = "a.csv", .shown = {{Raw, QColor(0x0072B2)}}},
                  {.name = "Bearing 2",
                   .file = "b.csv",
                   .hasTacho = false,
                   .shown = {{Raw, QColor(0x0072B2)}}}};
        tree.resize(340, 460);
        tree.setPlanes(planes);
        tree.show();
        QObject::connect(&tree, &ChannelTree::curvesWanted,
                         [this](std::size_t plane, const Curves& curves) { take(plane, curves); });
        QObject::connect(&tree, &ChannelTree::planeSelected,
                         [this](std::size_t plane) { selected.push_back(plane); });
    }

    void SetUp() override { ASSERT_TRUE(QTest::qWaitForWindowActive(&tree)); }

    Curves lastWanted() const { return wanted.empty() ? Curves{} : wanted.back(); }

    void take(std::size_t plane, const Curves& curves) {
        wanted.push_back(curves);
        constexpr QRgb Colors[] = {0x0072B2, 0xB8336A, 0x009E73, 0x7A5195, 0x555555, 0x8C510A};
        planes[plane].shown.clear();
        for (std::size_t i = 0; i < curves.size(); ++i)
            planes[plane].shown.push_back({curves[i], QColor::fromRgb(Colors[i % 6])});
        tree.setPlanes(planes);
    }

    QTreeWidgetItem& row(int plane, const QString& text) {
        QTreeWidgetItem* parent = view.topLevelItem(plane);
        for (int i = 0; i < parent->childCount(); ++i)
            if (parent->child(i)->text(0) == text) return *parent->child(i);
        throw std::logic_error("no row " + text.toStdString());
    }

    /// The colour in the middle of a row's mark.
    QColor markOf(const QString& text) {
        return row(0, text).icon(0).pixmap(32).toImage().pixelColor(16, 16);
    }

    void press(int plane, const QString& text, int key, Qt::KeyboardModifiers keys = {}) {
        view.setCurrentItem(&row(plane, text));
        view.setFocus();
        QTest::keyClick(&view, static_cast<Qt::Key>(key), keys);
    }

    std::vector<TreePlane> planes;
    ChannelTree tree;
    QTreeWidget& view = *tree.findChild<QTreeWidget*>("Channels");
    std::vector<Curves> wanted;
    std::vector<std::size_t> selected;
};

TEST_F(ChannelTreeTest, ShowsThePlanesWithTheirChannelsAndKinds) {
    ASSERT_EQ(view.topLevelItemCount(), 2);
    EXPECT_EQ(view.topLevelItem(0)->text(0), "Bearing 1");
    EXPECT_EQ(row(0, "raw").checkState(0), Qt::Checked);
    EXPECT_EQ(row(0, "1X").checkState(0), Qt::Unchecked);
    EXPECT_EQ(row(0, "below 1X").text(1), "sub-sync");
    EXPECT_EQ(row(0, "direct by angle").text(1), "by angle");
    EXPECT_EQ(row(0, "not 1X").text(1), "by angle");
    EXPECT_EQ(row(0, "keyphasor").text(1), "tacho");
    EXPECT_EQ(row(1, "keyphasor").text(1), "none");
    EXPECT_TRUE(wanted.empty());
}

TEST_F(ChannelTreeTest, SpaceShowsACurveAndHidesIt) {
    press(0, "average", Qt::Key_Space);
    ASSERT_EQ(wanted.size(), 1U);
    EXPECT_EQ(lastWanted(), (Curves{Raw, Average}));
    EXPECT_EQ(markOf("average"), QColor::fromRgb(0xB8336A));
    press(0, "raw", Qt::Key_Space);
    EXPECT_EQ(lastWanted(), Curves{Average});
    EXPECT_EQ(markOf("raw").alpha(), 0);
}

TEST_F(ChannelTreeTest, ClickOnABoxDoesTheSame) {
    const QRect box = view.visualItemRect(&row(0, "1X"));
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, {box.left() + 10, box.center().y()});
    ASSERT_EQ(wanted.size(), 1U);
    EXPECT_EQ(lastWanted(), (Curves{Raw, First}));
}

TEST_F(ChannelTreeTest, WithoutAKeyphasorWhatNeedsItCannotBeTicked) {
    EXPECT_FALSE(row(1, "1X").flags().testFlag(Qt::ItemIsEnabled));
    for (const char* curve : {"direct by angle", "not 1X", "average", "1X"})
        EXPECT_TRUE(row(1, curve).toolTip(0).endsWith("needs a keyphasor")) << curve;
    EXPECT_TRUE(row(1, "below 1X").flags().testFlag(Qt::ItemIsEnabled));
    planes[0].hasMeanPosition = false;
    tree.setPlanes(planes);
    EXPECT_FALSE(row(0, "shaft centre").flags().testFlag(Qt::ItemIsEnabled));
}

TEST_F(ChannelTreeTest, OrdersAreAddedByKeyboardAndStayUntilTheyAreRemoved) {
    press(0, "raw", Qt::Key_Insert);
    auto* dialog = tree.findChild<QInputDialog*>();
    ASSERT_NE(dialog, nullptr);
    dialog->setTextValue("1+2+0.43");
    QTest::keyClick(dialog->findChild<QLineEdit*>(), Qt::Key_Return);
    const CurveRequest added{CurveKind::Harmonic, {1.0, 2.0, 0.43}};
    ASSERT_EQ(wanted.size(), 1U);
    EXPECT_EQ(lastWanted(), (Curves{Raw, added}));
    press(0, "1X, 2X, 0.43X", Qt::Key_Space);
    EXPECT_EQ(lastWanted(), Curves{Raw});
    press(0, "1X, 2X, 0.43X", Qt::Key_Delete);  // hidden already: nothing to undo
    EXPECT_EQ(wanted.size(), 2U);
    EXPECT_THROW(row(0, "1X, 2X, 0.43X"), std::logic_error);
}

/// Two planes that can be told apart, and the question for orders of the second.
class AskedChannelTree : public ChannelTreeTest {
protected:
    QInputDialog* askForOrdersOfTheSecond() {
        planes[0].identity = first_;
        planes[1].identity = second_;
        planes[1].hasTacho = true;
        tree.setPlanes(planes);
        press(1, "raw", Qt::Key_Insert);
        return tree.findChild<QInputDialog*>();
    }

private:
    std::shared_ptr<int> first_ = std::make_shared<int>(1);
    std::shared_ptr<int> second_ = std::make_shared<int>(2);
};

TEST_F(AskedChannelTree, OrdersGoToThePlaneTheyWereAskedForWhereverItStandsNow) {
    QInputDialog* const dialog = askForOrdersOfTheSecond();
    ASSERT_NE(dialog, nullptr);
    planes.erase(planes.begin());
    tree.setPlanes(planes);
    QSignalSpy spy(&tree, &ChannelTree::curvesWanted);
    dialog->setTextValue("3");
    dialog->accept();
    ASSERT_EQ(spy.count(), 1);
    EXPECT_EQ(spy[0][0].toULongLong(), 0U);
    EXPECT_EQ(lastWanted(), (Curves{Raw, {CurveKind::Harmonic, {3.0}}}));
}

TEST_F(AskedChannelTree, OrdersOfAPlaneThatIsGoneAreToldOfAndNotAdded) {
    QInputDialog* const dialog = askForOrdersOfTheSecond();
    ASSERT_NE(dialog, nullptr);
    planes.pop_back();
    tree.setPlanes(planes);
    QSignalSpy spy(&tree, &ChannelTree::failed);
    dialog->setTextValue("3");
    dialog->accept();
    ASSERT_EQ(spy.count(), 1);
    EXPECT_EQ(spy[0][0].toString(), "Bearing 2 is not open any more: no curve is added");
    EXPECT_TRUE(wanted.empty());
}

TEST_F(ChannelTreeTest, ReferenceIsShownUntilItIsRemoved) {
    tree.addReference(0, "/data/slow-roll.json");
    const CurveRequest reference{CurveKind::Reference, {}, "/data/slow-roll.json"};
    EXPECT_EQ(lastWanted(), (Curves{Raw, reference}));
    press(0, "reference slow-roll", Qt::Key_Delete);
    EXPECT_EQ(lastWanted(), Curves{Raw});
    EXPECT_THROW(row(0, "reference slow-roll"), std::logic_error);
}

TEST_F(ChannelTreeTest, RowsStayWithTheirPlaneWhenOthersComeAndGo) {
    tree.addReference(1, "/data/slow-roll.json");
    press(1, "reference slow-roll", Qt::Key_Space);  // hidden, but known
    planes.erase(planes.begin());
    tree.setPlanes(planes);
    EXPECT_EQ(row(0, "reference slow-roll").checkState(0), Qt::Unchecked);
    planes.push_back({.name = "Bearing 3", .file = "c.csv", .shown = {}});
    tree.setPlanes(planes);
    EXPECT_EQ(row(0, "reference slow-roll").checkState(0), Qt::Unchecked);
    EXPECT_THROW(row(1, "reference slow-roll"), std::logic_error);
}

TEST_F(ChannelTreeTest, UsualCurveIsHiddenAndNotRemoved) {
    press(0, "raw", Qt::Key_Delete);
    ASSERT_EQ(wanted.size(), 1U);
    EXPECT_EQ(wanted[0], Curves{});
    EXPECT_EQ(row(0, "raw").checkState(0), Qt::Unchecked);
}

TEST_F(ChannelTreeTest, OneCurveIsShownAlone) {
    press(0, "average", Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(lastWanted(), Curves{Average});
    const std::size_t before = wanted.size();
    press(0, "average", Qt::Key_Space, Qt::ControlModifier);  // which it is already
    press(1, "average", Qt::Key_Space, Qt::ControlModifier);  // which the second plane cannot be
    EXPECT_EQ(wanted.size(), before);
}

TEST_F(ChannelTreeTest, RestOfTheShaftIsAChoiceOfItsCentre) {
    std::vector<RestPosition> rests;
    QObject::connect(&tree, &ChannelTree::restWanted,
                     [&](std::size_t, RestPosition rest) { rests.push_back(rest); });
    press(0, "average", Qt::Key_B, Qt::ControlModifier);
    EXPECT_TRUE(rests.empty());
    press(0, "shaft centre", Qt::Key_B, Qt::ControlModifier);
    EXPECT_EQ(rests, std::vector{RestPosition::BottomOfClearance});
    planes[0].rest = RestPosition::BottomOfClearance;
    tree.setPlanes(planes);
    press(0, "shaft centre", Qt::Key_B, Qt::ControlModifier);
    EXPECT_EQ(rests, (std::vector{RestPosition::BottomOfClearance, RestPosition::Centre}));
}

TEST_F(ChannelTreeTest, TellsThePlaneOfTheSelection) {
    view.setCurrentItem(&row(1, "raw"));
    EXPECT_EQ(selected.back(), 1U);
    EXPECT_EQ(tree.selectedPlane(), 1U);
    tree.selectPlane(0);
    EXPECT_EQ(tree.selectedPlane(), 0U);
    EXPECT_EQ(selected.back(), 1U);  // the window knows
}

TEST_F(ChannelTreeTest, WrongOrdersAreToldOf) {
    const QSignalSpy failures(&tree, &ChannelTree::failed);
    for (const char* text : {"", "one", "0", "-1", "1+inf", "nan", "X1"})
        tree.addOrders(0, text);
    EXPECT_EQ(failures.count(), 7);
    EXPECT_TRUE(wanted.empty());
}

TEST(OrdersIn, TakesTheUsualSpellings) {
    EXPECT_EQ(ordersIn("1+2+0.43"), (std::vector{1.0, 2.0, 0.43}));
    EXPECT_EQ(ordersIn("1X, 2x; 3"), (std::vector{1.0, 2.0, 3.0}));
    EXPECT_FALSE(ordersIn(QString("1+").repeated(65)));
    EXPECT_EQ(ordersIn(QString("1+").repeated(64))->size(), 64U);
}

TEST_F(ChannelTreeTest, LooksItsPart) {
    press(0, "average", Qt::Key_Space);
    press(0, "1X", Qt::Key_Space);
    tree.addReference(0, "/data/slow-roll.json");
    screenshot(tree, "channel-tree");
}

}  // namespace
}  // namespace Rotavue::Workbench
