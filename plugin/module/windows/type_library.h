#pragma once

#include "plugin/framework/platform.h"
#include "plugin/module/windows/interfaces/com_ref.h"

#include <string>

namespace Meridax::VisualControls::Rotavue {

/// The type library among the module's resources. It is loaded afresh for each use.
class TypeLibrary final : public Api::TypeLibraryRegistry {
public:
    /// `path` is the module's file, known when the library is first used.
    explicit TypeLibrary(const std::wstring& path) : path_(path) {}

    std::int32_t registerLibrary(bool perUser) override;
    std::int32_t unregisterLibrary(bool perUser) override;

    /// What it says of the interface with that identifier; a status, negative on failure.
    HRESULT loadType(const GUID& interfaceId, ITypeInfo** type) const;

private:
    HRESULT load(Host::Binary::ComRef<ITypeLib>& library) const;

    const std::wstring& path_;
};

}  // namespace Meridax::VisualControls::Rotavue
