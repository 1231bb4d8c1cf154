#include "host_kit/loader/module.h"

#include "host_kit/memory/call.h"

#include <string>

namespace Rotavue::HostKit {

namespace {

constexpr const char* ModuleFileName = "Rotavue64.vc";

std::string failure(const char* what, std::int32_t status) {
    return std::string(what) + " (status " + statusText(static_cast<std::uint32_t>(status)) + ")";
}

}  // namespace

std::filesystem::path chooseModule(const std::optional<std::filesystem::path>& named) {
    if (named) return *named;
    if (const auto registered = registeredModule()) return *registered;
    return programFolder() / ModuleFileName;
}

Module::Module(const std::filesystem::path& file)
    : file_(file),
      library_(SharedLibrary::load(file)),
      canUnloadNow_(
          entryPoint<Api::EntryPoint::CanUnloadNowFunction>(Api::EntryPoint::CanUnloadNow)) {
    auto* getClassObject =
        entryPoint<Api::EntryPoint::GetClassObjectFunction>(Api::EntryPoint::GetClassObject);
    void* factory = nullptr;
    const std::int32_t status =
        getClassObject(Api::PluginClass, Api::IClassFactory::Identifier, &factory);
    factory_ = Host::Ref<Api::IClassFactory>::adopt(static_cast<Api::IClassFactory*>(factory));
    if (!factory_) throw LoadError(failure("the module gives no class factory", status));
}

Module::~Module() {
    factory_ = nullptr;
    if (canUnloadNow_() != 0) library_->keepLoaded();
}

template <class Function>
Function* Module::entryPoint(const char* name) const {
    void* address = library_->find(name);
    if (address == nullptr) {
        throw LoadError(file_.string() + " is no module of a control: it exports no " + name);
    }
    return reinterpret_cast<Function*>(address);
}

Host::Ref<Api::IMeridaxPlugin> Module::makeControl() {
    void* control = nullptr;
    const std::int32_t status =
        factory_->createInstance(nullptr, Api::IMeridaxPlugin::Identifier, &control);
    if (control == nullptr) throw LoadError(failure("the module makes no control", status));
    return Host::Ref<Api::IMeridaxPlugin>::adopt(static_cast<Api::IMeridaxPlugin*>(control));
}

void Module::supplyClipboard(Api::IHostClipboard* clipboard) {
    if (const auto services = factory_.offered<Api::IModuleServices>()) {
        services->supplyClipboard(clipboard);
    }
}

}  // namespace Rotavue::HostKit
