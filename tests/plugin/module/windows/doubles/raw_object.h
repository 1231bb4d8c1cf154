#pragma once

#include "plugin/module/windows/interfaces/platform_guid.h"
#include "plugin/module/windows/interfaces/virtual_table.h"
#include "plugin/module/windows/proxies/make_proxy.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace Meridax::Host::Binary {

/// An object of the component model whose virtual table a test fills. It offers any interface
/// unless `refuses` is set, and notes what its operations leave in it.
class RawObject {
public:
    RawObject() {
        slots_.fill(entryOf(&reservedOperation));
        slots_[0] = entryOf(&queryInterface);
        slots_[1] = entryOf(&addRef);
        slots_[2] = entryOf(&release);
    }
    RawObject(const RawObject&) = delete;
    RawObject& operator=(const RawObject&) = delete;

    static RawObject& of(IDispatch* object) { return *reinterpret_cast<RawObject*>(object); }

    /// Puts the function into the slot of the operation.
    template <auto Member>
    void put(SignatureOf<OperationOf<Member>> function) {
        slots_[OperationOf<Member>::Slot] = entryOf(function);
    }
    void putAt(std::size_t slot, Entry entry) { slots_[slot] = entry; }

    IDispatch* get() { return reinterpret_cast<IDispatch*>(this); }

    /// A proxy over this object.
    template <class Interface>
    Ref<Interface> proxy() {
        return makeProxy<Interface>(ComRef<IUnknown>::share(get()));
    }

private:
    static HRESULT STDMETHODCALLTYPE queryInterface(IDispatch* self, REFIID wanted, void** found) {
        RawObject& object = of(self);
        object.asked.push_back(guidOf(wanted));
        *found = object.refuses ? nullptr : self;
        if (object.refuses) return E_NOINTERFACE;
        ++object.references;
        return S_OK;
    }
    static ULONG STDMETHODCALLTYPE addRef(IDispatch* self) { return ++of(self).references; }
    static ULONG STDMETHODCALLTYPE release(IDispatch* self) { return --of(self).references; }

    const Entry* table_ = slots_.data();  ///< first: what a caller sees
    std::array<Entry, 7 + 208> slots_;

public:
    ULONG references = 0;
    bool refuses = false;
    std::vector<Guid> asked;
    std::vector<std::int64_t> numbers;
    std::vector<std::wstring> texts;
    RawObject* other = nullptr;
};

/// The failure of a call; a status of 0 where it raises none.
template <class Call>
HostError failureOf(Call call) {
    try {
        call();
    } catch (const HostError& failure) {
        return failure;
    }
    return HostError(0);
}

}  // namespace Meridax::Host::Binary
