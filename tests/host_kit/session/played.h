#pragma once

#include "host_kit/session/play.h"

#include <sstream>
#include <string>

namespace Rotavue::HostKit {

/// The log of a session, given as text, on a module.
inline std::string logOf(const std::string& sessionText, const std::string& module,
                         const LogOptions& options = {}) {
    const Session session(sessionText);
    std::ostringstream log;
    Player(session, std::make_shared<Module>(module), log, options).play();
    return log.str();
}

/// The log of these steps on the scripted module.
inline std::string logOfSteps(const std::string& steps, const LogOptions& options = {}) {
    return logOf("{\"steps\": [" + steps + "]}", SCRIPTED_MODULE, options);
}

}  // namespace Rotavue::HostKit
