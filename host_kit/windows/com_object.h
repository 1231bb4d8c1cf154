#pragma once

#include "host_kit/namespaces.h"
#include "plugin/framework/host/guid.h"
#include "plugin/framework/host/host_object.h"
#include "plugin/framework/host/ref.h"
#include "plugin/module/windows/interfaces/operations.h"
#include "plugin/module/windows/interfaces/virtual_table.h"

#include <list>

namespace Rotavue::HostKit {

class ComObject;

/// One interface of a host object as the component model has it: a pointer to this is the
/// interface pointer.
struct ComFace {
    const Host::Binary::Entry* table;  ///< the virtual table, the first word of the object
    ComObject* object;
    void* target;  ///< the same interface of the host's object
    Host::Guid identifier;
};

/// An object of the host kit as an object of the component model. There is one for each object of
/// the host, as long as a reference to it is held through the component model; each such reference
/// is one reference to the host's object, so that its ledger is right.
///
/// For the one thread of the host.
class ComObject {
public:
    /// The interface, retained for the caller; null for an empty reference.
    template <class Interface>
    static IDispatch* handOut(Host::Ref<Interface> object) {
        return reinterpret_cast<IDispatch*>(take(object.detach(), Interface::Identifier));
    }

    /// The identity of the object, retained for the caller; null for an empty reference.
    static IUnknown* handOut(Host::Ref<Host::IHostObject> object) {
        return reinterpret_cast<IUnknown*>(take(object.detach(), Host::IHostObject::Identifier));
    }

    /// The host's object behind an interface pointer that comes back from the plug-in. Raises
    /// `HostError` 0x80004003 for null and 0x80070057 for what is no object of the host kit, or one
    /// that does not offer the interface.
    template <class Interface>
    static Host::Ref<Interface> behind(IUnknown* object) {
        Host::Ref<Interface> found = hostObjectBehind(object).template offered<Interface>();
        if (!found) throw Host::HostError(Host::Status::InvalidArgument);
        return found;
    }

    ComObject(const ComObject&) = delete;
    ComObject& operator=(const ComObject&) = delete;
    ~ComObject();

    HRESULT queryInterface(const Host::Guid& identifier, void** result) noexcept;
    ULONG addRef() noexcept;
    ULONG release() noexcept;

private:
    /// Says that the thread's error details after a failed call are this object's.
    class ErrorSupport final : public ISupportErrorInfo {
    public:
        explicit ErrorSupport(ComObject& object) : object_(object) {}

        HRESULT STDMETHODCALLTYPE QueryInterface(REFIID identifier, void** result) override;
        ULONG STDMETHODCALLTYPE AddRef() override { return object_.addRef(); }
        ULONG STDMETHODCALLTYPE Release() override { return object_.release(); }
        HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID identifier) override;

    private:
        ComObject& object_;
    };

    explicit ComObject(Host::IHostObject& object) : object_(object) {}

    static ComFace* take(Host::IHostObject* object, const Host::Guid& identifier);
    static Host::Ref<Host::IHostObject> hostObjectBehind(IUnknown* object);
    static ComObject& of(Host::IHostObject& object);

    ComFace* face(const Host::Guid& identifier);
    ComFace& identity();
    void* find(const Host::Guid& identifier);

    Host::IHostObject& object_;
    ULONG references_ = 0;
    std::list<ComFace> faces_;
    ErrorSupport errorSupport_{*this};
};

}  // namespace Rotavue::HostKit
