#pragma once

namespace Rotavue::Cli {

/// Lets standard output have the bytes that are written, on a platform that would otherwise change
/// the ends of lines.
void keepLineEnds();

}  // namespace Rotavue::Cli
