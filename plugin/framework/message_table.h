#pragma once

#include "plugin/framework/message_call.h"

namespace Meridax::VisualControls::Api {

/// The handler of a message code; one that does nothing and gives 0 for a code that is not served.
MessageHandler handlerOf(std::uint32_t code);

}  // namespace Meridax::VisualControls::Api
