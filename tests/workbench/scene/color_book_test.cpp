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

std::size_t added(ColorBook& book, const CurveRequest& request) {
    book.add(request);
    return book.numberOf(request);
}

TEST(ColorBook, TheCurvesOfEveryPlaneHaveAColourEachHoweverTheyCome) {
    const std::vector<CurveRequest> usual{
        Raw, Average, First, Second, {CurveKind::SubSync}, {CurveKind::ShaftCenter}};
    ColorBook forwards;
    ColorBook backwards;
    std::set<std::size_t> numbers;
    for (std::size_t i = 0; i < usual.size(); ++i) {
        numbers.insert(added(forwards, usual[i]));
        backwards.add(usual[usual.size() - 1 - i]);
    }
    EXPECT_EQ(numbers.size(), 6U);
    for (const CurveRequest& curve : usual)
        EXPECT_EQ(forwards.numberOf(curve), backwards.numberOf(curve));
}

// 2X has the number of orders above the first; 3X gets the first that nobody has, that of raw.
TEST(ColorBook, TwoCurvesOfAKindAreToldApart) {
    ColorBook book;
    const std::size_t second = added(book, Second);
    EXPECT_EQ(added(book, Third), 0U);
    EXPECT_NE(second, 0U);
}

TEST(ColorBook, ACurveKeepsItsNumberWhenTheOwnerOfThatComes) {
    ColorBook book;
    book.add(Second);
    book.add(Third);
    EXPECT_NE(added(book, Raw), 0U);
    EXPECT_EQ(added(book, Third), 0U);
}

TEST(ColorBook, ManyCurvesShareTheColoursEvenly) {
    ColorBook book;
    std::vector<int> users(6);
    for (int order = 1; order <= 12; ++order)
        ++users[added(book, {CurveKind::Harmonic, {order / 4.0}})];
    EXPECT_EQ(users, std::vector<int>(6, 2));  // 12 curves, 6 colours
}

}  // namespace
}  // namespace Rotavue::Workbench
