#include "plugin/module/registration.h"

#include "plugin/framework/guid_text.h"
#include "plugin/framework/host/status.h"
#include "plugin/framework/unicode.h"
#include "plugin/module/guarded.h"

#include <string_view>

namespace Meridax::VisualControls::Rotavue {

namespace {

using Api::RegistryKey;
using Api::wideFromUtf8;

constexpr std::size_t LongestModulePath = 2048;
constexpr std::wstring_view UserWord = L"user";

std::wstring controlKeyPath(const ModuleInfo& info) {
    return LR"(SOFTWARE\Meridax\VCs\)" + wideFromUtf8(info.keyName);
}

std::wstring classKeyPath(const ModuleInfo& info) {
    return LR"(SOFTWARE\Classes\CLSID\)" + Api::guidText(info.classId);
}

std::wstring versionText(const std::array<int, 3>& version) {
    return std::to_wstring(version[0]) + L'.' + std::to_wstring(version[1]) + L'.' +
           std::to_wstring(version[2]);
}

/// Exactly one of the two icon values survives, whatever an earlier registration left.
void writeIcon(RegistryKey& key, const Api::VisualControlInfo& control) {
    if (control.icon.empty()) {
        key.deleteValue(L"Icon");
        key.setText(L"MeridaxIcon", wideFromUtf8(control.hostIconName));
    } else {
        key.setText(L"Icon", wideFromUtf8(control.icon));
        key.deleteValue(L"MeridaxIcon");
    }
}

void writeAnnouncement(RegistryKey& key, const ModuleInfo& info) {
    const Api::VisualControlInfo& control = info.control;
    key.setText(L"Name", wideFromUtf8(info.displayName));
    key.setText(L"Vendor", wideFromUtf8(info.vendor));
    key.setText(L"Version", versionText(info.version));
    key.setText(L"Description", wideFromUtf8(control.description));
    key.setText(L"GUID", Api::guidText(info.classId));
    writeIcon(key, control);
    key.setText(L"GroupName", wideFromUtf8(control.groupName));
    key.setText(L"Keywords", wideFromUtf8(control.keywords));
    key.setNumber(L"MaxParameters", static_cast<std::uint32_t>(control.maxParameters));
    key.setNumber(L"Width", static_cast<std::uint32_t>(control.width));
    key.setNumber(L"Height", static_cast<std::uint32_t>(control.height));
    key.setNumber(L"ExtendOnAdd", control.extendOnAdd ? 1 : 0);
    key.setNumber(L"DrawPosition", 1);
    key.setNumber(L"HasUnifiedProps", control.hasUnifiedProps ? 1 : 0);
    key.setNumber(L"UseCanvasDrawData", 1);
}

constexpr wchar_t lowerCase(wchar_t letter) {
    return letter >= L'A' && letter <= L'Z' ? static_cast<wchar_t>(letter + (L'a' - L'A')) : letter;
}

/// Compares up to and with the terminator: a longer word that begins alike is another one.
bool isUserWord(const wchar_t* commandLine) {
    for (const wchar_t letter : UserWord)
        if (lowerCase(*commandLine++) != letter) return false;
    return *commandLine == L'\0';
}

}  // namespace

std::int32_t Registration::registerServer() {
    registryPerUser_ = perUser_;
    writeEntries(needs_.moduleInfo());
    return needs_.typeLibrary.registerLibrary(perUser_);
}

std::int32_t Registration::unregisterServer() {
    const ModuleInfo info = needs_.moduleInfo();
    needs_.store.deleteKey(scope(), controlKeyPath(info));
    needs_.store.deleteKey(scope(), classKeyPath(info));
    return needs_.typeLibrary.unregisterLibrary(perUser_);
}

std::int32_t Registration::install(bool install, const wchar_t* commandLine) {
    if (commandLine != nullptr && isUserWord(commandLine)) perUser_ = true;
    if (!install) return unregisterServer();
    const std::int32_t status = guarded([this] { return registerServer(); });
    if (status < 0) guarded([this] { return unregisterServer(); });
    return status;
}

void Registration::writeEntries(const ModuleInfo& info) const {
    writeControlKey(info, scope());
    writeClassKey(info, scope());
}

void Registration::writeControlKey(const ModuleInfo& info, Api::RegistryScope scope) const {
    const auto key = needs_.store.createKey(scope, controlKeyPath(info));
    if (key != nullptr) writeAnnouncement(*key, info);
}

void Registration::writeClassKey(const ModuleInfo& info, Api::RegistryScope scope) const {
    const std::wstring path = classKeyPath(info);
    const auto key = needs_.store.createKey(scope, path);
    if (key == nullptr) return;
    key->setText(L"", L"VCPluginImpl class");
    const auto server = needs_.store.createKey(scope, path + LR"(\InprocServer32)");
    if (server == nullptr) return;
    server->setText(L"", needs_.modulePath().substr(0, LongestModulePath));
    server->setText(L"ThreadingModel", L"Apartment");
}

Api::RegistryScope Registration::scope() const {
    return registryPerUser_ ? Api::RegistryScope::User : Api::RegistryScope::Machine;
}

}  // namespace Meridax::VisualControls::Rotavue
