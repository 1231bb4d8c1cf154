#include "plugin/module/windows/windows_module.h"

#include "plugin/module/guarded.h"
#include "plugin/module/windows/interfaces/platform_guid.h"
#include "plugin/module/windows/module_file.h"

#include <commctrl.h>

#include <utility>

namespace Meridax::VisualControls::Rotavue {

namespace {

constexpr DWORD AllControlClasses = 0xFF;
static_assert(sizeof(INITCOMMONCONTROLSEX) == 8, "the size by which the platform knows it");

/// The clipboard is the platform's, whatever a host would supply.
void takeNoClipboard(const Host::Ref<Api::IHostClipboard>& /*clipboard*/) {}

}  // namespace

WindowsModule::WindowsModule(Api::ControlMaker makeControl)
    : makeControl_(std::move(makeControl)),
      typeLibrary_(file_),
      registration_({registry_, typeLibrary_, rotavueModuleInfo, [this] { return file_; }}),
      factory_({makeControl_, clipboard_, liveObjects_}, takeNoClipboard),
      comFactory_(factory_, typeLibrary_) {}

bool WindowsModule::load(HINSTANCE module) noexcept {
    const auto noteFile = [&] {
        file_ = moduleFile(module);
        return S_OK;
    };
    if (FAILED(guarded(noteFile))) return false;
    const INITCOMMONCONTROLSEX controls{sizeof(INITCOMMONCONTROLSEX), AllControlClasses};
    ::InitCommonControlsEx(&controls);
    ::DisableThreadLibraryCalls(module);
    return true;
}

HRESULT WindowsModule::getClassObject(REFCLSID classId, REFIID interfaceId,
                                      void** object) noexcept {
    if (object == nullptr) return E_POINTER;
    *object = nullptr;
    if (Host::Binary::guidOf(classId) != Api::PluginClass) return CLASS_E_CLASSNOTAVAILABLE;
    return comFactory_.QueryInterface(interfaceId, object);
}

HRESULT WindowsModule::canUnloadNow() const noexcept {
    return liveObjects_.any() || factory_.isLocked() ? S_FALSE : S_OK;
}

HRESULT WindowsModule::registerServer() noexcept {
    return guarded([this] { return registration_.registerServer(); });
}

HRESULT WindowsModule::unregisterServer() noexcept {
    return guarded([this] { return registration_.unregisterServer(); });
}

HRESULT WindowsModule::install(bool install, const wchar_t* commandLine) noexcept {
    return guarded([&] { return registration_.install(install, commandLine); });
}

}  // namespace Meridax::VisualControls::Rotavue
