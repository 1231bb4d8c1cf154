#pragma once

#include "plugin/module/windows/platform_headers.h"

#include <optional>
#include <string>

/// What stands in the registry, read back past everything of ours.
namespace Rotavue::ModuleTest {

struct StoredValue {
    DWORD type = 0;
    DWORD bytes = 0;
    std::wstring text;  ///< without a terminator
    DWORD number = 0;
};

inline std::optional<StoredValue> storedValue(HKEY root, const std::wstring& path,
                                              const std::wstring& name) {
    HKEY key = nullptr;
    if (::RegOpenKeyExW(root, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) return {};
    StoredValue value;
    wchar_t content[2100] = {};
    value.bytes = sizeof(content) - sizeof(wchar_t);
    const LSTATUS status = ::RegQueryValueExW(key, name.c_str(), nullptr, &value.type,
                                              reinterpret_cast<BYTE*>(content), &value.bytes);
    ::RegCloseKey(key);
    if (status != ERROR_SUCCESS) return {};
    if (value.type == REG_DWORD) value.number = *reinterpret_cast<const DWORD*>(content);
    if (value.type == REG_SZ) value.text = content;
    return value;
}

inline bool hasKey(HKEY root, const std::wstring& path) {
    HKEY key = nullptr;
    if (::RegOpenKeyExW(root, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) return false;
    ::RegCloseKey(key);
    return true;
}

inline DWORD valueCount(HKEY root, const std::wstring& path) {
    HKEY key = nullptr;
    DWORD count = 0;
    if (::RegOpenKeyExW(root, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) return 0;
    ::RegQueryInfoKeyW(key, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, &count, nullptr,
                       nullptr, nullptr, nullptr);
    ::RegCloseKey(key);
    return count;
}

inline void putText(HKEY root, const std::wstring& path, const std::wstring& name,
                    const std::wstring& text) {
    ::RegSetKeyValueW(root, path.c_str(), name.c_str(), REG_SZ, text.c_str(),
                      static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
}

/// Deletes a key with everything below it.
inline void deleteTree(HKEY root, const std::wstring& path) {
    ::RegDeleteTreeW(root, path.c_str());
}

}  // namespace Rotavue::ModuleTest
