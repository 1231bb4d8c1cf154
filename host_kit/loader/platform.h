#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>

/// What the host kit needs of a platform. One implementation file for each.
namespace Rotavue::HostKit {

/// Why a module cannot be had. `what()` is one line that names the file or the registry key.
class LoadError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A library in this process, with its names kept to itself.
class SharedLibrary {
public:
    virtual ~SharedLibrary() = default;

    /// The address of an exported name; null where there is none.
    virtual void* find(const char* name) const = 0;

    /// Leaves the library in the process when this object ends, which otherwise unloads it.
    virtual void keepLoaded() = 0;

    /// Loads the file. Raises `LoadError`.
    static std::unique_ptr<SharedLibrary> load(const std::filesystem::path& file);
};

/// The file of the module that the registry names for the control, the user's own registry before
/// the machine's; nothing where none is registered. Raises `LoadError` for a registry that cannot
/// be read or names no file.
std::optional<std::filesystem::path> registeredModule();

/// The folder of the running program.
std::filesystem::path programFolder();

}  // namespace Rotavue::HostKit
