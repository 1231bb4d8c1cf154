#include "cli/standard_streams.h"

#include <fcntl.h>
#include <io.h>

#include <cstdio>

namespace Rotavue::Cli {

void keepLineEnds() {
    ::_setmode(::_fileno(stdout), _O_BINARY);
}

}  // namespace Rotavue::Cli
