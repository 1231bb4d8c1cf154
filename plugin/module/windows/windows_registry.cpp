#include "plugin/module/windows/windows_registry.h"

#include "plugin/module/windows/platform_headers.h"

namespace Meridax::VisualControls::Rotavue {

namespace {

HKEY rootOf(Api::RegistryScope scope) {
    return scope == Api::RegistryScope::User ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE;
}

class OpenKey final : public Api::RegistryKey {
public:
    explicit OpenKey(HKEY key) : key_(key) {}
    OpenKey(const OpenKey&) = delete;
    OpenKey& operator=(const OpenKey&) = delete;
    ~OpenKey() override { ::RegCloseKey(key_); }

    /// Two bytes for each character and none for a terminator. The platform would add one where a
    /// zero stands behind the text: what it gets is a copy with another character there.
    bool setText(const std::wstring& name, const std::wstring& text) override {
        const std::wstring copy = text + L'.';
        return setValue(name, REG_SZ, copy.data(), text.size() * sizeof(wchar_t));
    }

    bool setNumber(const std::wstring& name, std::uint32_t number) override {
        return setValue(name, REG_DWORD, &number, sizeof(number));
    }

    bool deleteValue(const std::wstring& name) override {
        return ::RegDeleteValueW(key_, name.c_str()) == ERROR_SUCCESS;
    }

private:
    bool setValue(const std::wstring& name, DWORD type, const void* data, std::size_t bytes) {
        return ::RegSetValueExW(key_, name.c_str(), 0, type, static_cast<const BYTE*>(data),
                                static_cast<DWORD>(bytes)) == ERROR_SUCCESS;
    }

    HKEY key_;
};

}  // namespace

std::unique_ptr<Api::RegistryKey> WindowsRegistry::createKey(Api::RegistryScope scope,
                                                             const std::wstring& path) {
    HKEY key = nullptr;
    const LSTATUS status =
        ::RegCreateKeyExW(rootOf(scope), path.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                          KEY_ALL_ACCESS, nullptr, &key, nullptr);
    if (status != ERROR_SUCCESS) return nullptr;
    return std::make_unique<OpenKey>(key);
}

bool WindowsRegistry::deleteKey(Api::RegistryScope scope, const std::wstring& path) {
    return ::RegDeleteKeyW(rootOf(scope), path.c_str()) == ERROR_SUCCESS;
}

}  // namespace Meridax::VisualControls::Rotavue
