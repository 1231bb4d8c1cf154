#include "tests/plugin/module/windows/doubles/raw_object.h"

#include <gtest/gtest.h>

/// What becomes of the status of a host's call.
namespace Meridax::Host::Binary {
namespace {

TEST(CallFailure, StatusOneIsSuccessAndTheResultIsTakenAsItStands) {
    RawObject object;
    object.put<&IHostData::getBlockSize>([](IDispatch*, LONG* size) -> HRESULT {
        *size = 42;
        return 1;
    });
    EXPECT_EQ(object.proxy<IHostData>()->getBlockSize(), 42);
}

TEST(CallFailure, NegativeStatusRaisesItWithTheInterface) {
    RawObject object;
    object.put<&IHostData::getBlockSize>([](IDispatch*, LONG*) -> HRESULT { return E_FAIL; });
    const HostError failure = failureOf([&] { object.proxy<IHostData>()->getBlockSize(); });
    EXPECT_EQ(failure.status, 0x80004005U);
    EXPECT_EQ(failure.interfaceId, IHostData::Identifier);
}

TEST(CallFailure, NullObjectWhereOneIsNeededHasNoInterface) {
    RawObject object;
    object.put<&IHostApp::getData>([](IDispatch*, IDispatch**) -> HRESULT { return S_OK; });
    const HostError failure =
        failureOf([&] { object.proxy<IHostApp>()->getData()->getBlockSize(); });
    EXPECT_EQ(failure.status, 0x80004003U);
    EXPECT_EQ(failure.interfaceId, Guid{});
}

HRESULT failWithDetails(IDispatch*, LONG*) {
    ComRef<ICreateErrorInfo> made;
    ::CreateErrorInfo(made.put());
    made->SetSource(const_cast<wchar_t*>(L"recorder"));
    made->SetDescription(const_cast<wchar_t*>(L"no disk"));
    const auto told = queried<IErrorInfo>(made.get(), IID_IErrorInfo);
    ::SetErrorInfo(0, told.get());
    return E_FAIL;
}

/// Whether the details that `failWithDetails` left are still there for another caller; takes them.
bool areDetailsLeft() {
    ComRef<IErrorInfo> left;
    return ::GetErrorInfo(0, left.put()) == S_OK && left;
}

/// An object that answers whether it tells of failures: slot 3 of `ISupportErrorInfo`.
HostError failureOfObjectThat(HRESULT tells) {
    static HRESULT answer = S_OK;
    answer = tells;
    RawObject object;
    object.put<&IHostData::getBlockSize>(failWithDetails);
    object.putAt(3, entryOf(+[](IDispatch*, REFIID wanted) -> HRESULT {
                     return guidOf(wanted) == IHostData::Identifier ? answer : S_FALSE;
                 }));
    const auto data = object.proxy<IHostData>();
    const HostError failure = failureOf([&] { data->getBlockSize(); });
    EXPECT_EQ(object.references, 1U);
    return failure;
}

TEST(CallFailure, DetailsTravelWhereTheObjectConfirmsTheInterface) {
    const HostError failure = failureOfObjectThat(S_OK);
    ASSERT_NE(failure.details, nullptr);
    EXPECT_EQ(failure.details->source, L"recorder");
    EXPECT_EQ(failure.details->description, L"no disk");
    EXPECT_FALSE(areDetailsLeft());
}

TEST(CallFailure, DetailsOfTheThreadAreLeftAloneWhereTheObjectDoesNot) {
    EXPECT_EQ(failureOfObjectThat(S_FALSE).details, nullptr);
    EXPECT_TRUE(areDetailsLeft());
}

TEST(CallFailure, ObjectWithoutSupportHasNoDetails) {
    RawObject object;
    object.refuses = true;
    object.put<&IHostData::getBlockSize>(failWithDetails);
    const auto data = object.proxy<IHostData>();
    EXPECT_EQ(failureOf([&] { data->getBlockSize(); }).details, nullptr);
    EXPECT_TRUE(areDetailsLeft());
}

}  // namespace
}  // namespace Meridax::Host::Binary
