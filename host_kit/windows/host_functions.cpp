#include "host_kit/windows/host_operations.h"
#include "plugin/module/windows/interfaces/platform_guid.h"

namespace Rotavue::HostKit {

namespace {

ComObject& objectOf(IDispatch* object) {
    return *reinterpret_cast<ComFace*>(object)->object;
}

}  // namespace

HRESULT HostFunctions::QueryInterface(IDispatch* object, REFIID identifier,
                                      void** result) noexcept {
    return objectOf(object).queryInterface(Binary::guidOf(identifier), result);
}

ULONG HostFunctions::AddRef(IDispatch* object) noexcept {
    return objectOf(object).addRef();
}

ULONG HostFunctions::Release(IDispatch* object) noexcept {
    return objectOf(object).release();
}

HRESULT HostFunctions::GetTypeInfoCount(IDispatch*, UINT* count) noexcept {
    if (count == nullptr) return E_POINTER;
    *count = 0;
    return S_OK;
}

HRESULT HostFunctions::GetTypeInfo(IDispatch*, UINT, LCID, ITypeInfo** info) noexcept {
    if (info == nullptr) return E_POINTER;
    *info = nullptr;
    return E_NOTIMPL;
}

HRESULT HostFunctions::GetIDsOfNames(IDispatch*, REFIID, LPOLESTR*, UINT, LCID, DISPID*) noexcept {
    return E_NOTIMPL;
}

HRESULT HostFunctions::Invoke(IDispatch*, DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*,
                              EXCEPINFO*, UINT*) noexcept {
    return E_NOTIMPL;
}

}  // namespace Rotavue::HostKit
