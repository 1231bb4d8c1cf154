#include "plugin/framework/plugin_interfaces.h"
#include "plugin/module/windows/interfaces/com_ref.h"
#include "plugin/module/windows/interfaces/host_string.h"
#include "plugin/module/windows/interfaces/platform_guid.h"
#include "tests/module/windows/loaded_module.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

/// What the built module carries beside its code.
namespace Rotavue::ModuleTest {
namespace {

namespace Api = Meridax::VisualControls::Api;
using Meridax::Host::Binary::ComRef;
using Meridax::Host::Binary::guidOf;
using Meridax::Host::Binary::HostString;
using Meridax::Host::Binary::platformGuid;

std::string resource(const LoadedModule& module, const wchar_t* name, const wchar_t* type) {
    HRSRC found = ::FindResourceW(module.handle(), name, type);
    if (found == nullptr) return {};
    const void* bytes = ::LockResource(::LoadResource(module.handle(), found));
    return {static_cast<const char*>(bytes), ::SizeofResource(module.handle(), found)};
}

std::string contentOf(const char* path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

TEST(ModuleResources, PictureIsStoredUnchangedAsRawData) {
    const std::string picture = resource(LoadedModule(), L"ICON", MAKEINTRESOURCEW(10));
    ASSERT_EQ(picture.size(), 1094U);
    EXPECT_EQ(picture, contentOf(ROTAVUE_PICTURE));
    // The signature, then the first chunk: 13 bytes of header, 32 by 32, 8 bits, colour type 6.
    const char start[] = "\x89PNG\r\n\x1a\n\0\0\0\rIHDR\0\0\0\x20\0\0\0\x20\x08\x06";
    EXPECT_EQ(picture.substr(0, sizeof(start) - 1), std::string(start, sizeof(start) - 1));
    EXPECT_EQ(picture.substr(picture.size() - 8, 4), "IEND");
}

TEST(ModuleResources, ManifestAsksForTheCommonControlsAndNoMoreRights) {
    const std::string manifest =
        resource(LoadedModule(), MAKEINTRESOURCEW(2), MAKEINTRESOURCEW(24));
    EXPECT_NE(manifest.find("name=\"Microsoft.Windows.Common-Controls\" version=\"6.0.0.0\""),
              std::string::npos);
    EXPECT_NE(manifest.find("level=\"asInvoker\""), std::string::npos);
}

std::vector<char> versionBlock() {
    DWORD unused = 0;
    std::vector<char> block(::GetFileVersionInfoSizeW(ROTAVUE_MODULE_FILE, &unused));
    ::GetFileVersionInfoW(ROTAVUE_MODULE_FILE, 0, static_cast<DWORD>(block.size()), block.data());
    return block;
}

TEST(ModuleResources, VersionBlockHoldsTheVersionNumbers) {
    const std::vector<char> block = versionBlock();
    void* found = nullptr;
    UINT size = 0;
    ASSERT_TRUE(::VerQueryValueW(block.data(), L"\\", &found, &size));
    const auto& fixed = *static_cast<const VS_FIXEDFILEINFO*>(found);
    EXPECT_EQ(fixed.dwFileVersionMS, 2U << 16U | 1U);
    EXPECT_EQ(fixed.dwFileVersionLS, 8U << 16U);
    EXPECT_EQ(fixed.dwProductVersionMS, 2U << 16U | 1U);
    EXPECT_EQ(fixed.dwProductVersionLS, 8U << 16U);
}

TEST(ModuleResources, VersionBlockNamesTheProduct) {
    const std::vector<char> block = versionBlock();
    for (const wchar_t* name : {L"FileDescription", L"InternalName", L"ProductName"}) {
        void* found = nullptr;
        UINT size = 0;
        const std::wstring path = std::wstring(LR"(\StringFileInfo\040904B0\)") + name;
        ASSERT_TRUE(::VerQueryValueW(block.data(), path.c_str(), &found, &size));
        EXPECT_STREQ(static_cast<const wchar_t*>(found), L"Rotavue");
    }
}

ComRef<ITypeLib> typeLibrary() {
    ComRef<ITypeLib> library;
    ::LoadTypeLibEx(ROTAVUE_MODULE_FILE, REGKIND_NONE, library.put());
    return library;
}

TEST(ModuleResources, TypeLibraryIsTheOneThatTheHostKnows) {
    const ComRef<ITypeLib> library = typeLibrary();
    ASSERT_TRUE(library);
    TLIBATTR* attributes = nullptr;
    ASSERT_EQ(library->GetLibAttr(&attributes), S_OK);
    EXPECT_EQ(guidOf(attributes->guid), Api::PluginLibrary);
    EXPECT_EQ(attributes->wMajorVerNum, 1);
    EXPECT_EQ(attributes->wMinorVerNum, 0);
    library->ReleaseTLibAttr(attributes);
    EXPECT_FALSE(resource(LoadedModule(), MAKEINTRESOURCEW(1), L"TYPELIB").empty());
}

TEST(ModuleResources, TypeLibraryNamesTheClassAndItsInterface) {
    const std::vector<std::pair<Meridax::Host::Guid, std::wstring>> named{
        {Api::PluginClass, L"VCPluginImpl"}, {Api::IVCPluginImpl::Identifier, L"IVCPluginImpl"}};
    const ComRef<ITypeLib> library = typeLibrary();
    HostString libraryName;
    library->GetDocumentation(-1, libraryName.put(), nullptr, nullptr, nullptr);
    EXPECT_EQ(libraryName.copy(), L"RotavueLib");
    for (const auto& [identifier, name] : named) {
        ComRef<ITypeInfo> type;
        ASSERT_EQ(library->GetTypeInfoOfGuid(platformGuid(identifier), type.put()), S_OK);
        HostString told;
        type->GetDocumentation(MEMBERID_NIL, told.put(), nullptr, nullptr, nullptr);
        EXPECT_EQ(told.copy(), name);
    }
}

}  // namespace
}  // namespace Rotavue::ModuleTest
