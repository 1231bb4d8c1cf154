#pragma once

#include <cstddef>
#include <cstdint>

namespace Rotavue::HostKit {

/// What the plug-in reads at a position of an argument list. It never looks at what an element says
/// it is, so a host puts nothing else there.
enum class ArgumentKind : std::uint8_t { Any, Object, Text, Integer, Word, Byte };

/// The kind at that position of the list of a message; `Any` where nothing is read.
ArgumentKind argumentKind(std::uint32_t code, std::int64_t position);

}  // namespace Rotavue::HostKit
