#pragma once

#include "plugin/framework/host/guid.h"

#include <optional>
#include <string>
#include <string_view>

namespace Meridax::VisualControls::Api {

/// The identifier as text: 38 characters, in braces, upper case. The registry holds it like this.
std::wstring guidText(const Host::Guid& identifier);

/// The identifier that a text of that form holds, in either case of letters; none for any other.
std::optional<Host::Guid> parseGuid(std::wstring_view text);

}  // namespace Meridax::VisualControls::Api
