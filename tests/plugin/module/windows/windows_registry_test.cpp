#include "plugin/module/windows/windows_registry.h"

#include "tests/module/windows/registry_view.h"

#include <gtest/gtest.h>

namespace Meridax::VisualControls::Rotavue {
namespace {

using ::Rotavue::ModuleTest::deleteTree;
using ::Rotavue::ModuleTest::hasKey;
using ::Rotavue::ModuleTest::storedValue;

const std::wstring Path = LR"(SOFTWARE\Meridax\Rotavue store test)";

class WindowsRegistryTest : public testing::TestWithParam<Api::RegistryScope> {
protected:
    ~WindowsRegistryTest() override { deleteTree(root(), Path); }

    static HKEY root() {
        return GetParam() == Api::RegistryScope::User ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE;
    }

    WindowsRegistry registry;
};

TEST_P(WindowsRegistryTest, ValuesGoToTheHiveOfTheScope) {
    const auto key = registry.createKey(GetParam(), Path);
    ASSERT_NE(key, nullptr);
    EXPECT_TRUE(key->setText(L"", L"\x00B5m"));
    EXPECT_TRUE(key->setNumber(L"n", 0xFFFFFFFFU));
    EXPECT_EQ(storedValue(root(), Path, L"")->text, L"\x00B5m");
    EXPECT_EQ(storedValue(root(), Path, L"n")->number, 0xFFFFFFFFU);
}

TEST_P(WindowsRegistryTest, TextIsStoredWithTwoBytesForEachCharacterAndNoMore) {
    const auto key = registry.createKey(GetParam(), Path);
    for (const std::wstring text : {L"", L"Rotavue", L"\xD83D\xDE00"}) {
        key->setText(L"x", text);
        EXPECT_EQ(storedValue(root(), Path, L"x")->bytes, 2 * text.size());
    }
}

TEST_P(WindowsRegistryTest, ValueIsDeletedOnce) {
    const auto key = registry.createKey(GetParam(), Path);
    key->setText(L"x", L"y");
    EXPECT_TRUE(key->deleteValue(L"x"));
    EXPECT_FALSE(key->deleteValue(L"x"));
}

TEST_P(WindowsRegistryTest, KeyWithKeysBelowItIsNotDeleted) {
    const std::wstring below = Path + LR"(\below)";
    registry.createKey(GetParam(), below);
    EXPECT_FALSE(registry.deleteKey(GetParam(), Path));
    EXPECT_TRUE(hasKey(root(), Path));
    EXPECT_TRUE(registry.deleteKey(GetParam(), below));
    EXPECT_TRUE(registry.deleteKey(GetParam(), Path));
    EXPECT_FALSE(hasKey(root(), Path));
}

TEST_P(WindowsRegistryTest, KeyThatCannotBeMadeIsNull) {
    EXPECT_EQ(registry.createKey(GetParam(), Path + L"\\" + std::wstring(300, L'x')), nullptr);
}

INSTANTIATE_TEST_SUITE_P(Scopes, WindowsRegistryTest,
                         testing::Values(Api::RegistryScope::User, Api::RegistryScope::Machine),
                         [](const auto& parameter) {
                             return parameter.param == Api::RegistryScope::User ? "User"
                                                                                : "Machine";
                         });

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
