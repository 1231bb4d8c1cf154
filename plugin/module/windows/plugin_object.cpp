#include "plugin/module/windows/plugin_object.h"

#include "plugin/module/windows/interfaces/com_ref.h"
#include "plugin/module/windows/interfaces/platform_guid.h"
#include "plugin/module/windows/variant_arguments.h"
#include "plugin/module/windows/variant_result.h"

#include <utility>

namespace Meridax::VisualControls::Rotavue {

namespace {

using Host::Binary::ComRef;
using Host::Binary::guidOf;
using Host::Binary::platformGuid;

}  // namespace

IUnknown* PluginObject::create(Host::Ref<Api::IMeridaxPlugin> bridge,
                               const TypeLibrary& typeLibrary, IUnknown* outer) {
    return &(new PluginObject(std::move(bridge), typeLibrary, outer))->identity_;
}

PluginObject::PluginObject(Host::Ref<Api::IMeridaxPlugin> bridge, const TypeLibrary& typeLibrary,
                           IUnknown* outer)
    : identity_(*this),
      outer_(outer == nullptr ? identity_ : *outer),
      typeLibrary_(typeLibrary),
      bridge_(std::move(bridge)) {}

HRESULT PluginObject::QueryInterface(REFIID interfaceId, void** object) {
    return outer_.QueryInterface(interfaceId, object);
}

ULONG PluginObject::AddRef() {
    return outer_.AddRef();
}

ULONG PluginObject::Release() {
    return outer_.Release();
}

HRESULT PluginObject::message(ULONG code, VARIANT arguments, VARIANT* result) {
    const auto self = ComRef<IUnknown>::share(&outer_);
    const VariantArguments list(arguments);
    if (result == nullptr) return bridge_->message(code, &list, nullptr);
    VariantResult answer(*result);
    return bridge_->message(code, &list, &answer);
}

HRESULT PluginObject::GetTypeInfoCount(UINT* count) {
    if (count == nullptr) return E_POINTER;
    *count = 1;
    return S_OK;
}

HRESULT PluginObject::GetTypeInfo(UINT index, LCID /*language*/, ITypeInfo** type) {
    if (type == nullptr) return E_POINTER;
    *type = nullptr;
    if (index != 0) return DISP_E_BADINDEX;
    return typeLibrary_.loadType(platformGuid(Api::IVCPluginImpl::Identifier), type);
}

HRESULT PluginObject::GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID language,
                                    DISPID* ids) {
    if (!IsEqualIID(reserved, IID_NULL)) return DISP_E_UNKNOWNINTERFACE;
    ComRef<ITypeInfo> type;
    const HRESULT status = GetTypeInfo(0, language, type.put());
    return FAILED(status) ? status : type->GetIDsOfNames(names, count, ids);
}

HRESULT PluginObject::Invoke(DISPID id, REFIID reserved, LCID language, WORD kind,
                             DISPPARAMS* arguments, VARIANT* result, EXCEPINFO* failure,
                             UINT* badArgument) {
    if (!IsEqualIID(reserved, IID_NULL)) return DISP_E_UNKNOWNINTERFACE;
    ComRef<ITypeInfo> type;
    const HRESULT status = GetTypeInfo(0, language, type.put());
    if (FAILED(status)) return status;
    return type->Invoke(static_cast<IDispatch*>(this), id, kind, arguments, result, failure,
                        badArgument);
}

HRESULT PluginObject::Identity::QueryInterface(REFIID interfaceId, void** object) {
    if (object == nullptr) return E_POINTER;
    IUnknown* const found = offered(interfaceId);
    *object = found;
    if (found == nullptr) return E_NOINTERFACE;
    found->AddRef();
    return S_OK;
}

ULONG PluginObject::Identity::Release() {
    if (--count_ > 0) return count_;
    count_ = 1;  // What the host does while the parts go must not end the object a second time.
    delete &object_;
    return 0;
}

/// Each of them is a class with one virtual table: the pointer to it as an `IUnknown` is its own.
IUnknown* PluginObject::Identity::offered(REFIID interfaceId) {
    const Host::Guid wanted = guidOf(interfaceId);
    if (wanted == Host::IHostObject::Identifier) return this;
    if (wanted == Api::IMeridaxPlugin::Identifier)
        return static_cast<Api::Binary::IMeridaxPlugin*>(&object_);
    if (wanted == Api::IVCPluginImpl::Identifier || IsEqualIID(interfaceId, IID_IDispatch))
        return static_cast<Api::Binary::IVCPluginImpl*>(&object_);
    return nullptr;
}

}  // namespace Meridax::VisualControls::Rotavue
