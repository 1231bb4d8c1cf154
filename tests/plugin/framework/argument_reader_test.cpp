#include "plugin/framework/argument_reader.h"

#include "host_kit/memory/memory_host.h"
#include "tests/plugin/framework/doubles/list_arguments.h"

#include <gtest/gtest.h>

#include <functional>
#include <new>

namespace Meridax::VisualControls::Api {
namespace {

using ::Rotavue::HostKit::MemoryHost;

std::uint32_t thrownBy(const std::function<void()>& operation) {
    try {
        operation();
        return 0;
    } catch (const Host::HostError& error) {
        return error.status;
    }
}

TEST(ArgumentReader, NullListIsAnInvalidArgument) {
    EXPECT_EQ(thrownBy([] { const ArgumentReader reader(nullptr); }), 0x80070057U);
}

TEST(ArgumentReader, FailedCopyPassesWithItsOwnStatus) {
    ListArguments list{number(1)};
    list.copyFailure = 0x80020005;
    EXPECT_EQ(thrownBy([&] { const ArgumentReader reader(&list); }), 0x80020005U);
}

TEST(ArgumentReader, CopyThatTurnedOutNullFailsWhereAnElementIsWanted) {
    ListArguments list{number(1)};
    list.copyIsNull = true;
    const ArgumentReader reader(&list);
    EXPECT_EQ(thrownBy([&] { reader.integer(0); }), 0x80004005U);
}

TEST(ArgumentReader, CopiesTheListOnceAndDiscardsTheCopy) {
    const ListArguments list{number(1), number(2)};
    {
        const ArgumentReader reader(&list);
        EXPECT_EQ(reader.integer(0) + reader.integer(1), 3);
        EXPECT_EQ(list.living, 1);
    }
    EXPECT_EQ(list.copies, 1);
    EXPECT_EQ(list.living, 0);
}

TEST(ArgumentReader, ReadsItsOwnCopyWhateverBecomesOfTheList) {
    ListArguments list{number(1)};
    const ArgumentReader reader(&list);
    list.elements[0] = number(2);
    EXPECT_EQ(reader.integer(0), 1);
}

TEST(ArgumentReader, EmptyListHasNoElement) {
    const ListArguments list{};
    const ArgumentReader reader(&list);
    EXPECT_EQ(thrownBy([&] { reader.integer(0); }), 0x80070057U);
}

TEST(ArgumentReader, PositionAboveTheUpperBoundIsRefused) {
    const ListArguments list{number(1), number(2)};
    const ArgumentReader reader(&list);
    EXPECT_EQ(reader.integer(1), 2);
    EXPECT_EQ(thrownBy([&] { reader.integer(2); }), 0x80070057U);
}

TEST(ArgumentReader, PositionBelowTheLowerBoundIsRefused) {
    ListArguments list{number(10), number(20)};
    list.lowerBound = 1;
    const ArgumentReader reader(&list);
    EXPECT_EQ(thrownBy([&] { reader.integer(0); }), 0x80070057U);
    EXPECT_EQ(reader.integer(1), 10);
    EXPECT_EQ(reader.integer(2), 20);
    EXPECT_EQ(thrownBy([&] { reader.integer(3); }), 0x80070057U);
}

TEST(ArgumentReader, NegativeLowerBoundAdmitsNegativePositionsOnly) {
    ListArguments list{number(10)};
    list.lowerBound = -1;
    const ArgumentReader reader(&list);
    EXPECT_EQ(reader.integer(-1), 10);
    EXPECT_EQ(thrownBy([&] { reader.integer(0); }), 0x80070057U);
}

TEST(ArgumentReader, BoundsAreTestedAfreshForEveryElement) {
    ListArguments list{number(10), number(20)};
    const ArgumentReader reader(&list);
    EXPECT_EQ(reader.integer(0), 10);
    list.lowerBound = 1;
    EXPECT_EQ(thrownBy([&] { reader.integer(0); }), 0x80070057U);
}

TEST(ArgumentReader, NumbersAreCutToTheirWidth) {
    const ListArguments list{number(0x1'8000'01FF)};
    const ArgumentReader reader(&list);
    EXPECT_EQ(reader.integer(0), static_cast<std::int32_t>(0x800001FFU));
    EXPECT_EQ(reader.word(0), 0x01FF);
    EXPECT_EQ(reader.byte(0), 0xFF);
}

TEST(ArgumentReader, KindOfAnElementIsNotLookedAt) {
    const ListArguments list{Argument(std::wstring(L"text"))};
    const ArgumentReader reader(&list);
    EXPECT_EQ(reader.integer(0), 0);
    EXPECT_FALSE(reader.anyObject(0));
    EXPECT_EQ(ArgumentReader(&list).text(0), L"text");
}

TEST(ArgumentReader, TextThatCannotBeCopiedIsOutOfMemory) {
    ListArguments list{Argument(std::wstring(L"text"))};
    list.onText = [] { throw std::bad_alloc(); };
    const ArgumentReader reader(&list);
    EXPECT_EQ(thrownBy([&] { reader.text(0); }), 0x8007000EU);
}

TEST(ArgumentReader, ObjectIsAskedForTheInterfaceThatIsWanted) {
    MemoryHost host;
    const ListArguments list{object(host.app())};
    const ArgumentReader reader(&list);
    EXPECT_EQ(reader.object<Host::IHostApp>(0), host.app());
}

TEST(ArgumentReader, RefusedInterfaceCountsAsNull) {
    MemoryHost host;
    const ListArguments list{object(host.app())};
    const ArgumentReader reader(&list);
    EXPECT_FALSE(reader.object<Host::IHostCanvas>(0));
    EXPECT_TRUE(reader.anyObject(0));
}

TEST(ArgumentReader, NullObjectStaysNull) {
    const ListArguments list{nullObject()};
    EXPECT_FALSE(ArgumentReader(&list).object<Host::IHostApp>(0));
}

TEST(ArgumentReader, ObjectIsHeldByTheCopyAndByWhoeverFetchesIt) {
    MemoryHost host;
    ListArguments list{object(host.app())};
    const ArgumentReader reader(&list);
    EXPECT_EQ(host.references(), 2);  // the host's list and the copy
    const auto app = reader.object<Host::IHostApp>(0);
    EXPECT_EQ(host.references(), 3);
}

struct Word {
    std::uint16_t word;
    ShiftState flags;
};

class ShiftWords : public testing::TestWithParam<Word> {};

TEST_P(ShiftWords, GiveTheFlagsOfTheirLowSevenBits) {
    const ListArguments list{number(GetParam().word)};
    EXPECT_EQ(ArgumentReader(&list).shiftState(0), GetParam().flags);
}

INSTANTIATE_TEST_SUITE_P(
    Bits, ShiftWords,
    testing::Values(Word{0x0000, {}}, Word{0x0001, {.flag0 = true}}, Word{0x0002, {.flag1 = true}},
                    Word{0x0004, {.flag2 = true}}, Word{0x0008, {.flag3 = true}},
                    Word{0x0010, {.flag4 = true}}, Word{0x0020, {.flag5 = true}},
                    Word{0x0040, {.flag6 = true}}, Word{0x0080, {}}, Word{0xFF80, {}},
                    Word{0xFFFF, {true, true, true, true, true, true, true}}));

TEST(ShiftState, DiffersByEachOfItsFlags) {
    for (unsigned bit = 0; bit < 7; ++bit)
        EXPECT_NE(ShiftState::fromWord(static_cast<std::uint16_t>(1U << bit)), ShiftState{}) << bit;
}

}  // namespace
}  // namespace Meridax::VisualControls::Api
