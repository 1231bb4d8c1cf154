#include "host_kit/loader/platform.h"
#include "host_kit/namespaces.h"
#include "plugin/framework/plugin_interfaces.h"

#include <cstring>

/// What the host kit needs of a platform, where the plug-in is part of the program: so a fuzzer
/// sees which branches of it an input has taken.
extern "C" {
Meridax::VisualControls::Api::EntryPoint::GetClassObjectFunction DllGetClassObject;
Meridax::VisualControls::Api::EntryPoint::CanUnloadNowFunction DllCanUnloadNow;
}

namespace Rotavue::HostKit {

namespace {

class LinkedLibrary final : public SharedLibrary {
public:
    void* find(const char* name) const override {
        if (std::strcmp(name, Api::EntryPoint::GetClassObject) == 0)
            return reinterpret_cast<void*>(&DllGetClassObject);
        if (std::strcmp(name, Api::EntryPoint::CanUnloadNow) == 0)
            return reinterpret_cast<void*>(&DllCanUnloadNow);
        return nullptr;
    }

    void keepLoaded() override {}
};

}  // namespace

std::unique_ptr<SharedLibrary> SharedLibrary::load(const std::filesystem::path&) {
    return std::make_unique<LinkedLibrary>();
}

std::optional<std::filesystem::path> registeredModule() {
    return std::nullopt;
}

std::filesystem::path programFolder() {
    return std::filesystem::current_path();
}

}  // namespace Rotavue::HostKit
