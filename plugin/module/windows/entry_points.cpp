#include "plugin/module/control_maker.h"
#include "plugin/module/windows/windows_module.h"

#include <olectl.h>

/// The entry points of the module; plugin/framework/plugin_interfaces.h tells what they do. Nothing
/// else is exported (exports.def).
namespace {

using namespace Meridax::VisualControls;

Rotavue::WindowsModule module{Rotavue::makeControl};

}  // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID /*reserved*/) {
    return reason != DLL_PROCESS_ATTACH || module.load(instance) ? TRUE : FALSE;
}

STDAPI DllGetClassObject(REFCLSID classId, REFIID interfaceId, LPVOID* object) {
    return module.getClassObject(classId, interfaceId, object);
}

STDAPI DllCanUnloadNow() {
    return module.canUnloadNow();
}

STDAPI DllRegisterServer() {
    return module.registerServer();
}

STDAPI DllUnregisterServer() {
    return module.unregisterServer();
}

STDAPI DllInstall(BOOL install, LPCWSTR commandLine) {
    return module.install(install != FALSE, commandLine);
}
