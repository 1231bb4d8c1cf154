#pragma once

#include "plugin/framework/message_arguments.h"
#include "plugin/module/windows/platform_headers.h"

#include <memory>

namespace Meridax::VisualControls::Rotavue {

struct ArrayEnd {
    void operator()(SAFEARRAY* array) const { ::SafeArrayDestroy(array); }
};

using Array = std::unique_ptr<SAFEARRAY, ArrayEnd>;

/// An array of variants of our own that stays locked for as long as this lives. Making it raises
/// `HostError` with the platform's status where the array cannot be locked.
class LockedArray final : public Api::ArgumentList {
public:
    explicit LockedArray(Array array);
    LockedArray(const LockedArray&) = delete;
    LockedArray& operator=(const LockedArray&) = delete;
    ~LockedArray() override { ::SafeArrayUnlock(array_.get()); }

    std::int32_t lowerBound() const override;
    std::int32_t upperBound() const override;
    Host::Ref<Host::IHostObject> objectAt(std::int32_t position) const override;
    std::wstring textAt(std::int32_t position) const override;
    std::int32_t integerAt(std::int32_t position) const override { return at(position).lVal; }
    std::uint16_t wordAt(std::int32_t position) const override { return at(position).uiVal; }
    std::uint8_t byteAt(std::int32_t position) const override { return at(position).bVal; }

private:
    const VARIANT& at(std::int32_t position) const;

    Array array_;
};

}  // namespace Meridax::VisualControls::Rotavue
