#pragma once

#include "plugin/framework/message_arguments.h"
#include "plugin/module/windows/platform_headers.h"

namespace Meridax::VisualControls::Rotavue {

/// The argument list of a message: a one-dimensional array of variants in a variant, by value or by
/// reference. Anything else is a null list.
class VariantArguments final : public Api::MessageArguments {
public:
    /// Borrows what the variant holds.
    explicit VariantArguments(const VARIANT& arguments) : arguments_(arguments) {}

    std::unique_ptr<Api::ArgumentList> copy() const override;

private:
    const VARIANT& arguments_;
};

}  // namespace Meridax::VisualControls::Rotavue
