#include "host_kit/loader/module.h"

#include "host_kit/memory/call.h"

#include <cstdint>
#include <string>

namespace Rotavue::HostKit {

namespace {

std::string failure(const char* what, std::int32_t status) {
    return std::string(what) + " (status " + statusText(static_cast<std::uint32_t>(status)) + ")";
}

}  // namespace

class Module::Loaded {
public:
    explicit Loaded(const std::filesystem::path& file);
    ~Loaded();
    Loaded(const Loaded&) = delete;
    Loaded& operator=(const Loaded&) = delete;

    Api::IClassFactory& factory() { return *factory_; }

    void supplyClipboard(Api::IHostClipboard* clipboard) {
        if (const auto services = factory_.offered<Api::IModuleServices>()) {
            services->supplyClipboard(clipboard);
        }
    }

private:
    template <class Function>
    Function* entryPoint(const char* name) const;

    std::filesystem::path file_;
    std::unique_ptr<SharedLibrary> library_;
    Api::EntryPoint::CanUnloadNowFunction* canUnloadNow_ = nullptr;
    Host::Ref<Api::IClassFactory> factory_;
};

Module::Loaded::Loaded(const std::filesystem::path& file)
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

Module::Loaded::~Loaded() {
    factory_ = nullptr;
    if (canUnloadNow_() != 0) library_->keepLoaded();
}

template <class Function>
Function* Module::Loaded::entryPoint(const char* name) const {
    void* address = library_->find(name);
    if (address == nullptr) {
        throw LoadError(file_.string() + " is no module of a control: it exports no " + name);
    }
    return reinterpret_cast<Function*>(address);
}

Module::Module(const ModuleChoice& choice) : loaded_(std::make_unique<Loaded>(choice.file)) {}

Module::~Module() = default;

Host::Ref<Api::IMeridaxPlugin> Module::makeControl() {
    void* control = nullptr;
    const std::int32_t status =
        loaded_->factory().createInstance(nullptr, Api::IMeridaxPlugin::Identifier, &control);
    if (control == nullptr) throw LoadError(failure("the module makes no control", status));
    return Host::Ref<Api::IMeridaxPlugin>::adopt(static_cast<Api::IMeridaxPlugin*>(control));
}

void Module::supplyClipboard(Api::IHostClipboard* clipboard) {
    loaded_->supplyClipboard(clipboard);
}

}  // namespace Rotavue::HostKit
