#include "host_kit/windows/com_object.h"

#include "host_kit/windows/host_tables.h"
#include "plugin/module/windows/interfaces/com_ref.h"
#include "plugin/module/windows/interfaces/platform_guid.h"

#include <algorithm>
#include <memory>
#include <new>
#include <unordered_map>

namespace Rotavue::HostKit {

namespace {

namespace Binary = Host::Binary;

/// By the address of the host's whole object.
std::unordered_map<const void*, std::unique_ptr<ComObject>>& living() {
    static std::unordered_map<const void*, std::unique_ptr<ComObject>> objects;
    return objects;
}

const void* wholeOf(Host::IHostObject& object) {
    return dynamic_cast<const void*>(&object);
}

}  // namespace

ComObject::~ComObject() = default;

ComObject& ComObject::of(Host::IHostObject& object) {
    std::unique_ptr<ComObject>& entry = living()[wholeOf(object)];
    if (!entry) entry.reset(new ComObject(object));
    return *entry;
}

/// The caller's reference to the host's object becomes one of the component model.
ComFace* ComObject::take(Host::IHostObject* object, const Host::Guid& identifier) {
    if (object == nullptr) return nullptr;
    ComObject& made = of(*object);
    ++made.references_;
    ComFace* face = made.face(identifier);
    if (face == nullptr) made.release();
    return face;
}

Host::Ref<Host::IHostObject> ComObject::hostObjectBehind(IUnknown* object) {
    if (object == nullptr) Host::raiseNullObject();
    const auto identity = Binary::queried<IUnknown>(object, IID_IUnknown);
    const auto isIdentity = [&](const auto& entry) {
        return reinterpret_cast<IUnknown*>(&entry.second->identity()) == identity.get();
    };
    const auto found = std::find_if(living().begin(), living().end(), isIdentity);
    if (found == living().end()) throw Host::HostError(Host::Status::InvalidArgument);
    return Host::Ref<Host::IHostObject>::share(&found->second->object_);
}

/// The interface that the host's object offers, not retained; null where it does not.
void* ComObject::find(const Host::Guid& identifier) {
    void* const offered = object_.offer(identifier);
    if (offered != nullptr) object_.release();
    return offered;
}

ComFace& ComObject::identity() {
    return *face(Host::IHostObject::Identifier);
}

ComFace* ComObject::face(const Host::Guid& identifier) {
    const auto isWanted = [&](const ComFace& face) { return face.identifier == identifier; };
    const auto known = std::find_if(faces_.begin(), faces_.end(), isWanted);
    if (known != faces_.end()) return &*known;
    const Binary::Entry* const table = hostTableOf(identifier);
    void* const target = table != nullptr ? find(identifier) : nullptr;
    if (target == nullptr) return nullptr;
    return &faces_.emplace_back(ComFace{table, this, target, identifier});
}

HRESULT ComObject::queryInterface(const Host::Guid& identifier, void** result) noexcept try {
    if (result == nullptr) return E_POINTER;
    if (identifier == Binary::guidOf(IID_ISupportErrorInfo))
        *result = static_cast<ISupportErrorInfo*>(&errorSupport_);
    else if (identifier == Binary::guidOf(IID_IDispatch))
        *result = &identity();
    else
        *result = face(identifier);
    if (*result == nullptr) return E_NOINTERFACE;
    addRef();
    return S_OK;
} catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
}

ULONG ComObject::addRef() noexcept {
    object_.retain();
    return ++references_;
}

ULONG ComObject::release() noexcept {
    Host::IHostObject& object = object_;
    const ULONG left = --references_;
    if (left == 0) living().erase(wholeOf(object));
    object.release();
    return left;
}

HRESULT ComObject::ErrorSupport::QueryInterface(REFIID identifier, void** result) {
    return object_.queryInterface(Binary::guidOf(identifier), result);
}

HRESULT ComObject::ErrorSupport::InterfaceSupportsErrorInfo(REFIID identifier) {
    return object_.find(Binary::guidOf(identifier)) != nullptr ? S_OK : S_FALSE;
}

}  // namespace Rotavue::HostKit
