#include "plugin/module/control_maker.h"
#include "plugin/module/portable/portable_module.h"

/// The five entry points of the module; plugin/framework/plugin_interfaces.h tells what they do.
/// Nothing else is exported (exports.map).
namespace {

using namespace Meridax;
using namespace Meridax::VisualControls;

Rotavue::PortableModule module{Rotavue::makeControl};

}  // namespace

#define ROTAVUE_ENTRY_POINT extern "C" __attribute__((visibility("default"))) std::int32_t

ROTAVUE_ENTRY_POINT DllGetClassObject(const Host::Guid& classId, const Host::Guid& interfaceId,
                                      void** object) {
    return module.getClassObject(classId, interfaceId, object);
}

ROTAVUE_ENTRY_POINT DllCanUnloadNow() {
    return module.canUnloadNow();
}

ROTAVUE_ENTRY_POINT DllRegisterServer() {
    return module.registerServer();
}

ROTAVUE_ENTRY_POINT DllUnregisterServer() {
    return module.unregisterServer();
}

ROTAVUE_ENTRY_POINT DllInstall(std::int32_t install, const wchar_t* commandLine) {
    return module.install(install != 0, commandLine);
}
