#pragma once

#include <string>

namespace Rotavue::Tools {

/// docs/host-interfaces.md: every interface of the host with its operations' slots and what crosses
/// in them, from the lists of which the virtual tables are made.
std::string hostInterfacesPage();

}  // namespace Rotavue::Tools
