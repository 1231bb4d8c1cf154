#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

/// What a platform must supply to the plug-in. Implementations stand beside each other in
/// plugin/module/; the logic above them knows only this header.
namespace Meridax::VisualControls::Api {

/// The system clipboard as a list of steps. The bridge makes them in one fixed order and looks at
/// no result; a platform that has fewer of them does nothing in the others. None of them raises
/// anything, and each copes with the null that an earlier one gave.
class SystemClipboard {
public:
    /// A movable block of memory of the platform; null where none could be had.
    using Block = void*;

    virtual ~SystemClipboard() = default;

    virtual void open() noexcept = 0;                        ///< without an owner window
    virtual void empty() noexcept = 0;                       ///< drops what was there
    virtual Block allocate(std::size_t bytes) noexcept = 0;  ///< a block for the text
    virtual void* lock(Block block) noexcept = 0;            ///< its memory, null without any
    virtual void unlock(Block block) noexcept = 0;
    virtual void setUnicodeText(Block block) noexcept = 0;  ///< UTF-16 with terminator, format 13
    virtual void close() noexcept = 0;
    virtual void free(Block block) noexcept = 0;  ///< after `close`; that order is kept
};

/// Which half of the registry store.
enum class RegistryScope { User, Machine };

/// An open key of the registry store. Destroying it closes the key; what was set is in the store
/// when the key is closed at the latest. The empty name is the key's default value. Texts are
/// stored without a terminating zero. Every operation answers whether it succeeded.
class RegistryKey {
public:
    virtual ~RegistryKey() = default;

    virtual bool setText(const std::wstring& name, const std::wstring& text) = 0;
    virtual bool setNumber(const std::wstring& name, std::uint32_t number) = 0;
    virtual bool deleteValue(const std::wstring& name) = 0;
};

/// The store of keys and typed values from which the host learns of the control. Keys are paths
/// such as `SOFTWARE\Meridax\VCs\Rotavue` below a scope.
class RegistryStore {
public:
    virtual ~RegistryStore() = default;

    /// Creates the key or opens the one that is there, with full access; null when neither works.
    virtual std::unique_ptr<RegistryKey> createKey(RegistryScope scope,
                                                   const std::wstring& path) = 0;

    /// Deletes a key with its values and answers whether it did; refuses one with keys below it.
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
