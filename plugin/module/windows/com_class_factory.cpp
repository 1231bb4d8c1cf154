#include "plugin/module/windows/com_class_factory.h"

#include "plugin/module/windows/interfaces/com_ref.h"
#include "plugin/module/windows/plugin_object.h"

namespace Meridax::VisualControls::Rotavue {

using Host::Binary::ComRef;

HRESULT ComClassFactory::QueryInterface(REFIID interfaceId, void** object) {
    if (object == nullptr) return E_POINTER;
    const bool isOffered =
        IsEqualIID(interfaceId, IID_IUnknown) || IsEqualIID(interfaceId, IID_IClassFactory);
    *object = isOffered ? this : nullptr;
    if (!isOffered) return E_NOINTERFACE;
    AddRef();
    return S_OK;
}

// The factory lives as long as the module: its references only keep that loaded.

ULONG ComClassFactory::AddRef() {
    factory_.retain();
    return 2;
}

ULONG ComClassFactory::Release() {
    factory_.release();
    return 1;
}

HRESULT ComClassFactory::CreateInstance(IUnknown* outer, REFIID interfaceId, void** object) {
    if (object == nullptr) return E_POINTER;
    *object = nullptr;
    if (outer != nullptr && !IsEqualIID(interfaceId, IID_IUnknown)) return CLASS_E_NOAGGREGATION;
    void* made = nullptr;
    const HRESULT status = factory_.createInstance(nullptr, Api::IMeridaxPlugin::Identifier, &made);
    if (FAILED(status)) return status;
    auto bridge = Host::Ref<Api::IMeridaxPlugin>::adopt(static_cast<Api::IMeridaxPlugin*>(made));
    try {
        const auto identity =
            ComRef<IUnknown>::adopt(PluginObject::create(std::move(bridge), typeLibrary_, outer));
        return identity->QueryInterface(interfaceId, object);
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    }
}

HRESULT ComClassFactory::LockServer(BOOL lock) {
    return factory_.lockServer(lock != FALSE);
}

}  // namespace Meridax::VisualControls::Rotavue
