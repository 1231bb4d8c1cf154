#pragma once

#include <cstdint>
#include <string>

/// What a platform must supply to the plug-in. Implementations stand beside each other in
/// plugin/module/; the logic above them knows only this header.
namespace Meridax::VisualControls::Api {

/// The system clipboard as a list of steps. The bridge makes them in one fixed order and looks at
/// no result; a platform that has fewer of them does nothing in the others.
class SystemClipboard {
public:
    /// A movable block of memory of the platform; null where none could be had.
    using Block = void*;

    virtual ~SystemClipboard() = default;

    virtual void open() = 0;                        ///< without an owner window
    virtual void empty() = 0;                       ///< drops what was there
    virtual Block allocate(std::size_t bytes) = 0;  ///< a block for the text
    virtual void* lock(Block block) = 0;            ///< its memory, null where there is none
    virtual void unlock(Block block) = 0;
    virtual void setUnicodeText(Block block) = 0;  ///< UTF-16 text with its terminator, format 13
    virtual void close() = 0;
    virtual void free(Block block) = 0;  ///< after `close`; that order is kept
};

/// Which half of the registry store.
enum class RegistryScope { User, Machine };

/// The store of keys and typed values from which the host learns of the control. Keys are paths
/// such as `SOFTWARE\Meridax\VCs\Rotavue`; the empty value name is a key's default value. Texts are
/// stored without a terminating zero. Every operation answers whether it succeeded.
class RegistryStore {
public:
    virtual ~RegistryStore() = default;

    virtual bool createKey(RegistryScope scope, const std::wstring& path) = 0;
    virtual bool setText(RegistryScope scope, const std::wstring& path, const std::wstring& name,
                         const std::wstring& text) = 0;
    virtual bool setNumber(RegistryScope scope, const std::wstring& path, const std::wstring& name,
                           std::uint32_t number) = 0;
    virtual bool deleteValue(RegistryScope scope, const std::wstring& path,
                             const std::wstring& name) = 0;

    /// Deletes a key that has no keys below it; refuses one that has.
    virtual bool deleteKey(RegistryScope scope, const std::wstring& path) = 0;
};

/// What the module framework of a platform adds to registration.
class TypeLibraryRegistry {
public:
    virtual ~TypeLibraryRegistry() = default;

    /// Registers the type library; gives a status, negative on failure.
    virtual std::int32_t registerLibrary(bool perUser) = 0;

    /// Removes it; gives a status.
    virtual std::int32_t unregisterLibrary(bool perUser) = 0;
};

}  // namespace Meridax::VisualControls::Api
