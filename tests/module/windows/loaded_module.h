#pragma once

#include "plugin/module/windows/platform_headers.h"

#include <gtest/gtest.h>

namespace Rotavue::ModuleTest {

/// The built module, loaded for as long as this lives, and its entry points.
class LoadedModule {
public:
    LoadedModule() : handle_(::LoadLibraryW(ROTAVUE_MODULE_FILE)) {}
    LoadedModule(const LoadedModule&) = delete;
    LoadedModule& operator=(const LoadedModule&) = delete;
    ~LoadedModule() { ::FreeLibrary(handle_); }

    HRESULT registerServer() const { return entry<HRESULT()>("DllRegisterServer")(); }
    HRESULT unregisterServer() const { return entry<HRESULT()>("DllUnregisterServer")(); }
    HRESULT canUnloadNow() const { return entry<HRESULT()>("DllCanUnloadNow")(); }
    HRESULT install(bool install, const wchar_t* commandLine) const {
        return entry<HRESULT(BOOL, LPCWSTR)>("DllInstall")(install ? TRUE : FALSE, commandLine);
    }
    HRESULT classObject(REFCLSID classId, REFIID interfaceId, void** object) const {
        return entry<HRESULT(REFCLSID, REFIID, void**)>("DllGetClassObject")(classId, interfaceId,
                                                                             object);
    }

    HMODULE handle() const { return handle_; }

private:
    template <class Function>
    Function* entry(const char* name) const {
        return reinterpret_cast<Function*>(
            reinterpret_cast<void (*)()>(::GetProcAddress(handle_, name)));
    }

    HMODULE handle_;
};

}  // namespace Rotavue::ModuleTest
