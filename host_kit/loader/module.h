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

/// The module file to load: the one that is named, else the registered one, else `Rotavue64.vc`
/// beside the program. Raises `LoadError` for a registry that cannot be read.
std::filesystem::path chooseModule(const std::optional<std::filesystem::path>& named);

/// The loaded plug-in. It is unloaded when this object ends, unless something of it is still held;
/// then it stays in the process.
class Module {
public:
    /// Loads the file and asks for the class factory. Raises `LoadError`.
    explicit Module(const std::filesystem::path& file);
    ~Module();
    Module(const Module&) = delete;
    Module& operator=(const Module&) = delete;

    /// A new control. Raises `LoadError` with the status where the factory makes none.
    Host::Ref<Api::IMeridaxPlugin> makeControl();

    /// The clipboard for all controls of the module; null takes it away. Does nothing on a platform
    /// where the module has the system's own.
    void supplyClipboard(Api::IHostClipboard* clipboard);

private:
    template <class Function>
    Function* entryPoint(const char* name) const;

    std::filesystem::path file_;
    std::unique_ptr<SharedLibrary> library_;
    Api::EntryPoint::CanUnloadNowFunction* canUnloadNow_ = nullptr;
    Host::Ref<Api::IClassFactory> factory_;
};

}  // namespace Rotavue::HostKit
