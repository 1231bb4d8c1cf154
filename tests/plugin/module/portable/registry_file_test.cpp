#include "plugin/module/portable/registry_file.h"

#include <gtest/gtest.h>

#include <utility>

namespace Meridax::VisualControls::Rotavue {
namespace {

RegistryFile withKeys(std::initializer_list<const wchar_t*> paths) {
    RegistryFile file;
    for (const wchar_t* path : paths)
        EXPECT_TRUE(file.create(path));
    return file;
}

TEST(RegistryFile, KeyIsCreatedOnce) {
    RegistryFile file = withKeys({LR"(A\B)", LR"(A\B)"});
    EXPECT_EQ(file.entries().size(), 1U);
}

TEST(RegistryFile, CreatingAnOpenKeyKeepsItsValues) {
    RegistryFile file = withKeys({L"A"});
    EXPECT_TRUE(file.set(L"A", {L"Width", 400U}));
    EXPECT_TRUE(file.create(L"A"));
    ASSERT_NE(file.number(L"A", L"Width"), nullptr);
    EXPECT_EQ(*file.number(L"A", L"Width"), 400U);
}

class NoKeyPath : public testing::TestWithParam<std::wstring> {};

TEST_P(NoKeyPath, IsNotCreated) {
    RegistryFile file;
    EXPECT_FALSE(file.create(GetParam()));
    EXPECT_TRUE(file.entries().empty());
}

INSTANTIATE_TEST_SUITE_P(Paths, NoKeyPath,
                         testing::Values(L"", LR"(\A)", LR"(A\)", LR"(A\\B)", L"A\nB", L"A\x7F",
                                         std::wstring{L'A', wchar_t{0xD800}}));

TEST(RegistryFile, ValuesKeepTheOrderOfTheirFirstWriting) {
    RegistryFile file = withKeys({L"A"});
    file.set(L"A", {L"Name", L"Rotavue"});
    file.set(L"A", {L"Width", 400U});
    file.set(L"A", {L"Name", L"Other"});
    const std::vector<RegistryValue> expected{{L"Name", L"Other"}, {L"Width", 400U}};
    EXPECT_EQ(file.entries().front().values, expected);
}

TEST(RegistryFile, ValueMayChangeItsKind) {
    RegistryFile file = withKeys({L"A"});
    file.set(L"A", {L"Width", L"wide"});
    file.set(L"A", {L"Width", 400U});
    EXPECT_EQ(file.text(L"A", L"Width"), nullptr);
    EXPECT_NE(file.number(L"A", L"Width"), nullptr);
}

TEST(RegistryFile, NumberOfATextOrOfNothingIsNull) {
    RegistryFile file = withKeys({L"A"});
    file.set(L"A", {L"Name", L"400"});
    EXPECT_EQ(file.number(L"A", L"Name"), nullptr);
    EXPECT_EQ(file.number(L"A", L"Width"), nullptr);
    EXPECT_EQ(file.number(L"B", L"Name"), nullptr);
}

TEST(RegistryFile, DiffersByEachOfItsParts) {
    const auto holding = [](const wchar_t* path, RegistryValue value) {
        RegistryFile file = withKeys({path});
        file.set(path, std::move(value));
        return file;
    };
    const RegistryFile file = holding(L"A", {L"N", 0U});
    EXPECT_EQ(file, holding(L"A", {L"N", 0U}));
    EXPECT_NE(file, RegistryFile());
    EXPECT_NE(file, holding(L"B", {L"N", 0U}));
    EXPECT_NE(file, holding(L"A", {L"M", 0U}));
    EXPECT_NE(file, holding(L"A", {L"N", 1U}));
    EXPECT_NE(file, holding(L"A", {L"N", L""}));
    EXPECT_NE(holding(L"A", {L"N", L"x"}), holding(L"A", {L"N", L"y"}));
}

TEST(RegistryFile, ValueNeedsItsKey) {
    RegistryFile file = withKeys({LR"(A\B)"});
    EXPECT_FALSE(file.set(L"A", {L"Name", L"x"}));
    EXPECT_EQ(file.text(L"A", L"Name"), nullptr);
}

TEST(RegistryFile, TextThatUtf8CannotHoldIsRefused) {
    RegistryFile file = withKeys({L"A"});
    const std::wstring harmful{wchar_t{0xDC00}};
    EXPECT_FALSE(file.set(L"A", {L"Name", harmful}));
    EXPECT_FALSE(file.set(L"A", {harmful, 1U}));
}

TEST(RegistryFile, NamesAreComparedWithRegardToCase) {
    RegistryFile file = withKeys({L"A"});
    file.set(L"A", {L"Name", L"x"});
    EXPECT_EQ(file.text(L"A", L"name"), nullptr);
    EXPECT_EQ(file.find(L"a"), nullptr);
}

TEST(RegistryFile, RemovedValueIsGoneAndCannotBeRemovedAgain) {
    RegistryFile file = withKeys({L"A"});
    file.set(L"A", {L"Icon", L"x"});
    EXPECT_TRUE(file.removeValue(L"A", L"Icon"));
    EXPECT_FALSE(file.removeValue(L"A", L"Icon"));
    EXPECT_FALSE(file.removeValue(L"B", L"Icon"));
}

TEST(RegistryFile, KeyWithAKeyBelowItIsNotRemoved) {
    RegistryFile file = withKeys({L"A", LR"(A\B)"});
    EXPECT_FALSE(file.removeKey(L"A"));
    EXPECT_TRUE(file.removeKey(LR"(A\B)"));
    EXPECT_TRUE(file.removeKey(L"A"));
    EXPECT_FALSE(file.removeKey(L"A"));
}

TEST(RegistryFile, KeyWhoseNameOnlyBeginsAlikeIsNotBelow) {
    RegistryFile file = withKeys({L"A", L"AB"});
    EXPECT_TRUE(file.removeKey(L"A"));
}

TEST(RegistryFile, NamesBelowAreThoseOfTheNextLevelEachOnce) {
    const RegistryFile file = withKeys({LR"(VCs\Rotavue)", LR"(VCs\Other\Deep)", LR"(VCs\Other)",
                                        L"VCs", L"VCsX", LR"(vcs\Else)"});
    EXPECT_EQ(file.namesBelow(L"VCs"), (std::vector<std::wstring>{L"Rotavue", L"Other"}));
    EXPECT_TRUE(file.namesBelow(LR"(VCs\Rotavue)").empty());
}

TEST(RegistryFile, GrowsNoFurtherThanItsLimits) {
    RegistryFile file;
    for (std::size_t i = 0; i < RegistryFile::MaxKeys; ++i)
        ASSERT_TRUE(file.create(std::to_wstring(i)));
    EXPECT_FALSE(file.create(L"one more"));
    for (std::uint32_t i = 0; i < RegistryFile::MaxValues; ++i)
        ASSERT_TRUE(file.set(L"0", {std::to_wstring(i), i}));
    EXPECT_FALSE(file.set(L"0", {L"one more", 0U}));
    EXPECT_TRUE(file.set(L"0", {L"0", 1U}));
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
