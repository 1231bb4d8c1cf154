#include "plugin/framework/host/host_error.h"

#include "host_kit/memory/memory_host.h"
#include "plugin/framework/host/data/host_app.h"
#include "plugin/framework/host/data/host_data.h"

#include <gtest/gtest.h>

namespace Meridax::Host {
namespace {

class StatusRule : public testing::TestWithParam<std::uint32_t> {};

class Success : public StatusRule {};

TEST_P(Success, RaisesNothing) {
    EXPECT_NO_THROW(raiseIfFailed(GetParam(), IHostApp::Identifier));
}

INSTANTIATE_TEST_SUITE_P(ZeroAndPositive, Success, testing::Values(0U, 1U, 0x7FFFFFFFU));

class Failure : public StatusRule {};

TEST_P(Failure, CarriesStatusAndInterface) {
    try {
        raiseIfFailed(GetParam(), IHostApp::Identifier);
        ADD_FAILURE() << "went on";
    } catch (const HostError& error) {
        EXPECT_EQ(error.status, GetParam());
        EXPECT_EQ(error.interfaceId, IHostApp::Identifier);
        EXPECT_EQ(error.details, nullptr);
    }
}

INSTANTIATE_TEST_SUITE_P(Negative, Failure, testing::Values(0x80000000U, 0x80004005U, 0xFFFFFFFFU));

TEST(HostError, CarriesTheDetailsThatAnObjectTold) {
    const auto details =
        std::make_shared<const ErrorDetails>(ErrorDetails{L"the host", L"the disk is full"});
    try {
        raiseIfFailed(Status::Unspecified, IHostApp::Identifier, details);
        ADD_FAILURE() << "went on";
    } catch (const HostError& error) {
        ASSERT_NE(error.details, nullptr);
        EXPECT_EQ(error.details->description, L"the disk is full");
    }
}

TEST(HostError, TellsWhatItIsToWhoKnowsNoHost) {
    const HostError error(Status::Unspecified);
    EXPECT_STREQ(static_cast<const std::exception&>(error).what(), "a call of the host failed");
}

TEST(HostError, NullObjectHasNoInterface) {
    try {
        raiseNullObject();
    } catch (const HostError& error) {
        EXPECT_EQ(error.status, 0x80004003U);
        EXPECT_EQ(error.interfaceId, Guid{});
    }
}

TEST(HostError, CallOfTheHostThatFailsRaisesItsStatusAndInterface) {
    ::Rotavue::HostKit::MemoryHost host;
    host.fail(::Rotavue::HostKit::operation("IHostApp.isAcquiring"));
    try {
        host.app()->isAcquiring();
        ADD_FAILURE() << "went on";
    } catch (const HostError& error) {
        EXPECT_EQ(error.status, 0x80004005U);
        EXPECT_EQ(error.interfaceId, IHostApp::Identifier);
    }
}

TEST(HostError, NullDataObjectRaisesInvalidPointer) {
    ::Rotavue::HostKit::MemoryHost host;
    host.gate.nullObject(1);
    try {
        host.app()->getData()->getBlockSize();
        ADD_FAILURE() << "went on";
    } catch (const HostError& error) {
        EXPECT_EQ(error.status, 0x80004003U);
        EXPECT_EQ(error.interfaceId, Guid{});
    }
}

}  // namespace
}  // namespace Meridax::Host
