#pragma once

#include "plugin/framework/platform.h"

#include <filesystem>
#include <optional>
#include <string>

/// What the registry says of the control, one scope at a time.
namespace Rotavue::Cli {

using Scope = Meridax::VisualControls::Api::RegistryScope;

/// The file that holds the scope; empty where there is none.
std::filesystem::path registryFileOf(Scope scope);

/// The module that is registered in the scope; nothing where the control is not announced there.
/// Raises `std::runtime_error` for a registry that is damaged or cannot be read.
std::optional<std::filesystem::path> registeredIn(Scope scope);

/// The path of the control's class key, if that is in the scope.
std::optional<std::string> classKeyIn(Scope scope);

}  // namespace Rotavue::Cli
