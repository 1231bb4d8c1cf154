#include "plugin/module/windows/variant_arguments.h"

#include "plugin/framework/host/host_error.h"
#include "plugin/module/windows/locked_array.h"

namespace Meridax::VisualControls::Rotavue {

namespace {

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
    Host::raiseIfFailed(static_cast<std::uint32_t>(::SafeArrayCopy(array, &copied)), {});
    if (copied == nullptr) return nullptr;
    return std::make_unique<LockedArray>(Array(copied));
}

}  // namespace Meridax::VisualControls::Rotavue
