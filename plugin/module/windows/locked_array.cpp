#include "plugin/module/windows/locked_array.h"

#include "plugin/framework/host/host_error.h"
#include "plugin/module/windows/interfaces/host_string.h"
#include "plugin/module/windows/proxies/make_proxy.h"

namespace Meridax::VisualControls::Rotavue {

namespace {

namespace Binary = Host::Binary;

void raiseIfFailed(HRESULT result) {
    Host::raiseIfFailed(static_cast<std::uint32_t>(result), {});
}

}  // namespace

LockedArray::LockedArray(Array array) : array_(std::move(array)) {
    raiseIfFailed(::SafeArrayLock(array_.get()));
}

std::int32_t LockedArray::lowerBound() const {
    LONG bound = 0;
    raiseIfFailed(::SafeArrayGetLBound(array_.get(), 1, &bound));
    return bound;
}

std::int32_t LockedArray::upperBound() const {
    LONG bound = 0;
    raiseIfFailed(::SafeArrayGetUBound(array_.get(), 1, &bound));
    return bound;
}

Host::Ref<Host::IHostObject> LockedArray::objectAt(std::int32_t position) const {
    IUnknown* const object = at(position).punkVal;
    return Binary::makeProxy<Host::IHostObject>(Binary::ComRef<IUnknown>::share(object));
}

std::wstring LockedArray::textAt(std::int32_t position) const {
    return Binary::HostString::copyOf(at(position).bstrVal);
}

const VARIANT& LockedArray::at(std::int32_t position) const {
    const auto* const elements = static_cast<const VARIANT*>(array_->pvData);
    return elements[std::int64_t{position} - lowerBound()];
}

}  // namespace Meridax::VisualControls::Rotavue
