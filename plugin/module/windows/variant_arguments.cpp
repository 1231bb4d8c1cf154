#include "plugin/module/windows/variant_arguments.h"

#include "plugin/framework/host/host_error.h"
#include "plugin/module/windows/interfaces/host_string.h"
#include "plugin/module/windows/proxies/make_proxy.h"

namespace Meridax::VisualControls::Rotavue {

namespace {

namespace Binary = Host::Binary;

void raiseIfFailed(HRESULT result) {
    Host::raiseIfFailed(static_cast<std::uint32_t>(result), {});
}

struct ArrayEnd {
    void operator()(SAFEARRAY* array) const { ::SafeArrayDestroy(array); }
};

using Array = std::unique_ptr<SAFEARRAY, ArrayEnd>;

/// A copy that stays locked for as long as it lives.
class LockedArray final : public Api::ArgumentList {
public:
    explicit LockedArray(Array array) : array_(std::move(array)) {
        raiseIfFailed(::SafeArrayLock(array_.get()));
    }
    LockedArray(const LockedArray&) = delete;
    LockedArray& operator=(const LockedArray&) = delete;
    ~LockedArray() override { ::SafeArrayUnlock(array_.get()); }

    std::int32_t lowerBound() const override { return bound(::SafeArrayGetLBound); }
    std::int32_t upperBound() const override { return bound(::SafeArrayGetUBound); }

    Host::Ref<Host::IHostObject> objectAt(std::int32_t position) const override {
        IUnknown* const object = at(position).punkVal;
        return Binary::makeProxy<Host::IHostObject>(Binary::ComRef<IUnknown>::share(object));
    }

    std::wstring textAt(std::int32_t position) const override {
        return Binary::HostString::copyOf(at(position).bstrVal);
    }

    std::int32_t integerAt(std::int32_t position) const override { return at(position).lVal; }
    std::uint16_t wordAt(std::int32_t position) const override { return at(position).uiVal; }
    std::uint8_t byteAt(std::int32_t position) const override { return at(position).bVal; }

private:
    LONG bound(HRESULT(STDAPICALLTYPE* ask)(SAFEARRAY*, UINT, LONG*)) const {
        LONG result = 0;
        raiseIfFailed(ask(array_.get(), 1, &result));
        return result;
    }

    const VARIANT& at(std::int32_t position) const {
        const auto* const elements = static_cast<const VARIANT*>(array_->pvData);
        return elements[std::int64_t{position} - lowerBound()];
    }

    Array array_;
};

/// The host's array; null where the variant holds none of this kind.
SAFEARRAY* arrayIn(const VARIANT& arguments) {
    constexpr int ByValue = VT_ARRAY | VT_VARIANT;
    if (arguments.vt == ByValue) return arguments.parray;
    if (arguments.vt != (ByValue | VT_BYREF) || arguments.pparray == nullptr) return nullptr;
    return *arguments.pparray;
}

bool isListOfVariants(SAFEARRAY* array) {
    VARTYPE type = VT_EMPTY;
    return array != nullptr && ::SafeArrayGetDim(array) == 1 &&
           SUCCEEDED(::SafeArrayGetVartype(array, &type)) && type == VT_VARIANT;
}

}  // namespace

std::unique_ptr<Api::ArgumentList> VariantArguments::copy() const {
    SAFEARRAY* const array = arrayIn(arguments_);
    if (!isListOfVariants(array)) throw Host::HostError(Host::Status::InvalidArgument);
    SAFEARRAY* copied = nullptr;
    raiseIfFailed(::SafeArrayCopy(array, &copied));
    if (copied == nullptr) return nullptr;
    return std::make_unique<LockedArray>(Array(copied));
}

}  // namespace Meridax::VisualControls::Rotavue
