#pragma once

#include <filesystem>

namespace Meridax::VisualControls::Rotavue {

/// The full path of the file that holds this code, as it was when the file was loaded; empty where
/// the system does not tell.
const std::filesystem::path& modulePath();

}  // namespace Meridax::VisualControls::Rotavue
