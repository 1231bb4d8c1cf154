#include "workbench/scene/color_book.h"

#include <gtest/gtest.h>

#include <set>

namespace Rotavue::Workbench {
namespace {

const CurveRequest Raw{CurveKind::Raw};
const CurveRequest Average{CurveKind::Average};
const CurveRequest First{CurveKind::Harmonic, {1.0}};
const CurveRequest Second{CurveKind::Harmonic, {2.0}};
const CurveRequest Third{CurveKind::Harmonic, {3.0}};

CurveRequest ofOrder(double order) {
    return {CurveKind::Harmonic, {order}};
}

TEST(ColorBook, TheCurvesOfEveryPlaneHaveAColourEachHoweverTheyCome) {
    const std::vector<CurveRequest> usual{Raw,
                                          {CurveKind::ByAngle},
                                          Average,
                                          First,
                                          Second,
                                          {CurveKind::NotFirst},
                                          {CurveKind::SubSync},
                                          {CurveKind::ShaftCenter}};
    ColorBook forwards;
    ColorBook backwards;
    forwards.show(usual);
    backwards.show({usual.rbegin(), usual.rend()});
    std::set<std::size_t> numbers;
    for (const CurveRequest& curve : usual)
        numbers.insert(forwards.numberOf(curve));
    EXPECT_EQ(numbers.size(), 8U);
    for (const CurveRequest& curve : usual)
        EXPECT_EQ(forwards.numberOf(curve), backwards.numberOf(curve));
}

// 2X has the number of orders above the first; 3X gets the first that nobody has, that of raw.
TEST(ColorBook, TwoCurvesOfAKindAreToldApart) {
    ColorBook book;
    book.show({Second, Third});
    EXPECT_EQ(book.numberOf(Third), 0U);
    EXPECT_NE(book.numberOf(Second), 0U);
}

TEST(ColorBook, ACurveKeepsItsNumberWhenTheOwnerOfThatComes) {
    ColorBook book;
    book.show({Second, Third});
    book.show({Raw, Second, Third});
    EXPECT_NE(book.numberOf(Raw), 0U);
    EXPECT_EQ(book.numberOf(Third), 0U);
}

TEST(ColorBook, ManyCurvesShareTheColoursEvenly) {
    ColorBook book;
    std::vector<CurveRequest> curves;
    for (int order = 1; order <= 16; ++order)
        curves.push_back(ofOrder(order / 4.0));
    book.show(curves);
    std::vector<int> users(8);
    for (const CurveRequest& curve : curves)
        ++users[book.numberOf(curve)];
    EXPECT_EQ(users, std::vector<int>(8, 2));  // 16 curves, 8 colours
}

// Raw has 0 and 3X to 9X would use up the other seven, were theirs not free again.
TEST(ColorBook, TheColourOfACurveThatHasGoneIsFree) {
    ColorBook book;
    for (int order = 3; order <= 9; ++order) {
        book.show({Raw, ofOrder(order)});
        book.show({Raw});
    }
    book.show({Raw, ofOrder(10)});
    EXPECT_EQ(book.numberOf(Raw), 0U);
    EXPECT_NE(book.numberOf(ofOrder(10)), 0U);
}

// 3 is the number of both, and 0 the first free one: second's for as long as the third is shown.
TEST(ColorBook, ACurveThatComesBackHasItsOwnColourUnlessThatIsTaken) {
    ColorBook book;
    book.show({Second, Third});
    book.show({Second});
    book.show({Second, Average});
    book.show({Second, Average, Third});
    EXPECT_EQ(book.numberOf(Third), 0U);
    book.show({Second, Average});
    book.show({Second, Average, Raw});
    book.show({Second, Average, Raw, Third});
    EXPECT_EQ(book.numberOf(Raw), 0U);
    EXPECT_EQ(std::set({book.numberOf(Second), book.numberOf(Average), book.numberOf(Raw),
                        book.numberOf(Third)})
                  .size(),
              4U);
}

// Ticked the other way round than they are listed: the reference has come first.
TEST(ColorBook, RestoredNumbersDoNotDependOnTheOrder) {
    const CurveRequest reference{CurveKind::Reference, {}, "as-new.json"};
    ColorBook before;
    before.show({reference});
    before.show({Second, reference});
    ColorBook after;
    after.restore({Second, reference}, {before.numberOf(Second), before.numberOf(reference)});
    after.show({Second, reference});
    EXPECT_EQ(after.numberOf(reference), 3U);
    EXPECT_EQ(after.numberOf(Second), before.numberOf(Second));
}

}  // namespace
}  // namespace Rotavue::Workbench
