#include "plugin/framework/guid_text.h"

#include <gtest/gtest.h>

namespace Meridax::VisualControls::Api {
namespace {

constexpr Host::Guid Sample{
    0x264200AB, 0xCDA2, 0x4257, {0x93, 0x2E, 0xFD, 0x19, 0xE0, 0x14, 0xBD, 0x0C}};

TEST(GuidText, IsInBracesAndUpperCase) {
    EXPECT_EQ(guidText(Sample), L"{264200AB-CDA2-4257-932E-FD19E014BD0C}");
}

TEST(GuidText, KeepsLeadingZeros) {
    EXPECT_EQ(guidText({0x1, 0x2, 0x3, {0, 0, 0, 0, 0, 0, 0, 0x46}}),
              L"{00000001-0002-0003-0000-000000000046}");
}

TEST(GuidText, IsReadInEitherCase) {
    EXPECT_EQ(parseGuid(L"{264200AB-CDA2-4257-932E-FD19E014BD0C}"), Sample);
    EXPECT_EQ(parseGuid(L"{264200ab-cda2-4257-932e-fd19e014bd0c}"), Sample);
}

class NoGuid : public testing::TestWithParam<std::wstring> {};

TEST_P(NoGuid, IsNotRead) {
    EXPECT_EQ(parseGuid(GetParam()), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(Texts, NoGuid,
                         testing::Values(L"", L"{}", L"264200AB-CDA2-4257-932E-FD19E014BD0C",
                                         L"{264200AB-CDA2-4257-932E-FD19E014BD0C} ",
                                         L"{264200AG-CDA2-4257-932E-FD19E014BD0C}",
                                         L"{264200AB+CDA2-4257-932E-FD19E014BD0C}",
                                         L"{264200ABCDA2--4257-932E-FD19E014BD0C}",
                                         L"(264200AB-CDA2-4257-932E-FD19E014BD0C)"));

TEST(Guid, LiteralHasTheBytesOfItsText) {
    EXPECT_EQ(Host::guid("{264200AB-CDA2-4257-932E-FD19E014BD0C}"), Sample);
}

TEST(Guid, DefaultIsAllZero) {
    EXPECT_EQ(guidText({}), L"{00000000-0000-0000-0000-000000000000}");
}

TEST(Guid, HasSixteenBytesWithoutGaps) {
    static_assert(sizeof(Host::Guid) == 16);
    static_assert(std::is_standard_layout_v<Host::Guid>);
}

}  // namespace
}  // namespace Meridax::VisualControls::Api
