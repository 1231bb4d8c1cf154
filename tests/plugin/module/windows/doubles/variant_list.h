#pragma once

#include "plugin/module/windows/platform_headers.h"

#include <vector>

namespace Meridax::VisualControls::Rotavue {

/// An array of variants in a variant, as a host hands it to `message`.
class VariantList {
public:
    explicit VariantList(const std::vector<VARIANT>& elements, LONG lowerBound = 0) {
        SAFEARRAYBOUND bound{static_cast<ULONG>(elements.size()), lowerBound};
        value_.vt = VT_ARRAY | VT_VARIANT;
        value_.parray = ::SafeArrayCreate(VT_VARIANT, 1, &bound);
        // Past the platform's copying: a tag need not fit what the element holds.
        for (std::size_t i = 0; i < elements.size(); ++i)
            static_cast<VARIANT*>(value_.parray->pvData)[i] = elements[i];
    }
    VariantList(const VariantList&) = delete;
    VariantList& operator=(const VariantList&) = delete;
    ~VariantList() { ::SafeArrayDestroy(value_.parray); }

    const VARIANT& value() const { return value_; }
    SAFEARRAY*& array() { return value_.parray; }

private:
    VARIANT value_{};
};

inline VARIANT integerVariant(LONG number, VARTYPE tag = VT_I4) {
    VARIANT variant{};
    variant.vt = tag;
    variant.lVal = number;
    return variant;
}

/// The list frees the text where the tag says that it is one.
inline VARIANT textVariant(const wchar_t* text) {
    VARIANT variant{};
    variant.vt = VT_BSTR;
    variant.bstrVal = ::SysAllocString(text);
    return variant;
}

/// The list releases the object where the tag says that it is one; it gets a reference here.
inline VARIANT objectVariant(IUnknown* object, VARTYPE tag = VT_UNKNOWN) {
    VARIANT variant{};
    variant.vt = tag;
    variant.punkVal = object;
    if (object != nullptr && (tag == VT_UNKNOWN || tag == VT_DISPATCH)) object->AddRef();
    return variant;
}

}  // namespace Meridax::VisualControls::Rotavue
