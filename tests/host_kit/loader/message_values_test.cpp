#include "host_kit/loader/message_values.h"

#include "host_kit/memory/memory_host.h"

#include <gtest/gtest.h>

#include <limits>

namespace Rotavue::HostKit {
namespace {

TEST(MessageList, ReadsANumberAtTheWidthThatIsAskedFor) {
    const MessageList list{std::int64_t{0x1'8001'02F3}};
    const auto copy = list.copy();
    EXPECT_EQ(copy->integerAt(0), static_cast<std::int32_t>(0x8001'02F3U));
    EXPECT_EQ(copy->wordAt(0), 0x02F3);
    EXPECT_EQ(copy->byteAt(0), 0xF3);
}

TEST(MessageList, GivesNothingWhereAnotherKindIsExpected) {
    MemoryHost host;
    const MessageList list{L"text", host.app(), 5, nullptr};
    const auto copy = list.copy();
    EXPECT_EQ(copy->integerAt(0), 0);
    EXPECT_EQ(copy->textAt(1), L"");
    EXPECT_FALSE(copy->objectAt(2));
    EXPECT_FALSE(copy->objectAt(3));
    EXPECT_EQ(copy->objectAt(1).offered<Host::IHostApp>(), host.app());
}

TEST(MessageList, CountsPositionsFromItsLowerBound) {
    const MessageList list(std::vector<MessageValue>{7, 8}, 1);
    const auto copy = list.copy();
    EXPECT_EQ(copy->lowerBound(), 1);
    EXPECT_EQ(copy->upperBound(), 2);
    EXPECT_EQ(copy->integerAt(1), 7);
    EXPECT_EQ(copy->integerAt(2), 8);
}

TEST(MessageList, HasItsUpperBoundBelowTheLowerOneWhenItIsEmpty) {
    EXPECT_EQ(MessageList({}).copy()->upperBound(), -1);
    EXPECT_EQ(MessageList(std::vector<MessageValue>{}, 3).copy()->upperBound(), 2);
}

TEST(MessageList, GivesNothingOutsideItsBounds) {
    constexpr std::int32_t Last = std::numeric_limits<std::int32_t>::max();
    const MessageList list(std::vector<MessageValue>{7}, Last);
    const auto copy = list.copy();
    EXPECT_EQ(copy->upperBound(), Last);
    EXPECT_EQ(copy->integerAt(Last), 7);
    EXPECT_EQ(copy->integerAt(Last - 1), 0);
    EXPECT_EQ(copy->integerAt(std::numeric_limits<std::int32_t>::min()), 0);
}

TEST(MessageAnswer, HoldsWhatWasWrittenLast) {
    MessageAnswer answer;
    EXPECT_EQ(answer.value(), MessageAnswer::Value());
    answer.putInteger16(-3);
    EXPECT_EQ(answer.value(), MessageAnswer::Value(std::int16_t{-3}));
    answer.putBoolean(true);
    EXPECT_EQ(answer.value(), MessageAnswer::Value(true));
    answer.setInteger(0, 1);
    EXPECT_EQ(answer.value(), MessageAnswer::Value(true));
    answer.putFourIntegers();
    answer.setInteger(3, 9);
    answer.setInteger(4, 1);
    EXPECT_EQ(answer.value(), MessageAnswer::Value(MessageAnswer::FourIntegers{0, 0, 0, 9}));
}

}  // namespace
}  // namespace Rotavue::HostKit
