#pragma once

#include "plugin/framework/host/host_object.h"
#include "plugin/framework/message_arguments.h"

#include <cstdint>
#include <string>

/// What the plug-in shows to the outside: the identifiers that never change, the one message
/// operation, the class factory, and the five entry points of the module.
namespace Meridax::VisualControls::Api {

inline constexpr Host::Guid PluginClass = Host::guid("{264200AB-CDA2-4257-932E-FD19E014BD0C}");
inline constexpr Host::Guid PluginLibrary = Host::guid("{32E46A55-902E-4BC0-817F-528EE53F499C}");

/// [plug-in implements] The one interface through which the host talks to a control. The object is
/// for a single thread; its reference count is not atomic.
class IMeridaxPlugin : public Host::IHostObject {
public:
    static constexpr Host::Guid Identifier = Host::guid("{5C45F430-EE53-49DC-935B-36314A52D438}");

    /// Sends a message. `code` is looked up in the table of docs/contract.md; an unknown code
    /// answers 0 and does nothing. `arguments` may be null, which is a null list: a message that
    /// has arguments then raises `HostError` 0x80070057. `result` is written by the messages that
    /// say so and by no other; null drops what is written.
    ///
    /// Gives the status: 0, but 1 for message 7 and 0x80004004 for a refused host. Everything else
    /// that fails is thrown: `HostError`, `XmlException` or an exception of the standard library.
    /// [any time | single thread]
    virtual std::int32_t message(std::uint32_t code, const MessageArguments* arguments,
                                 MessageResult* result) = 0;

protected:
    ~IMeridaxPlugin() = default;
};

/// [plug-in implements] The second interface of a control object. It adds no operation of its own:
/// it is there for hosts that look a control up by the type library.
class IVCPluginImpl : public Host::IHostObject {
public:
    static constexpr Host::Guid Identifier = Host::guid("{5F9EF7C9-B508-44B9-854C-5EC8F36C238D}");

protected:
    ~IVCPluginImpl() = default;
};

/// [plug-in implements] Makes control objects and keeps the module loaded. It comes from
/// `DllGetClassObject`; a held factory keeps the module loaded as well.
class IClassFactory : public Host::IHostObject {
public:
    static constexpr Host::Guid Identifier = Host::guid("{00000001-0000-0000-C000-000000000046}");

    /// Makes a control object and gives its interface `interfaceId` in `object`, retained for the
    /// caller. `outer` is null, or the object into which the new one is aggregated: the identity
    /// operations of all its interfaces then go to `outer`, which must ask for
    /// `IHostObject::Identifier` and outlive the new object.
    ///
    /// Gives 0; 0x80004002 when the object does not offer the interface; 0x80040110 when an outer
    /// object asks for another interface than its identity; 0x8007000E when the object could not be
    /// made, whatever the reason; 0x80004003 when `object` is null. `*object` is null on every
    /// failure. [any time]
    virtual std::int32_t createInstance(Host::IHostObject* outer, const Host::Guid& interfaceId,
                                        void** object) noexcept = 0;

    /// Holds the module in memory (true) or lets go of one such hold (false). [any time]
    virtual std::int32_t lockServer(bool lock) noexcept = 0;

protected:
    ~IClassFactory() = default;
};

/// [host implements] Where copied text goes on a platform whose clipboard belongs to the program
/// with the windows. Valid until the module is unloaded or is given another.
class IHostClipboard : public Host::IHostObject {
public:
    static constexpr Host::Guid Identifier = Host::guid("{966B1293-DA3E-4C1B-B0ED-957896BCA1F7}");

    /// Replaces what the clipboard holds by that text, which may be empty. The text has no
    /// terminator and holds no zero character. What it raises goes nowhere: a copy is made without
    /// looking at any result. [message 31]
    virtual void putText(const std::wstring& text) = 0;

protected:
    ~IHostClipboard() = default;
};

/// [plug-in implements] What a host may supply to the module as a whole. The class factory object
/// offers it on platforms where the module cannot get these things by itself.
class IModuleServices : public Host::IHostObject {
public:
    static constexpr Host::Guid Identifier = Host::guid("{1B10CEA7-D030-4750-A59D-D90408F36DD6}");

    /// The clipboard of all controls of this module from now on. The module shares it until it is
    /// unloaded or another one is supplied; null takes it away. Without one a copied text goes
    /// nowhere. [any time | single thread]
    virtual void supplyClipboard(IHostClipboard* clipboard) noexcept = 0;

protected:
    ~IModuleServices() = default;
};

/// The names under which the module exports its entry points, and their types. All give a 32-bit
/// status.
namespace EntryPoint {

inline constexpr const char* GetClassObject = "DllGetClassObject";
inline constexpr const char* CanUnloadNow = "DllCanUnloadNow";
inline constexpr const char* RegisterServer = "DllRegisterServer";
inline constexpr const char* UnregisterServer = "DllUnregisterServer";
inline constexpr const char* Install = "DllInstall";

/// The factory of the class, retained for the caller: its interface `IHostObject`, `IClassFactory`
/// or `IModuleServices`. Gives 0; 0x80040111 for another class; 0x80004002 for another interface;
/// 0x80004003 where `object` is null.
using GetClassObjectFunction = std::int32_t(const Host::Guid& classId,
                                            const Host::Guid& interfaceId, void** object);
/// 0 when no object of the module is alive and no lock is held, 1 otherwise.
using CanUnloadNowFunction = std::int32_t();
/// Writes the registry entries. A registry that cannot be written is not reported: read it back.
using RegisterServerFunction = std::int32_t();
/// Removes what the registry lets it remove.
using UnregisterServerFunction = std::int32_t();
/// Registers or removes. `commandLine` may be null; "user" in any case of letters chooses the
/// user's own registry, for this call and every later registration while the module is loaded.
/// `install` is 0 to remove.
using InstallFunction = std::int32_t(std::int32_t install, const wchar_t* commandLine);

}  // namespace EntryPoint

}  // namespace Meridax::VisualControls::Api
