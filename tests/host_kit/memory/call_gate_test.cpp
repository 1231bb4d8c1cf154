#include "host_kit/memory/call_gate.h"

#include "host_kit/memory/memory_host.h"
#include "tests/host_kit/memory/every_operation.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace Rotavue::HostKit {
namespace {

/// Remembers which operations were called, and with what outcome.
struct Witness : CallWatcher {
    void onCall(Operation operation) override { begun.push_back(operation); }
    void onReturn(const Call& call) override { ended.push_back(call); }

    std::vector<Operation> begun;
    std::vector<Call> ended;
};

std::size_t timesIn(const std::vector<Call>& calls, Operation operation) {
    return static_cast<std::size_t>(std::count_if(
        calls.begin(), calls.end(), [&](const Call& call) { return call.operation == operation; }));
}

TEST(OperationTable, IsWhatTheListOfCallsCovers) {
    ASSERT_EQ(everyOperation().size(), OperationCount);
    for (std::size_t i = 0; i < OperationCount; ++i)
        EXPECT_EQ(everyOperation()[i].name, OperationTable[i].name);
}

TEST(OperationTable, NamesOneOfTheTwentyEightInterfacesInEachRow) {
    for (std::size_t i = 0; i < OperationCount; ++i) {
        const auto operation = static_cast<Operation>(i);
        EXPECT_EQ(interfaceName(interfaceOf(operation)), interfaceNameOf(operation));
    }
    EXPECT_EQ(interfaceName(Host::guid("{264200AB-CDA2-4257-932E-FD19E014BD0C}")), std::nullopt);
}

class EachOperation : public testing::TestWithParam<OperationCall> {
protected:
    EachOperation() { describeEverything(host_.description); }

