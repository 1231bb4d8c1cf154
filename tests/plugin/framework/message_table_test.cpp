#include "plugin/framework/message_table.h"

#include "tests/plugin/framework/doubles/bridge_fixture.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

/// What each code does to the control and what it gives back.
namespace Meridax::VisualControls::Api {
namespace {

using Calls = std::vector<std::string>;

class UnservedCode : public BridgeFixture, public testing::WithParamInterface<std::uint32_t> {};

TEST_P(UnservedCode, AnswersZeroAndTouchesNothing) {
    EXPECT_EQ(plugin->message(GetParam(), nullptr, &result), 0);
    EXPECT_EQ(result.text, "none");
    EXPECT_EQ(record.calls, Calls{});
}

INSTANTIATE_TEST_SUITE_P(InTheTable, UnservedCode,
                         testing::Values(1U, 4U, 5U, 13U, 14U, 15U, 16U, 17U, 19U, 20U, 21U, 22U,
                                         23U, 27U, 28U, 32U, 38U, 39U, 40U, 41U, 43U, 44U));
INSTANTIATE_TEST_SUITE_P(AboveTheTable, UnservedCode,
                         testing::Values(46U, 47U, 0x7FFFFFFFU, 0xFFFFFFFFU));

/// A message, and what it is known to do.
struct Exchange {
    std::uint32_t code;
    std::vector<Argument> arguments;
    std::string call;
    std::string result = "none";
};

class ServedCode : public BridgeFixture, public testing::WithParamInterface<Exchange> {};

TEST_P(ServedCode, ReachesItsOperationWithItsArguments) {
    ListArguments arguments{};
    arguments.elements = GetParam().arguments;
    EXPECT_EQ(plugin->message(GetParam().code, &arguments, &result), 0);
    EXPECT_EQ(record.calls, Calls{GetParam().call});
    EXPECT_EQ(result.text, GetParam().result);
}

TEST_P(ServedCode, CopiesItsListOnceAndDiscardsTheCopy) {
    ListArguments arguments{};
    arguments.elements = GetParam().arguments;
    record.during = [&] { EXPECT_EQ(arguments.living, arguments.copies); };
    send(MessageCode{GetParam().code}, arguments);
    EXPECT_EQ(arguments.copies, GetParam().arguments.empty() ? 0 : 1);
    EXPECT_EQ(arguments.living, 0);
}

Argument text(const wchar_t* characters) {
    return std::wstring(characters);
}

INSTANTIATE_TEST_SUITE_P(
    Pointer, ServedCode,
    testing::Values(
        Exchange{8, {number(4), number(10), number(-20)}, "onMouseWheel 0010000 10 -20 true"},
        Exchange{9, {number(4), number(10), number(-20)}, "onMouseWheel 0010000 10 -20 false"},
        Exchange{8, {number(0x80), number(1), number(2)}, "onMouseWheel 0000000 1 2 true"},
        Exchange{9, {number(0x80), number(1), number(2)}, "onMouseWheel 0000000 1 2 false"},
        Exchange{10, {number(2), number(1), number(3), number(4)}, "onMouseUp 2 1000000 3 4"},
        Exchange{
            11, {number(255), number(127), number(3), number(4)}, "onMouseDown 255 1111111 3 4"},
        Exchange{12, {number(2), number(3), number(4)}, "onMouseMove 0100000 3 4"},
        Exchange{25, {}, "onMouseEnter"}, Exchange{26, {}, "onMouseLeave"}));

INSTANTIATE_TEST_SUITE_P(
    Others, ServedCode,
    testing::Values(Exchange{6, {}, "requestData", "four 0 0 0 0"}, Exchange{18, {}, "onClose"},
                    Exchange{30, {}, "canCopyToClipboard", "false"},
                    Exchange{45, {number(3)}, "onChannelsChanged 3"},
                    Exchange{3, {nullObject()}, "acceptsChannel null", "true"},
                    Exchange{24, {nullObject()}, "acceptsGroup null", "true"},
                    Exchange{29, {nullObject()}, "onGroupChanged null"},
                    Exchange{34, {nullObject()}, "buildProperties null"},
                    Exchange{35, {nullObject()}, "fillProperties null"},
                    Exchange{36, {text(L"TickCount"), nullObject()}, "readProperty TickCount null"},
                    Exchange{
                        37, {text(L"T"), nullObject(), number(-1)}, "onPropertyEvent T -1 null"}));

class MessageTable : public BridgeFixture {};

TEST_F(MessageTable, InterfaceQueryAnswersOneWithoutTouchingTheControl) {
    EXPECT_EQ(send(MessageCode::InterfaceQuery), 0);
    EXPECT_EQ(result.text, "integer 1");
    EXPECT_EQ(record.calls, Calls{});
}

TEST_F(MessageTable, RefusedQueryAnswersStatusOneAndTouchesNothing) {
    EXPECT_EQ(send(MessageCode::RefusedQuery), 1);
    EXPECT_EQ(result.text, "none");
    EXPECT_EQ(record.calls, Calls{});
}

TEST_F(MessageTable, ChecksGiveTheAnswerOfTheControl) {
    record.accepts = false;
    send(MessageCode::ChannelCheck, {nullObject()});
    EXPECT_EQ(result.text, "false");
    record.accepts = true;
    send(MessageCode::GroupCheck, {nullObject()});
    EXPECT_EQ(result.text, "true");
    record.canCopy = true;
    send(MessageCode::CanCopy);
    EXPECT_EQ(result.text, "true");
}

TEST_F(MessageTable, DataWindowGivesBlockAndOffsetOfBothPositions) {
    record.first = {1, -2};
    record.second = {3, std::numeric_limits<std::int32_t>::max()};
    send(MessageCode::DataWindow);
    EXPECT_EQ(result.text, "four 1 -2 3 2147483647");
}

TEST_F(MessageTable, DataWindowHasItsListBeforeTheControlIsAsked) {
    record.during = [this] { EXPECT_EQ(result.text, "four 0 0 0 0"); };
    send(MessageCode::DataWindow);
    EXPECT_EQ(record.calls, Calls{"requestData"});
}

TEST_F(MessageTable, FailedDataWindowLeavesFourZeros) {
    record.during = [] { Host::raiseNullObject(); };
    EXPECT_EQ(thrownBy(MessageCode::DataWindow, nullptr), 0x80004003U);
    EXPECT_EQ(result.text, "four 0 0 0 0");
}

TEST_F(MessageTable, ResultMayBeNull) {
    const ListArguments arguments{nullObject()};
    for (const std::uint32_t code : {0U, 3U, 6U, 24U, 30U})
        EXPECT_EQ(plugin->message(code, &arguments, nullptr), 0);
}

class MessageWithoutArguments : public BridgeFixture,
                                public testing::WithParamInterface<std::uint32_t> {};

TEST_P(MessageWithoutArguments, IgnoresTheListEntirely) {
    ListArguments arguments{};
    arguments.copyFailure = 0x80004005;
    EXPECT_NO_THROW(plugin->message(GetParam(), &arguments, &result));
    EXPECT_EQ(arguments.copies, 0);
}

INSTANTIATE_TEST_SUITE_P(Codes, MessageWithoutArguments,
                         testing::Values(0U, 6U, 7U, 18U, 25U, 26U, 30U, 31U));

class MessageWithArguments : public BridgeFixture,
                             public testing::WithParamInterface<std::uint32_t> {
protected:
    std::uint32_t thrown(const MessageArguments* arguments) {
        return thrownBy(MessageCode{GetParam()}, arguments);
    }
};

TEST_P(MessageWithArguments, RefusesANullList) {
    EXPECT_EQ(thrown(nullptr), 0x80070057U);
    EXPECT_EQ(record.calls, Calls{});
}

TEST_P(MessageWithArguments, RefusesAListWithoutElements) {
    const ListArguments arguments{};
    EXPECT_EQ(thrown(&arguments), 0x80070057U);
    EXPECT_EQ(record.calls, Calls{});
}

TEST_P(MessageWithArguments, RefusesAListThatBeginsAtOne) {
    ListArguments arguments{nullObject(), number(0), number(0), number(0), number(0),
                            number(0),    number(0), number(0), number(0)};
    arguments.lowerBound = 1;
    EXPECT_EQ(thrown(&arguments), 0x80070057U);
    EXPECT_EQ(arguments.fetched, std::vector<std::int32_t>{});
    EXPECT_EQ(arguments.living, 0);
}

TEST_P(MessageWithArguments, FailsWhereTheCopyTurnedOutNull) {
    ListArguments arguments{};
    arguments.copyIsNull = true;
    EXPECT_EQ(thrown(&arguments), 0x80004005U);
}

TEST_P(MessageWithArguments, PassesTheStatusOfAFailedCopy) {
    ListArguments arguments{};
    arguments.copyFailure = 0x8007000E;
    EXPECT_EQ(thrown(&arguments), 0x8007000EU);
}

INSTANTIATE_TEST_SUITE_P(Codes, MessageWithArguments,
                         testing::Values(2U, 3U, 8U, 9U, 10U, 11U, 12U, 24U, 29U, 33U, 34U, 35U,
                                         36U, 37U, 42U, 45U));

struct ArgumentCount {
    std::uint32_t code;
    std::vector<std::int32_t> positions;  ///< in the order in which they are fetched
};

class ShortList : public BridgeFixture, public testing::WithParamInterface<ArgumentCount> {};

TEST_P(ShortList, FailsAtTheFirstMissingElementInRisingOrder) {
    const std::vector<std::int32_t>& positions = GetParam().positions;
    for (std::size_t missing = 0; missing < positions.size(); ++missing) {
        ListArguments arguments{};
        arguments.elements.assign(static_cast<std::size_t>(positions[missing]), number(0));
        EXPECT_EQ(thrownBy(MessageCode{GetParam().code}, &arguments), 0x80070057U);
        EXPECT_EQ(arguments.fetched,
                  std::vector<std::int32_t>(
                      positions.begin(), positions.begin() + static_cast<std::ptrdiff_t>(missing)));
    }
    EXPECT_EQ(record.calls, Calls{});
}

INSTANTIATE_TEST_SUITE_P(
    Codes, ShortList,
    testing::Values(ArgumentCount{3, {0}}, ArgumentCount{8, {0, 1, 2}}, ArgumentCount{9, {0, 1, 2}},
                    ArgumentCount{10, {0, 1, 2, 3}}, ArgumentCount{11, {0, 1, 2, 3}},
                    ArgumentCount{12, {0, 1, 2}}, ArgumentCount{24, {0}}, ArgumentCount{29, {0}},
                    ArgumentCount{33, {0, 1, 2}}, ArgumentCount{34, {0}}, ArgumentCount{35, {0}},
                    ArgumentCount{36, {0, 1}}, ArgumentCount{37, {0, 1, 2}},
                    ArgumentCount{42, {0, 1, 2, 3, 4, 7}}, ArgumentCount{45, {0}}));

class ObjectMessage : public BridgeFixture {};

TEST_F(ObjectMessage, OperationOwnsAReferenceBesideTheBridges) {
    const auto channel = host.channel("orbit");
    const ListArguments arguments{object(channel)};
    record.during = [this] {
        record.lastObject = nullptr;
        // The test, the host's list, the bridge's copy of it, the bridge, the operation.
        EXPECT_EQ(host.references(), 5);
    };
    send(MessageCode::ChannelCheck, arguments);
    EXPECT_EQ(host.references(), 2);
}

TEST_F(ObjectMessage, ObjectOfAnotherKindCountsAsNull) {
    send(MessageCode::ChannelCheck, {object(host.app())});
    send(MessageCode::BuildProperties, {object(host.app())});
    send(MessageCode::ReadProperty, {std::wstring(L"x"), object(host.app())});
    EXPECT_EQ(record.calls,
              (Calls{"acceptsChannel null", "buildProperties null", "readProperty x null"}));
}

TEST_F(ObjectMessage, AnyObjectIsPassedOnAsItIs) {
    send(MessageCode::GroupChanged, {object(host.app())});
    send(MessageCode::GroupCheck, {object(host.group(0))});
    EXPECT_EQ(record.calls, (Calls{"onGroupChanged object", "acceptsGroup object"}));
}

TEST_F(ObjectMessage, CopyOfTheListIsDiscardedWhenTheOperationFails) {
    const ListArguments arguments{object(host.channel("orbit"))};
    record.during = [this] {
        record.lastObject = nullptr;
        Host::raiseNullObject();
    };
    EXPECT_EQ(thrownBy(MessageCode::ChannelCheck, &arguments), 0x80004003U);
    EXPECT_EQ(arguments.living, 0);
    EXPECT_EQ(host.references(), 1);
}

}  // namespace
}  // namespace Meridax::VisualControls::Api
