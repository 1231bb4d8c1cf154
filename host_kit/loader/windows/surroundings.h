#pragma once

#include "host_kit/namespaces.h"
#include "plugin/framework/host/ref.h"
#include "plugin/framework/plugin_interfaces.h"
#include "plugin/module/windows/platform_headers.h"

namespace Rotavue::HostKit {

/// The component model for this thread, as long as this object lives. With its end the modules that
/// the component model has loaded go.
class Apartment {
public:
    Apartment() : entered_(SUCCEEDED(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {}
    Apartment(const Apartment&) = delete;
    Apartment& operator=(const Apartment&) = delete;
    ~Apartment() {
        if (entered_) ::CoUninitialize();
    }

private:
    bool entered_;
};

/// What a module's controls stand in, and share with it. Each control holds it: one that is still
/// there when its `Module` has ended finds its code in the process and the clipboard in its place.
struct Surroundings {
    Apartment apartment;
    Host::Ref<Api::IHostClipboard> clipboard;  ///< where a copy is told to, if anywhere
};

}  // namespace Rotavue::HostKit
