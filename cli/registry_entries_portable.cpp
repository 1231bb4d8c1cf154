#include "cli/registry_entries.h"

#include "host_kit/memory/utf8.h"
#include "plugin/framework/guid_text.h"
#include "plugin/framework/plugin_interfaces.h"
#include "plugin/module/portable/registry_file.h"

namespace Rotavue::Cli {

namespace {

namespace Registry = Meridax::VisualControls::Rotavue;
namespace Api = Meridax::VisualControls::Api;

constexpr const wchar_t* ControlKey = L"SOFTWARE\\Meridax\\VCs\\Rotavue";

std::filesystem::path registryFileOf(Scope scope) {
    return Registry::registryFilePath(scope);
}

Registry::RegistryFile load(Scope scope) {
    const std::filesystem::path file = registryFileOf(scope);
    return file.empty() ? Registry::RegistryFile{} : Registry::RegistryFile::load(file);
}

std::wstring classKey() {
    return L"SOFTWARE\\Classes\\CLSID\\" + Api::guidText(Api::PluginClass);
}

}  // namespace

std::optional<std::filesystem::path> registeredIn(Scope scope) {
    const Registry::RegistryFile file = load(scope);
    if (file.find(ControlKey) == nullptr) return std::nullopt;
    const std::wstring* module = file.text(classKey() + L"\\InprocServer32", L"");
    // A wide path would go through the locale.
    return module != nullptr ? std::filesystem::path(HostKit::toUtf8(*module))
                             : std::filesystem::path();
}

std::string notWritten(Scope scope) {
    const std::string file = registryFileOf(scope).string();
    if (file.empty()) return "there is no place for the user's registry: HOME is not set";
    const std::string advice =
        scope == Scope::Machine ? "; run as root, or register with --user" : "";
    return file + ": the registry was not changed: it cannot be written" + advice;
}

std::optional<std::string> removalByHand(Scope scope) {
    if (load(scope).find(classKey()) == nullptr) return std::nullopt;
    return "delete the sections that begin with [" + HostKit::toUtf8(classKey()) + " in " +
           registryFileOf(scope).string();
}

}  // namespace Rotavue::Cli
