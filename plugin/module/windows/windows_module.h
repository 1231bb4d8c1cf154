#pragma once

#include "plugin/module/class_factory.h"
#include "plugin/module/registration.h"
#include "plugin/module/windows/com_class_factory.h"
#include "plugin/module/windows/type_library.h"
#include "plugin/module/windows/windows_clipboard.h"
#include "plugin/module/windows/windows_registry.h"

#include <string>

namespace Meridax::VisualControls::Rotavue {

/// A module for hosts that load it through the component model: what its entry points do. One
/// object per loaded module, made at load and destroyed at unload. Nothing leaves it as an
/// exception: a failure that has no status of its own becomes 0x8007000E or 0x80004005.
class WindowsModule {
public:
    explicit WindowsModule(Api::ControlMaker makeControl);
    WindowsModule(const WindowsModule&) = delete;
    WindowsModule& operator=(const WindowsModule&) = delete;

    /// At load: notes from which file the module comes, readies the common controls and turns
    /// thread notifications off. False where there is no memory for it: the load is to fail.
    bool load(HINSTANCE module) noexcept;

    HRESULT getClassObject(REFCLSID classId, REFIID interfaceId, void** object) noexcept;
    HRESULT canUnloadNow() const noexcept;
    HRESULT registerServer() noexcept;
    HRESULT unregisterServer() noexcept;
    HRESULT install(bool install, const wchar_t* commandLine) noexcept;

private:
    std::wstring file_;
    Api::LiveObjects liveObjects_;
    Api::ControlMaker makeControl_;
    WindowsClipboard clipboard_;
    WindowsRegistry registry_;
    TypeLibrary typeLibrary_;
    Registration registration_;
    ClassFactory factory_;
    ComClassFactory comFactory_;
};

}  // namespace Meridax::VisualControls::Rotavue
