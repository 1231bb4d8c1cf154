#pragma once

#include "plugin/framework/platform.h"
#include "plugin/module/module_info.h"

#include <cstdint>
#include <functional>
#include <string>

namespace Meridax::VisualControls::Rotavue {

/// What registration needs of the module and of its platform.
struct RegistrationNeeds {
    Api::RegistryStore& store;
    Api::TypeLibraryRegistry& typeLibrary;
    std::function<ModuleInfo()> moduleInfo;    ///< asked at each registration
    std::function<std::wstring()> modulePath;  ///< full path of the module file
};

/// The entries from which a host learns of the control without loading the module: written and
/// removed by the module itself.
///
/// Two things are as they are on purpose. Removal goes to the scope of the last registration of
/// this process, the machine's where there was none, while the type library follows "user" at once.
/// And the class key is deleted while it has a key below it, which a registry refuses: it stays.
class Registration {
public:
    explicit Registration(RegistrationNeeds needs) : needs_(std::move(needs)) {}

    /// Writes the entries, then registers the type library and gives the status of that: a store
    /// that cannot be written is passed over in silence.
    std::int32_t registerServer();

    /// Removes the announcement, then the type library, and gives the status of that.
    std::int32_t unregisterServer();

    /// Registers or removes; `commandLine` may be null. "user" in any case of letters chooses the
    /// user's scope for this and every later registration. A registration that fails or raises is
    /// removed again, with what was written of it, and its status given.
    std::int32_t install(bool install, const wchar_t* commandLine);

private:
    void writeEntries(const ModuleInfo& info) const;
    void writeControlKey(const ModuleInfo& info, Api::RegistryScope scope) const;
    void writeClassKey(const ModuleInfo& info, Api::RegistryScope scope) const;
    Api::RegistryScope scope() const;

    RegistrationNeeds needs_;
    bool perUser_ = false;  ///< set by `install`, never cleared
    bool registryPerUser_ =
        false;  ///< where the entries go; follows `perUser_` at registration only
};

}  // namespace Meridax::VisualControls::Rotavue
