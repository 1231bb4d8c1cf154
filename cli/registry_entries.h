#pragma once

#include "plugin/framework/platform.h"

#include <filesystem>
#include <optional>
#include <string>

/// What the registry says of the control, one scope at a time.
namespace Rotavue::Cli {

using Scope = Meridax::VisualControls::Api::RegistryScope;

/// The module that is registered in the scope; nothing where the control is not announced there.
/// Raises `std::runtime_error` for a registry that is damaged or cannot be read.
std::optional<std::filesystem::path> registeredIn(Scope scope);

/// One line that says why the scope may not have been changed, and what to do.
std::string notWritten(Scope scope);

/// How to remove by hand the control's class key, if that is in the scope: the end of a line that
/// says so.
std::optional<std::string> removalByHand(Scope scope);

}  // namespace Rotavue::Cli
