#pragma once

#include "host_kit/windows/com_object.h"
#include "plugin/framework/host/data/data_position.h"
#include "plugin/framework/host/data/host_app.h"
#include "plugin/module/windows/interfaces/binary_form.h"
#include "plugin/module/windows/interfaces/host_string.h"

#include <cstdint>
#include <string>

/// What an operation of the host's object gave, as it goes to the plug-in behind the arguments. The
/// pointers are not null.
namespace Rotavue::HostKit {

inline void giveResult(std::int32_t value, LONG* out) {
    *out = value;
}

inline void giveResult(std::uint32_t value, ULONG* out) {
    *out = value;
}

inline void giveResult(double value, double* out) {
    *out = value;
}

inline void giveResult(bool value, VARIANT_BOOL* out) {
    *out = value ? VARIANT_TRUE : VARIANT_FALSE;
}

inline void giveResult(Host::DataPosition value, Host::DataPosition* out) {
    *out = value;
}

/// Null stands for the empty text, as a host may have it.
inline void giveResult(const std::wstring& text, BSTR* out) {
    *out = text.empty() ? nullptr : Host::Binary::HostString(text).detach();
}

inline void giveResult(const Host::HostVersion& version, Host::Binary::UnusedVersionItem*,
                       LONG* major, LONG* minor, LONG* build, Host::Binary::UnusedVersionItem*) {
    *major = version.major;
    *minor = version.minor;
    *build = version.build;
}

template <class Interface>
void giveResult(Host::Ref<Interface> object, IDispatch** out) {
    *out = ComObject::handOut(std::move(object));
}

inline void giveResult(Host::Ref<Host::IHostObject> object, IUnknown** out) {
    *out = ComObject::handOut(std::move(object));
}

}  // namespace Rotavue::HostKit
