#pragma once

#include "plugin/framework/platform.h"
#include "plugin/module/portable/registry_content.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

/// The registry store of a platform without a registry: one text file per scope. The module writes
/// it, a host reads it, and a person can do both:
///
///     Meridax registry, format 1
///
///     [SOFTWARE\Meridax\VCs\Rotavue]
///     "Name" = text "Rotavue"
///     "Width" = number 400
///
///     [SOFTWARE\Classes\CLSID\{264200AB-CDA2-4257-932E-FD19E014BD0C}]
///     @ = text "VCPluginImpl class"
///
/// UTF-8, one entry a line. `@` is the key's default value, a line beginning with `#` is a comment
/// (it does not survive the next writing), empty lines are passed over. In quotes, `\"`, `\\`,
/// `\n`, `\r`, `\t` and `\u{HEX}` stand for quotation mark, backslash and control characters.
/// Names are compared with regard to case. A file without a single byte holds nothing. Anything
/// else is damage.
namespace Meridax::VisualControls::Rotavue {

/// A registry file that cannot be read. `what()` reads "FILE:LINE: what was found", without the
/// line where the fault is not in one.
class RegistryFileError : public std::runtime_error {
public:
    RegistryFileError(const std::string& file, std::size_t faultyLine, const std::string& fault);

    std::size_t line;  ///< counted from 1; 0 where the file as a whole cannot be read
};

/// A named value. The default value has the empty name.
struct RegistryValue {
    std::wstring name;
    RegistryContent content;

    bool operator==(const RegistryValue&) const = default;
};

/// A key that was created by name, with its values in the order of their first writing.
struct RegistryEntry {
    std::wstring path;
    std::vector<RegistryValue> values;

    bool operator==(const RegistryEntry&) const = default;
};

/// What one registry file holds.
class RegistryFile {
public:
    static constexpr std::size_t MaxBytes = std::size_t{1} << 20;
    static constexpr std::size_t MaxKeys = 4096;
    static constexpr std::size_t MaxValues = 1024;  ///< of one key

    /// Reads the text of a file; `name` is for the message of the `RegistryFileError` that every
    /// damage raises.
    static RegistryFile parse(std::string_view text, const std::string& name);

    /// Reads a file; one that does not exist reads as empty. Raises `RegistryFileError` for one
    /// that is damaged, too long, no regular file, or that may not be read.
    static RegistryFile load(const std::filesystem::path& path);

    /// The text of the file.
    std::string format() const;

    /// True for parts joined by single backslashes, without control characters.
    static bool isKeyPath(std::wstring_view path);

    const std::vector<RegistryEntry>& entries() const { return entries_; }

    /// The key of that path; null where it was not created by name.
    const RegistryEntry* find(std::wstring_view path) const;

    /// The text of a value; null where there is no such key, value or kind.
    const std::wstring* text(std::wstring_view path, std::wstring_view name) const;

    /// The number of a value; null where there is no such key, value or kind.
    const std::uint32_t* number(std::wstring_view path, std::wstring_view name) const;

    /// The names of the keys directly below a path, in the order of the file, each once: with
    /// `SOFTWARE\Meridax\VCs` the announced controls.
    std::vector<std::wstring> namesBelow(std::wstring_view path) const;

    /// Creates the key or finds the one that is there. False for what is no path of a key, and when
    /// there are too many keys.
    bool create(const std::wstring& path);

    /// Sets a value of a key that is there. False where there is no such key, where it has too many
    /// values, and for texts that UTF-8 cannot hold.
    bool set(std::wstring_view path, RegistryValue value);

    /// Removes a value; false where there is none.
    bool removeValue(std::wstring_view path, std::wstring_view name);

    /// Removes a key with its values; false where there is none or where keys are below it.
    bool removeKey(std::wstring_view path);

    bool operator==(const RegistryFile&) const = default;

private:
    RegistryEntry* entry(std::wstring_view path);

    std::vector<RegistryEntry> entries_;
};

/// Where the file of a scope is: what MERIDAX_REGISTRY_USER or MERIDAX_REGISTRY_MACHINE names, else
/// `$XDG_CONFIG_HOME/meridax/registry.txt` (`~/.config` without that variable) or
/// `/etc/meridax/registry.txt`. Empty where the user has no home.
std::filesystem::path registryFilePath(Api::RegistryScope scope);

}  // namespace Meridax::VisualControls::Rotavue
