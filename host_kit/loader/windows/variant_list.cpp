#include "host_kit/loader/windows/variant_list.h"

#include "host_kit/loader/windows/message_kinds.h"
#include "host_kit/windows/com_object.h"
#include "plugin/module/windows/interfaces/host_string.h"

#include <array>
#include <utility>

namespace Rotavue::HostKit {

namespace {

namespace Status = Host::Status;

ArgumentKind ownKind(const MessageValue& value) {
    if (value.object) return ArgumentKind::Object;
    return value.text.empty() ? ArgumentKind::Integer : ArgumentKind::Text;
}

/// Puts the payload that is wanted; what the value has of another kind stays behind.
void putPayload(const MessageValue& value, ArgumentKind kind, VARIANT& element) {
    switch (kind) {
        case ArgumentKind::Object:
            element.punkVal = ComObject::handOut(value.object);
            element.vt = VT_UNKNOWN;
            return;
        case ArgumentKind::Text:
            element.bstrVal = Host::Binary::HostString(value.text).detach();
            element.vt = VT_BSTR;
            return;
        case ArgumentKind::Word:
            element.uiVal = static_cast<USHORT>(value.number);
            element.vt = VT_UI2;
            return;
        case ArgumentKind::Byte:
            element.bVal = static_cast<BYTE>(value.number);
            element.vt = VT_UI1;
            return;
        case ArgumentKind::Integer:
        case ArgumentKind::Any:
            element.lVal = static_cast<LONG>(value.number);
            element.vt = VT_I4;
    }
}

void putElement(SAFEARRAY* array, std::int64_t position, const MessageValue& value,
                ArgumentKind kind) {
    OwnedVariant element;
    putPayload(value, kind != ArgumentKind::Any ? kind : ownKind(value), *element.get());
    const auto elements = static_cast<VARIANT*>(array->pvData);
    elements[position] = element.detach();
}

SAFEARRAY* makeArray(std::int32_t lowerBound, std::size_t count) {
    SAFEARRAY* const array =
        ::SafeArrayCreateVector(VT_VARIANT, lowerBound, static_cast<ULONG>(count));
    if (array == nullptr) throw Host::HostError(Status::OutOfMemory);
    return array;
}

}  // namespace

VARIANT OwnedVariant::detach() noexcept {
    const VARIANT value = value_;
    ::VariantInit(&value_);
    return value;
}

OwnedVariant variantOf(std::uint32_t code, const MessageList* list) {
    OwnedVariant result;
    if (list == nullptr) return result;
    const std::vector<MessageValue>& values = list->values();
    result->parray = makeArray(list->lowerBound(), values.size());
    result->vt = VT_ARRAY | VT_VARIANT;
    for (std::size_t i = 0; i < values.size(); ++i) {
        const auto index = static_cast<std::int64_t>(i);
        putElement(result->parray, index, values[i],
                   argumentKind(code, list->lowerBound() + index));
    }
    return result;
}

void readResult(const VARIANT& result, MessageAnswer& answer) {
    if (result.vt == VT_I2) answer.putInteger16(result.iVal);
    if (result.vt == VT_BOOL) answer.putBoolean(result.boolVal != 0);
    if (result.vt != (VT_ARRAY | VT_I4)) return;
    answer.putFourIntegers();
    for (LONG i = 0; i < 4; ++i) {
        LONG number = 0;
        if (SUCCEEDED(::SafeArrayGetElement(result.parray, &i, &number)))
            answer.setInteger(static_cast<std::size_t>(i), number);
    }
}

}  // namespace Rotavue::HostKit