    MemoryHost host_;
    Operation operation_ = findOperation(GetParam().name).value();
};

TEST_P(EachOperation, IsReportedOnceWithAResultWhereItHasOne) {
    Witness witness;
    host_.gate.watch(&witness, allGroups());
    GetParam().call(host_);
    EXPECT_EQ(timesIn(witness.ended, operation_), 1U);
    EXPECT_EQ(witness.begun.size(), witness.ended.size());
    EXPECT_EQ(witness.ended.back().operation, operation_);
    EXPECT_EQ(witness.ended.back().failed, std::nullopt);
    const bool givesObject = rowOf(operation_).answer == Answer::Object;
    EXPECT_TRUE(!givesObject || witness.ended.back().result);
}

TEST_P(EachOperation, FailsWithTheIdentifierOfItsInterfaceAndLeavesNothingHeld) {
    Witness witness;
    host_.gate.watch(&witness, allGroups());
    host_.fail(operation_, 1, Host::Status::OutOfMemory);
    try {
        GetParam().call(host_);
        FAIL() << "did not fail";
    } catch (const Host::HostError& error) {
        EXPECT_EQ(error.status, Host::Status::OutOfMemory);
        EXPECT_EQ(error.interfaceId, interfaceOf(operation_));
    }
    EXPECT_EQ(witness.ended.back().failed, Host::Status::OutOfMemory);
    EXPECT_EQ(witness.ended.back().result, std::nullopt);
    EXPECT_EQ(host_.references(), 0);
}

TEST_P(EachOperation, AnswersNullWhenItIsToldToAndGivesAnObject) {
    if (rowOf(operation_).answer != Answer::Object) return;
    Witness witness;
    host_.gate.watch(&witness, allGroups());
    host_.gate.setNulls(Operations{}.set(indexOf(operation_)));
    GetParam().call(host_);
    EXPECT_EQ(witness.ended.back().result, CallValue{});
}

std::string nameOfOperation(const testing::TestParamInfo<OperationCall>& info) {
    std::string name = info.param.name;
    name.replace(name.find('.'), 1, "_");
    return name;
}

INSTANTIATE_TEST_SUITE_P(OfTheHost, EachOperation, testing::ValuesIn(everyOperation()),
                         nameOfOperation);

TEST(CallGate, DoesNothingOfItsPartWhereItFailsOrAnswersNull) {
    MemoryHost host;
    host.fail(operation("IHostFont.SetHeight"));
    EXPECT_THROW(host.canvas()->GetFont()->SetHeight(99), Host::HostError);
    EXPECT_EQ(host.description.canvas.fontHeight, 16);
    host.gate.setNulls(Operations{}.set(indexOf(operation("IHostPropertyPanel.AddPage"))));
    EXPECT_FALSE(host.panel()->AddPage(L"p"));
    EXPECT_FALSE(host.panel()->GetPage(L"p"));
}

TEST(CallGate, CountsTheCallsOfTheOneOperationOnly) {
    MemoryHost host;
    host.fail(operation("IHostChannel.getValue"), 3);
    const auto channel = host.channel("a");
    channel->getValue(0, 0);
    channel->getSampleRate();
    channel->getValue(0, 0);
    channel->getSampleRate();
    EXPECT_THROW(channel->getValue(0, 0), Host::HostError);
    EXPECT_NO_THROW(channel->getValue(0, 0));
}

TEST(CallGate, KeepsSeveralFaultsOfOneOperationApart) {
    MemoryHost host;
    host.fail(operation("IHostApp.isAcquiring"), 1, 0x80000001);
    host.fail(operation("IHostApp.isAcquiring"), 1, 0x80000002);
    host.fail(operation("IHostApp.isAcquiring"), 2, 0x80000003);
    const auto statusOfCall = [&]() -> std::uint32_t {
        try {
            host.app()->isAcquiring();
            return 0;
        } catch (const Host::HostError& error) {
            return error.status;
        }
    };
    EXPECT_EQ(statusOfCall(), 0x80000001U);
    EXPECT_EQ(statusOfCall(), 0x80000003U);
    EXPECT_EQ(statusOfCall(), 0U);
}

TEST(CallGate, FailsTheNthCallOfWhateverOperation) {
    MemoryHost host;
    host.gate.fail({std::nullopt, 2, Host::Status::Unspecified});
    host.app()->isAcquiring();
    EXPECT_THROW(host.canvas()->MoveTo(0, 0), Host::HostError);
    EXPECT_NO_THROW(host.canvas()->MoveTo(0, 0));
}

TEST(CallGate, TurnsTheNthObjectIntoNull) {
    MemoryHost host;
    host.gate.nullObject(2);
    EXPECT_TRUE(host.app()->getData());
    EXPECT_TRUE(host.app()->isAcquiring());
    EXPECT_FALSE(host.canvas()->GetPen());
    EXPECT_TRUE(host.canvas()->GetPen());
}

TEST(CallGate, TakesASuccessfulStatusForNoFailure) {
    MemoryHost host;
    host.fail(operation("IHostApp.isAcquiring"), 1, Host::Status::No);
    EXPECT_TRUE(host.app()->isAcquiring());
}

TEST(CallGate, HandsOutTheDetailsThatAFaultHas) {
    MemoryHost host;
    const auto details =
        std::make_shared<Host::ErrorDetails>(Host::ErrorDetails{L"host", L"disk gone"});
    host.gate.fail({operation("IHostApp.getData"), 1, Host::Status::Unspecified, details});
    try {
        host.app()->getData();
        FAIL() << "did not fail";
    } catch (const Host::HostError& error) {
        ASSERT_TRUE(error.details);
        EXPECT_EQ(error.details->description, L"disk gone");
    }
}

TEST(CallGate, LetsAWatcherChangeTheHostBetweenTwoCalls) {
    struct Changer : CallWatcher {
        explicit Changer(MemoryHost& changed) : host(changed) {}
        void onCall(Operation) override { host.description.channels["a"].values[0] = {++count}; }

        MemoryHost& host;
        double count = 0.0;
    };
    MemoryHost host;
    Changer changer(host);
    host.gate.watch(&changer, allGroups());
    EXPECT_EQ(host.channel("a")->getValue(0, 0), 1.0);
    EXPECT_EQ(host.channel("a")->getValue(0, 0), 2.0);
    host.gate.watch(nullptr, {});
    EXPECT_EQ(host.channel("a")->getValue(0, 0), 2.0);
}

TEST(CallGate, ReportsACallWithinACallFirst) {
    struct Nesting : CallWatcher {
        explicit Nesting(MemoryHost& called) : host(called) {}
        void onCall(Operation called) override {
            if (called == operation("IHostVisualControl.invalidate")) host.app()->isAcquiring();
        }
        void onReturn(const Call& call) override { lines.push_back(toText(call)); }

        MemoryHost& host;
        std::vector<std::string> lines;
    };
    MemoryHost host;
    Nesting nesting(host);
    host.gate.watch(&nesting, allGroups());
    host.control()->invalidate();
    EXPECT_EQ(nesting.lines, (std::vector<std::string>{"IHostApp.isAcquiring() -> true",
                                                       "IHostVisualControl.invalidate()"}));
}

}  // namespace
}  // namespace Rotavue::HostKit
