#include "host_kit/loader/platform.h"
#include "host_kit/memory/utf8.h"
#include "host_kit/namespaces.h"
#include "plugin/framework/guid_text.h"
#include "plugin/module/portable/registry_file.h"

#include <dlfcn.h>

#include <array>

namespace Rotavue::HostKit {

namespace {

namespace Registry = Meridax::VisualControls::Rotavue;

constexpr const wchar_t* ControlKey = L"SOFTWARE\\Meridax\\VCs\\Rotavue";

class LoadedLibrary final : public SharedLibrary {
public:
    explicit LoadedLibrary(void* handle) : handle_(handle) {}

    ~LoadedLibrary() override {
        if (handle_ != nullptr) dlclose(handle_);
    }

    void* find(const char* name) const override { return dlsym(handle_, name); }
    void keepLoaded() override { handle_ = nullptr; }

private:
    void* handle_;
};

/// Both halves of the registry as a host sees them.
class RegistryView {
public:
    std::optional<std::wstring> text(const std::wstring& key, const std::wstring& name) const {
        for (const Registry::RegistryFile& half : halves_) {
            if (const std::wstring* found = half.text(key, name)) return *found;
        }
        return std::nullopt;
    }

private:
    static Registry::RegistryFile load(Api::RegistryScope scope) {
        const std::filesystem::path file = Registry::registryFilePath(scope);
        return file.empty() ? Registry::RegistryFile{} : Registry::RegistryFile::load(file);
    }

    std::array<Registry::RegistryFile, 2> halves_{load(Api::RegistryScope::User),
                                                  load(Api::RegistryScope::Machine)};
};

std::wstring moduleKey(const std::wstring& classId) {
    return L"SOFTWARE\\Classes\\CLSID\\" + classId + L"\\InprocServer32";
}

std::optional<std::filesystem::path> moduleIn(const RegistryView& registry) {
    const auto classId = registry.text(ControlKey, L"GUID");
    if (!classId) return std::nullopt;
    const auto file = registry.text(moduleKey(*classId), L"");
    if (!file || file->empty()) {
        throw LoadError("the registry key " + toUtf8(moduleKey(*classId)) + " names no module");
    }
    return std::filesystem::path(toUtf8(*file));  // A wide one would go through the locale.
}

}  // namespace

std::unique_ptr<SharedLibrary> SharedLibrary::load(const std::filesystem::path& file) {
    const std::filesystem::path whole = std::filesystem::absolute(file);
    void* handle = dlopen(whole.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (handle == nullptr)
        throw LoadError(std::string("the module cannot be loaded: ") + dlerror());
    return std::make_unique<LoadedLibrary>(handle);
}

std::optional<std::filesystem::path> registeredModule() {
    try {
        return moduleIn(RegistryView());
    } catch (const Registry::RegistryFileError& error) {
        throw LoadError(error.what());
    }
}

std::filesystem::path programFolder() {
    return std::filesystem::read_symlink("/proc/self/exe").parent_path();
}

}  // namespace Rotavue::HostKit
