#include "plugin/module/windows/variant_result.h"

#include "plugin/framework/host/host_error.h"

namespace Meridax::VisualControls::Rotavue {

namespace {

constexpr std::size_t Count = 4;
constexpr VARTYPE Integers = VT_ARRAY | VT_I4;

}  // namespace

void VariantResult::putInteger16(std::int16_t value) {
    result_.vt = VT_I2;
    result_.iVal = value;
}

void VariantResult::putBoolean(bool value) {
    result_.vt = VT_BOOL;
    result_.boolVal = value ? 1 : 0;  // The number 1, not the platform's -1.
}

void VariantResult::putFourIntegers() {
    SAFEARRAY* const array = ::SafeArrayCreateVector(VT_I4, 0, Count);
    if (array == nullptr) throw Host::HostError(Host::Status::OutOfMemory);
    result_.vt = Integers;
    result_.parray = array;
}

void VariantResult::setInteger(std::size_t index, std::int32_t value) {
    // The variant is the host's: it may have emptied it or put another array there while the
    // control was asked.
    if (result_.vt != Integers || result_.parray == nullptr) return;
    const SAFEARRAY& array = *result_.parray;
    if (array.cDims != 1 || index >= array.rgsabound[0].cElements) return;
    static_cast<LONG*>(array.pvData)[index] = value;
}

}  // namespace Meridax::VisualControls::Rotavue
