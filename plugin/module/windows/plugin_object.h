#pragma once

#include "plugin/framework/host/ref.h"
#include "plugin/framework/plugin_interfaces.h"
#include "plugin/module/windows/interfaces/plugin_tables.h"
#include "plugin/module/windows/type_library.h"

#include <cstdint>

namespace Meridax::VisualControls::Rotavue {

/// The control object as the component model sees it: identity, message and dispatch operations
/// around a bridge, which does everything else. The reference count is a plain number; the bridge
/// counts as the module's living object.
class PluginObject final : public Api::Binary::IMeridaxPlugin, public Api::Binary::IVCPluginImpl {
public:
    /// Makes an object around a bridge and gives its identity, retained for the caller. With an
    /// outer object the identity operations of all other interfaces go there.
    static IUnknown* create(Host::Ref<Api::IMeridaxPlugin> bridge, const TypeLibrary& typeLibrary,
                            IUnknown* outer);

    PluginObject(const PluginObject&) = delete;
    PluginObject& operator=(const PluginObject&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID interfaceId, void** object) override;
    ULONG STDMETHODCALLTYPE AddRef() override;
    ULONG STDMETHODCALLTYPE Release() override;

    HRESULT STDMETHODCALLTYPE message(ULONG code, VARIANT arguments, VARIANT* result) override;

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID language, ITypeInfo** type) override;
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count,
                                            LCID language, DISPID* ids) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID reserved, LCID language, WORD kind,
                                     DISPPARAMS* arguments, VARIANT* result, EXCEPINFO* failure,
                                     UINT* badArgument) override;

private:
    /// The object's own reference count and interfaces, whoever the outer object is.
    class Identity final : public IUnknown {
    public:
        explicit Identity(PluginObject& object) noexcept : object_(object) {}

        HRESULT STDMETHODCALLTYPE QueryInterface(REFIID interfaceId, void** object) override;
        ULONG STDMETHODCALLTYPE AddRef() override { return ++count_; }
        ULONG STDMETHODCALLTYPE Release() override;

    private:
        IUnknown* offered(REFIID interfaceId);

        PluginObject& object_;
        ULONG count_ = 1;
    };

    PluginObject(Host::Ref<Api::IMeridaxPlugin> bridge, const TypeLibrary& typeLibrary,
                 IUnknown* outer);
    ~PluginObject() = default;

    Identity identity_;
    IUnknown& outer_;  ///< `identity_` for an object that stands alone
    const TypeLibrary& typeLibrary_;
    Host::Ref<Api::IMeridaxPlugin> bridge_;
};

}  // namespace Meridax::VisualControls::Rotavue
