#include "host_kit/loader/module.h"
#include "host_kit/loader/windows/com_control.h"
#include "host_kit/loader/windows/registry_view.h"
#include "host_kit/loader/windows/surroundings.h"
#include "host_kit/memory/call.h"
#include "host_kit/memory/utf8.h"
#include "plugin/module/windows/interfaces/platform_guid.h"

#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace Rotavue::HostKit {

namespace {

using Host::Binary::ComRef;
using Host::Binary::platformGuid;
using Plugin = Api::Binary::IMeridaxPlugin;

const IID PluginInterface = platformGuid(Api::IMeridaxPlugin::Identifier);

std::string failure(const std::string& what, HRESULT status) {
    return what + " (status " + statusText(static_cast<std::uint32_t>(status)) + ")";
}

/// Where controls come from.
class ControlClass {
public:
    virtual ~ControlClass() = default;
    virtual HRESULT create(void** control) = 0;
};

/// The class of a file that nobody has registered.
class ClassOfFile final : public ControlClass {
public:
    explicit ClassOfFile(const std::filesystem::path& file)
        : file_(file), library_(SharedLibrary::load(file)) {
        canUnloadNow_ = entryPoint<decltype(&::DllCanUnloadNow)>("DllCanUnloadNow");
        const auto getClassObject = entryPoint<decltype(&::DllGetClassObject)>("DllGetClassObject");
        void* factory = nullptr;
        const HRESULT status =
            getClassObject(platformGuid(Api::PluginClass), IID_IClassFactory, &factory);
        factory_ = ComRef<::IClassFactory>::adopt(static_cast<::IClassFactory*>(factory));
        if (!factory_) throw LoadError(failure("the module gives no class factory", status));
    }

    ClassOfFile(const ClassOfFile&) = delete;
    ClassOfFile& operator=(const ClassOfFile&) = delete;

    ~ClassOfFile() override {
        factory_ = {};
        if (canUnloadNow_() != S_OK) library_->keepLoaded();
    }

    HRESULT create(void** control) override {
        return factory_->CreateInstance(nullptr, PluginInterface, control);
    }

private:
    template <class Function>
    Function entryPoint(const char* name) const {
        void* address = library_->find(name);
        if (address == nullptr) {
            throw LoadError(file_.string() + " is no module of a control: it exports no " + name);
        }
        return reinterpret_cast<Function>(address);
    }

    std::filesystem::path file_;
    std::unique_ptr<SharedLibrary> library_;
    HRESULT(STDMETHODCALLTYPE* canUnloadNow_)() = nullptr;
    ComRef<::IClassFactory> factory_;
};

/// The registered class: the component model finds the file. A program that runs as administrator
/// is not shown the classes of a user's own registry; then the file that the registry names is it.
class RegisteredClass final : public ControlClass {
public:
    explicit RegisteredClass(std::filesystem::path file) : file_(std::move(file)) {
        const std::wstring text = registeredClass().value_or(L"");
        const HRESULT status = ::CLSIDFromString(text.c_str(), &classId_);
        if (FAILED(status)) throw LoadError(failure(toUtf8(text) + " names no class", status));
    }

    HRESULT create(void** control) override {
        const HRESULT status =
            ::CoCreateInstance(classId_, nullptr, CLSCTX_INPROC_SERVER, PluginInterface, control);
        if (status != REGDB_E_CLASSNOTREG) return status;
        if (!ofFile_) ofFile_.emplace(file_);
        return ofFile_->create(control);
    }

private:
    std::filesystem::path file_;
    CLSID classId_{};
    std::optional<ClassOfFile> ofFile_;
};

std::unique_ptr<ControlClass> classOf(const ModuleChoice& choice) {
    if (!choice.registered) return std::make_unique<ClassOfFile>(choice.file);
    return std::make_unique<RegisteredClass>(choice.file);
}

}  // namespace

class Module::Loaded {
public:
    explicit Loaded(const ModuleChoice& choice) : controls(classOf(choice)) {}

    std::shared_ptr<Surroundings> surroundings = std::make_shared<Surroundings>();
    std::unique_ptr<ControlClass> controls;
};

Module::Module(const ModuleChoice& choice) : loaded_(std::make_unique<Loaded>(choice)) {}

Module::~Module() = default;

Host::Ref<Api::IMeridaxPlugin> Module::makeControl() {
    void* control = nullptr;
    const HRESULT status = loaded_->controls->create(&control);
    if (control == nullptr) throw LoadError(failure("the module makes no control", status));
    auto plugin = ComRef<Plugin>::adopt(static_cast<Plugin*>(control));
    return Host::Ref<Api::IMeridaxPlugin>::share(
        new ComControl(std::move(plugin), loaded_->surroundings));
}

void Module::supplyClipboard(Api::IHostClipboard* clipboard) {
    loaded_->surroundings->clipboard = Host::Ref<Api::IHostClipboard>::share(clipboard);
}

}  // namespace Rotavue::HostKit
