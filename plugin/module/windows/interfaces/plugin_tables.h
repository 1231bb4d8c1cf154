#pragma once

#include "plugin/module/windows/platform_headers.h"

/// The plug-in's own interfaces in their binary form. Their identifiers are those of
/// plugin/framework/plugin_interfaces.h.
namespace Meridax::VisualControls::Api::Binary {

/// Slot 3 is the one message operation. What fails in it is thrown through it.
struct IMeridaxPlugin : public IUnknown {
    virtual HRESULT STDMETHODCALLTYPE message(ULONG code, VARIANT arguments, VARIANT* result) = 0;

protected:
    ~IMeridaxPlugin() = default;
};

/// Nothing beyond the dispatch operations.
struct IVCPluginImpl : public IDispatch {
protected:
    ~IVCPluginImpl() = default;
};

}  // namespace Meridax::VisualControls::Api::Binary
