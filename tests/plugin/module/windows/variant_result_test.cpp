#include "plugin/module/windows/variant_result.h"

#include <gtest/gtest.h>

namespace Meridax::VisualControls::Rotavue {
namespace {

class VariantResultTest : public testing::Test {
protected:
    ~VariantResultTest() override { ::VariantClear(&variant); }

    VARIANT variant{};
    VariantResult result{variant};
};

TEST_F(VariantResultTest, IntegerHasSixteenBits) {
    result.putInteger16(1);
    EXPECT_EQ(variant.vt, VT_I2);
    EXPECT_EQ(variant.iVal, 1);
}

TEST_F(VariantResultTest, TrueIsTheNumberOne) {
    result.putBoolean(true);
    EXPECT_EQ(variant.vt, VT_BOOL);
    EXPECT_EQ(variant.boolVal, 1);
    result.putBoolean(false);
    EXPECT_EQ(variant.boolVal, 0);
}

TEST_F(VariantResultTest, FourIntegersAreAnArrayFromZeroThatStartsWithZeros) {
    result.putFourIntegers();
    ASSERT_EQ(variant.vt, VT_ARRAY | VT_I4);
    LONG lower = -1;
    LONG upper = -1;
    ::SafeArrayGetLBound(variant.parray, 1, &lower);
    ::SafeArrayGetUBound(variant.parray, 1, &upper);
    EXPECT_EQ(lower, 0);
    EXPECT_EQ(upper, 3);
    const auto* numbers = static_cast<const LONG*>(variant.parray->pvData);
    EXPECT_EQ(std::vector<LONG>(numbers, numbers + 4), (std::vector<LONG>{0, 0, 0, 0}));
    result.setInteger(3, -9);
    EXPECT_EQ(numbers[3], -9);
}

TEST_F(VariantResultTest, NumberBeyondAListThatTheHostPutThereIsDropped) {
    variant.vt = VT_ARRAY | VT_I4;
    variant.parray = ::SafeArrayCreateVector(VT_I4, 0, 2);
    result.setInteger(1, 7);
    result.setInteger(2, 5);
    const auto* numbers = static_cast<const LONG*>(variant.parray->pvData);
    EXPECT_EQ(std::vector<LONG>(numbers, numbers + 2), (std::vector<LONG>{0, 7}));
}

TEST_F(VariantResultTest, NumberForAListThatTheHostTookAwayIsDropped) {
    result.putFourIntegers();
    ::VariantClear(&variant);
    result.setInteger(0, 5);
    EXPECT_EQ(variant.vt, VT_EMPTY);
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
