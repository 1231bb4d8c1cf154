#include "host_kit/loader/windows/variant_list.h"

#include "tests/host_kit/windows/com_host.h"

#include <gtest/gtest.h>

namespace Rotavue::HostKit {
namespace {

const VARIANT& element(const OwnedVariant& list, std::size_t index) {
    return static_cast<const VARIANT*>(list->parray->pvData)[index];
}

TEST(VariantList, IsAnArrayOfVariantsFromItsLowerBound) {
    const MessageList list(std::vector<MessageValue>{1, 2, 3}, 5);
    const OwnedVariant crossed = variantOf(45, &list);
    EXPECT_EQ(crossed->vt, VT_ARRAY | VT_VARIANT);
    EXPECT_EQ(::SafeArrayGetDim(crossed->parray), 1U);
    EXPECT_EQ(crossed->parray->rgsabound[0].lLbound, 5);
    EXPECT_EQ(crossed->parray->rgsabound[0].cElements, 3U);
}

TEST(VariantList, IsAnEmptyVariantForANullList) {
    EXPECT_EQ(variantOf(45, nullptr)->vt, VT_EMPTY);
}

TEST(VariantList, HasWhatThePlugInReadsAtEachPosition) {
    const MessageList list{0x123, 0x12345, -7, 8};
    const OwnedVariant crossed = variantOf(10, &list);  // byte, word, integer, integer
    EXPECT_EQ(element(crossed, 0).bVal, 0x23);
    EXPECT_EQ(element(crossed, 1).uiVal, 0x2345);
    EXPECT_EQ(element(crossed, 2).lVal, -7);
    EXPECT_EQ(element(crossed, 3).lVal, 8);
}

TEST(VariantList, HasANullObjectAndNoTextWhereANumberIsGiven) {
    const MessageList list{4711, 4711};
    const OwnedVariant crossed = variantOf(36, &list);  // text, object
    EXPECT_EQ(::SysStringLen(element(crossed, 0).bstrVal), 0U);
    EXPECT_EQ(element(crossed, 1).punkVal, nullptr);
}

TEST(VariantList, CountsPositionsFromItsLowerBound) {
    const MessageList list(std::vector<MessageValue>{4711}, 1);
    const OwnedVariant crossed = variantOf(36, &list);  // position 1 is the object
    EXPECT_EQ(element(crossed, 0).vt, VT_UNKNOWN);
    EXPECT_EQ(element(crossed, 0).punkVal, nullptr);
}

TEST(VariantList, HoldsItsObjectsAsLongAsItLives) {
    MemoryHost host;
    {
        const MessageList list{host.canvas()};
        EXPECT_EQ(host.references(), 1);
        const OwnedVariant crossed = variantOf(42, &list);
        EXPECT_EQ(host.references(), 2);
    }
    EXPECT_EQ(host.references(), 0);
}

TEST(VariantList, HasTextsWholeWithZerosInThem) {
    const MessageList list{std::wstring(L"a\0b", 3)};
    const OwnedVariant crossed = variantOf(37, &list);
    EXPECT_EQ(::SysStringLen(element(crossed, 0).bstrVal), 3U);
}

TEST(VariantResult, IsReadByItsKind) {
    MessageAnswer answer;
    OwnedVariant result;
    readResult(*result, answer);
    EXPECT_EQ(answer.value(), MessageAnswer::Value());
    result->vt = VT_I2;
    result->iVal = 1;
    readResult(*result, answer);
    EXPECT_EQ(answer.value(), MessageAnswer::Value(std::int16_t{1}));
    result->vt = VT_BOOL;
    result->boolVal = 1;
    readResult(*result, answer);
    EXPECT_EQ(answer.value(), MessageAnswer::Value(true));
}

TEST(VariantResult, OfFourNumbersIsReadInTheirOrder) {
    OwnedVariant result;
    result->parray = ::SafeArrayCreateVector(VT_I4, 0, 4);
    result->vt = VT_ARRAY | VT_I4;
    for (LONG i = 0; i < 4; ++i) {
        LONG number = 10 * i - 5;
        ::SafeArrayPutElement(result->parray, &i, &number);
    }
    MessageAnswer answer;
    readResult(*result, answer);
    EXPECT_EQ(answer.value(), MessageAnswer::Value(MessageAnswer::FourIntegers{-5, 5, 15, 25}));
}

}  // namespace
}  // namespace Rotavue::HostKit
