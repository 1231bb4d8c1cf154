#pragma once

#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "workbench/recording/sample_source.h"

namespace Rotavue::Workbench {

/// The file's columns, each with its role. What the options name comes first; "#2" is the second
/// column, and a name counts with or without its unit. The rest is guessed:
///
///   from names    the first column that a word of its name makes the time (t, time, zeit..), X (x,
///                 horizontal..), Y or the keyphasor (an angle before pulses before a speed)
///   without names the first column is the time if its values rise in equal steps; then X, Y and,
///                 if exactly one column is left, the keyphasor
///
/// Throws RecordingError if a named column isn't there (with the nearest name), if one column is
/// named twice, or if X or Y is neither named nor found.
std::vector<RecordingColumn> assignRoles(const std::filesystem::path& file, const SourceHead& head,
                                         const RecordingOptions& options);

/// The same as far as it can be told: a named column that isn't there is passed over, of two
/// purposes for one column the first counts, and what nobody can guess stays open.
std::vector<RecordingColumn> guessRoles(const SourceHead& head, const RecordingOptions& options);

/// The names of unused columns that a word makes X or Y as well: the probes of further planes.
std::vector<std::string> furtherProbes(const std::vector<RecordingColumn>& columns);

/// The columns for another plane of the file: X and Y go to the next columns behind theirs whose
/// names tell so, or stay open; the other roles stay as they are.
std::vector<RecordingColumn> nextPlane(std::vector<RecordingColumn> columns);

/// Whether the values rise in equal steps, but for decimals that were cut off: none is further than
/// one and a half steps, and a tenth of the whole span, from the straight line between the first
/// and the last. False for fewer than three values.
bool looksLikeTime(std::span<const double> values);

/// What a keyphasor column's name and unit say that it holds; nothing if they leave it open.
std::optional<KeyphasorKind> kindFromName(const RecordingColumn& column);

}  // namespace Rotavue::Workbench
