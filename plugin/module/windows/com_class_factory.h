#pragma once

#include "plugin/module/class_factory.h"
#include "plugin/module/windows/platform_headers.h"
#include "plugin/module/windows/type_library.h"

namespace Meridax::VisualControls::Rotavue {

/// The class factory as the component model sees it: what the module's own factory makes, as
/// objects of the component model.
class ComClassFactory final : public ::IClassFactory {
public:
    ComClassFactory(ClassFactory& factory, const TypeLibrary& typeLibrary) noexcept
        : factory_(factory), typeLibrary_(typeLibrary) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID interfaceId, void** object) override;
    ULONG STDMETHODCALLTYPE AddRef() override;
    ULONG STDMETHODCALLTYPE Release() override;
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID interfaceId,
                                             void** object) override;
    HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override;

private:
    ClassFactory& factory_;
    const TypeLibrary& typeLibrary_;
};

}  // namespace Meridax::VisualControls::Rotavue
