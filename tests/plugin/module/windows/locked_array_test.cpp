#include "plugin/module/windows/locked_array.h"

#include "tests/plugin/module/windows/doubles/raw_object.h"

#include <gtest/gtest.h>

namespace Meridax::VisualControls::Rotavue {
namespace {

TEST(LockedArrayTest, IsLockedForAsLongAsItLives) {
    SAFEARRAY* const array = ::SafeArrayCreateVector(VT_VARIANT, 0, 1);
    ASSERT_EQ(array->cLocks, 0U);
    const LockedArray list{Array(array)};
    EXPECT_EQ(array->cLocks, 1U);
    EXPECT_EQ(list.upperBound(), 0);
    EXPECT_EQ(array->cLocks, 1U);
}

TEST(LockedArrayTest, RaisesThePlatformsStatusWhereItCannotBeLocked) {
    SAFEARRAY* const array = ::SafeArrayCreateVector(VT_VARIANT, 0, 1);
    array->cLocks = 0xFFFF;  // as many as there can be
    EXPECT_EQ(Host::Binary::failureOf([&] { LockedArray{Array(array)}; }).status, 0x8000FFFFU);
    array->cLocks = 0;
    EXPECT_EQ(::SafeArrayDestroy(array), S_OK);  // while it was locked it could not go
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
