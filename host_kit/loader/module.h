#pragma once

#include "host_kit/loader/message_values.h"
#include "host_kit/loader/platform.h"
#include "plugin/framework/host/ref.h"
#include "plugin/framework/plugin_interfaces.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>

namespace Rotavue::HostKit {

/// Which module to load.
struct ModuleChoice {
    ModuleChoice(std::filesystem::path moduleFile, bool isRegistered = false)
        : file(std::move(moduleFile)), registered(isRegistered) {}

    std::filesystem::path file;
    bool registered;  ///< the registry names it: it is found the way a host finds it
};

/// The module to load: the file that is named, else the registered one, else `Rotavue64.vc` beside
/// the program. Raises `LoadError` for a registry that cannot be read.
ModuleChoice chooseModule(const std::optional<std::filesystem::path>& named);

/// The loaded plug-in. It is unloaded when this object ends, unless something of it is still held;
/// then it stays in the process, at least for as long as that is held.
class Module {
public:
    /// Loads the module and asks for the class of its controls. Raises `LoadError`.
    explicit Module(const ModuleChoice& choice);
    explicit Module(const std::filesystem::path& file) : Module(ModuleChoice(file)) {}
    ~Module();
    Module(const Module&) = delete;
    Module& operator=(const Module&) = delete;

    /// A new control. Raises `LoadError` with the status where the factory makes none.
    Host::Ref<Api::IMeridaxPlugin> makeControl();

    /// The clipboard for all controls of the module; null takes it away. Does nothing on a platform
    /// where the module has the system's own.
    void supplyClipboard(Api::IHostClipboard* clipboard);

private:
    class Loaded;  ///< by the platform's means

    std::unique_ptr<Loaded> loaded_;
};

}  // namespace Rotavue::HostKit
