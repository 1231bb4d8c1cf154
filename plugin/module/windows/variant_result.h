#pragma once

#include "plugin/framework/message_arguments.h"
#include "plugin/module/windows/platform_headers.h"

namespace Meridax::VisualControls::Rotavue {

/// The result of a message in the caller's variant, which the caller hands in empty.
class VariantResult final : public Api::MessageResult {
public:
    explicit VariantResult(VARIANT& result) : result_(result) {}

    void putInteger16(std::int16_t value) override;
    void putBoolean(bool value) override;
    void putFourIntegers() override;
    void setInteger(std::size_t index, std::int32_t value) override;

private:
    VARIANT& result_;
};

}  // namespace Meridax::VisualControls::Rotavue
