#include "plugin/framework/guid_text.h"

#include "plugin/framework/plugin_interfaces.h"

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

TEST(PluginIdentifiers, AreThoseThatHostsAskFor) {
    EXPECT_EQ(guidText(PluginClass), L"{264200AB-CDA2-4257-932E-FD19E014BD0C}");
    EXPECT_EQ(guidText(PluginLibrary), L"{32E46A55-902E-4BC0-817F-528EE53F499C}");
    EXPECT_EQ(guidText(IMeridaxPlugin::Identifier), L"{5C45F430-EE53-49DC-935B-36314A52D438}");
    EXPECT_EQ(guidText(IVCPluginImpl::Identifier), L"{5F9EF7C9-B508-44B9-854C-5EC8F36C238D}");
    EXPECT_EQ(guidText(IClassFactory::Identifier), L"{00000001-0000-0000-C000-000000000046}");
    EXPECT_EQ(guidText(Host::IHostObject::Identifier), L"{00000000-0000-0000-C000-000000000046}");
}

class NoGuid : public testing::TestWithParam<std::wstring> {};

TEST_P(NoGuid, IsNotRead) {
    EXPECT_EQ(parseGuid(GetParam()), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(Texts, NoGuid,
                         testing::Values(L"", L"{}", L"264200AB-CDA2-4257-932E-FD19E014BD0C",
                                         L"{264200AB-CDA2-4257-932E-FD19E014BD0C} ",
                                         L"{264200AG-CDA2-4257-932E-FD19E014BD0C}",
                                         L"{264200GA-CDA2-4257-932E-FD19E014BD0C}",
                                         L"{264200ag-cda2-4257-932e-fd19e014bd0c}",
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
