#pragma once

#include "plugin/module/class_factory.h"
#include "plugin/module/portable/file_registry_store.h"
#include "plugin/module/portable/no_type_library.h"
#include "plugin/module/portable/supplied_clipboard.h"
#include "plugin/module/registration.h"

#include <cstdint>

namespace Meridax::VisualControls::Rotavue {

/// A module on a platform without a component model: what its five entry points do. One object per
/// loaded module, made at load and destroyed at unload. Nothing leaves it as an exception: a
/// failure that has no status of its own becomes 0x8007000E or 0x80004005.
class PortableModule {
public:
    explicit PortableModule(Api::ControlMaker makeControl);
    PortableModule(const PortableModule&) = delete;
    PortableModule& operator=(const PortableModule&) = delete;

    std::int32_t getClassObject(const Host::Guid& classId, const Host::Guid& interfaceId,
                                void** object) noexcept;
    std::int32_t canUnloadNow() const noexcept;
    std::int32_t registerServer() noexcept;
    std::int32_t unregisterServer() noexcept;
    std::int32_t install(bool install, const wchar_t* commandLine) noexcept;

private:
    Api::LiveObjects liveObjects_;
    Api::ControlMaker makeControl_;
    SuppliedClipboard clipboard_;
    FileRegistryStore registry_;
    NoTypeLibrary typeLibrary_;
    Registration registration_;
    ClassFactory factory_;
};

}  // namespace Meridax::VisualControls::Rotavue
