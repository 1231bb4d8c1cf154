#pragma once

#include "plugin/framework/host/ref.h"
#include "plugin/framework/plugin_interfaces.h"

#include <dlfcn.h>

#include <stdexcept>
#include <string>

namespace Rotavue::ModuleTest {

namespace Api = Meridax::VisualControls::Api;
namespace Host = Meridax::Host;

/// The built module, loaded for one test as a host loads it.
class LoadedModule {
public:
    explicit LoadedModule(const char* file = ROTAVUE_MODULE_FILE)
        : handle_(::dlopen(file, RTLD_NOW | RTLD_LOCAL)) {
        if (handle_ == nullptr) throw std::runtime_error(::dlerror());
    }
    LoadedModule(const LoadedModule&) = delete;
    LoadedModule& operator=(const LoadedModule&) = delete;
    ~LoadedModule() { ::dlclose(handle_); }

    template <class Function>
    Function* entry(const char* name) const {
        void* const address = ::dlsym(handle_, name);
        if (address == nullptr) throw std::runtime_error(name);
        return reinterpret_cast<Function*>(address);
    }

    std::int32_t registerServer() const {
        return entry<Api::EntryPoint::RegisterServerFunction>(Api::EntryPoint::RegisterServer)();
    }
    std::int32_t unregisterServer() const {
        return entry<Api::EntryPoint::UnregisterServerFunction>(
            Api::EntryPoint::UnregisterServer)();
    }
    std::int32_t install(bool install, const wchar_t* commandLine) const {
        return entry<Api::EntryPoint::InstallFunction>(Api::EntryPoint::Install)(install,
                                                                                 commandLine);
    }
    std::int32_t canUnloadNow() const {
        return entry<Api::EntryPoint::CanUnloadNowFunction>(Api::EntryPoint::CanUnloadNow)();
    }
    std::uint32_t getClassObject(const Host::Guid& classId, const Host::Guid& interfaceId,
                                 void** object) const {
        return static_cast<std::uint32_t>(entry<Api::EntryPoint::GetClassObjectFunction>(
            Api::EntryPoint::GetClassObject)(classId, interfaceId, object));
    }

    template <class Interface>
    Host::Ref<Interface> classObject() const {
        void* object = nullptr;
        const std::uint32_t status =
            getClassObject(Api::PluginClass, Interface::Identifier, &object);
        if (status != 0) throw Host::HostError(status);
        return Host::Ref<Interface>::adopt(static_cast<Interface*>(object));
    }

    Host::Ref<Api::IMeridaxPlugin> makePlugin() const {
        void* object = nullptr;
        const auto status =
            static_cast<std::uint32_t>(classObject<Api::IClassFactory>()->createInstance(
                nullptr, Api::IMeridaxPlugin::Identifier, &object));
        if (status != 0) throw Host::HostError(status);
        return Host::Ref<Api::IMeridaxPlugin>::adopt(static_cast<Api::IMeridaxPlugin*>(object));
    }

private:
    void* handle_;
};

/// True while the module's file is mapped into this process.
inline bool isModuleLoaded() {
    void* const handle = ::dlopen(ROTAVUE_MODULE_FILE, RTLD_LAZY | RTLD_NOLOAD);
    if (handle != nullptr) ::dlclose(handle);
    return handle != nullptr;
}

}  // namespace Rotavue::ModuleTest
