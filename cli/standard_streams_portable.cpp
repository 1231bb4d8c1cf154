#include "cli/standard_streams.h"

namespace Rotavue::Cli {

void keepLineEnds() {}

}  // namespace Rotavue::Cli
