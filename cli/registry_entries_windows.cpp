#include "cli/registry_entries.h"
#include "host_kit/loader/windows/registry_view.h"
#include "host_kit/memory/utf8.h"
#include "plugin/framework/guid_text.h"
#include "plugin/framework/plugin_interfaces.h"

namespace Rotavue::Cli {

namespace {

namespace Api = Meridax::VisualControls::Api;

HKEY rootOf(Scope scope) {
    return scope == Scope::User ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE;
}

std::string nameOf(Scope scope) {
    return scope == Scope::User ? "HKEY_CURRENT_USER" : "HKEY_LOCAL_MACHINE";
}

}  // namespace

std::optional<std::filesystem::path> registeredIn(Scope scope) {
    const auto classId = HostKit::announcedClass(rootOf(scope));
    if (!classId) return std::nullopt;
    const auto file = HostKit::registryText(rootOf(scope), HostKit::moduleKeyOf(*classId), L"");
    return std::filesystem::path(file.value_or(L""));
}

std::string notWritten(Scope scope) {
    const std::string advice =
        scope == Scope::Machine ? "; run as administrator, or register with --user" : "";
    return nameOf(scope) + ": the registry was not changed: it cannot be written" + advice;
}

std::optional<std::string> removalByHand(Scope scope) {
    const std::wstring classId = Api::guidText(Api::PluginClass);
    if (!HostKit::registryText(rootOf(scope), HostKit::classKeyOf(classId), L"")) {
        return std::nullopt;
    }
    return "delete the key " + nameOf(scope) + "\\" + HostKit::toUtf8(HostKit::classKeyOf(classId));
}

}  // namespace Rotavue::Cli
