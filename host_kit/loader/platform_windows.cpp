#include "host_kit/loader/platform.h"
#include "host_kit/loader/windows/registry_view.h"
#include "host_kit/memory/utf8.h"

namespace Rotavue::HostKit {

namespace {

constexpr const wchar_t* ControlKey = L"SOFTWARE\\Meridax\\VCs\\Rotavue";

class LoadedLibrary final : public SharedLibrary {
public:
    explicit LoadedLibrary(HMODULE handle) : handle_(handle) {}
    LoadedLibrary(const LoadedLibrary&) = delete;
    LoadedLibrary& operator=(const LoadedLibrary&) = delete;

    ~LoadedLibrary() override {
        if (handle_ != nullptr) ::FreeLibrary(handle_);
    }

    void* find(const char* name) const override {
        return reinterpret_cast<void*>(::GetProcAddress(handle_, name));
    }

    void keepLoaded() override { handle_ = nullptr; }

private:
    HMODULE handle_;
};

/// The user's own half before the machine's, as a host reads it.
std::optional<std::wstring> textInEither(const std::wstring& key, const std::wstring& name) {
    const auto own = registryText(HKEY_CURRENT_USER, key, name);
    return own ? own : registryText(HKEY_LOCAL_MACHINE, key, name);
}

}  // namespace

std::optional<std::wstring> registryText(HKEY root, const std::wstring& key,
                                         const std::wstring& name) {
    const auto get = [&](wchar_t* text, DWORD& bytes) {
        return ::RegGetValueW(root, key.c_str(), name.c_str(), RRF_RT_REG_SZ, nullptr, text,
                              &bytes);
    };
    DWORD bytes = 0;
    if (get(nullptr, bytes) != ERROR_SUCCESS) return std::nullopt;
    std::wstring text(bytes / sizeof(wchar_t) + 1, L'\0');
    bytes = static_cast<DWORD>(text.size() * sizeof(wchar_t));
    if (get(text.data(), bytes) != ERROR_SUCCESS) return std::nullopt;
    text.resize(text.find(L'\0'));
    return text;
}

std::wstring classKeyOf(const std::wstring& classId) {
    return L"SOFTWARE\\Classes\\CLSID\\" + classId;
}

std::wstring moduleKeyOf(const std::wstring& classId) {
    return classKeyOf(classId) + L"\\InprocServer32";
}

std::optional<std::wstring> announcedClass(HKEY root) {
    return registryText(root, ControlKey, L"GUID");
}

std::optional<std::wstring> registeredClass() {
    const auto own = announcedClass(HKEY_CURRENT_USER);
    return own ? own : announcedClass(HKEY_LOCAL_MACHINE);
}

std::unique_ptr<SharedLibrary> SharedLibrary::load(const std::filesystem::path& file) {
    const std::filesystem::path whole = std::filesystem::absolute(file);
    const HMODULE handle = ::LoadLibraryW(whole.c_str());
    if (handle == nullptr) {
        throw LoadError("the module cannot be loaded: " + whole.string() + " (error " +
                        std::to_string(::GetLastError()) + ")");
    }
    return std::make_unique<LoadedLibrary>(handle);
}

std::optional<std::filesystem::path> registeredModule() {
    const auto classId = registeredClass();
    if (!classId) return std::nullopt;
    const auto file = textInEither(moduleKeyOf(*classId), L"");
    if (!file || file->empty()) {
        throw LoadError("the registry key " + toUtf8(moduleKeyOf(*classId)) + " names no module");
    }
    return std::filesystem::path(*file);
}

std::filesystem::path programFolder() {
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length =
            ::GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
        if (length < path.size()) {
            path.resize(length);
            return std::filesystem::path(path).parent_path();
        }
        path.resize(2 * path.size());
    }
}

}  // namespace Rotavue::HostKit
