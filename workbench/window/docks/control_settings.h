#pragma once

#include <map>
#include <optional>
#include <string>

namespace Rotavue::Workbench {

/// What a control keeps in its setup, by key; a key that is left out has the document's default.
using ControlSettings = std::map<std::wstring, std::wstring>;

/// Why an orbit drawn with these settings is out of shape: its axes do not have the same span.
/// Nothing where they have, or where the control sees to it itself.
std::optional<std::string> scaleWarning(const ControlSettings& settings);

/// The settings with which the orbit keeps its shape: an automatic scale that is the same for both
/// axes, or manual limits widened about their middle to the longer of the two spans.
ControlSettings withEqualSpans(ControlSettings settings);

}  // namespace Rotavue::Workbench
