#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "workbench/recording/reading_watch.h"
#include "workbench/recording/recording.h"
#include "workbench/recording/samples.h"

namespace Rotavue::Workbench {

/// What a file tells before its samples are read.
struct SourceHead {
    std::vector<RecordingColumn> columns;  ///< no roles yet
    bool namesGiven = true;                ///< false: the columns are numbered by us
    std::vector<std::vector<double>>
        preview;                 ///< one list per column: its first values, if unnamed
    std::optional<double> rate;  ///< samples per second
    std::string unit;            ///< of the displacements
    std::string machine;
    std::string point;
};

/// A column to be read, by its index, and what for: vibration columns may hold gaps, a time column
/// must not run backward.
struct WantedColumn {
    std::size_t index = 0;
    ColumnRole role = ColumnRole::Unused;
};

/// A file with columns of samples. Throws RecordingError from every operation, and from `read`
/// ReadingCancelled.
class SampleSource {
public:
    virtual ~SampleSource() = default;

    virtual const SourceHead& head() const = 0;

    /// The values of the wanted columns, in the order of `wanted`: lists of one length, from 1 to
    /// `MaxSampleCount`. A gap is a NaN.
    virtual std::vector<Samples> read(std::span<const WantedColumn> wanted,
                                      const ReadingProgress& progress) = 0;

    /// The same, with nobody watching.
    std::vector<Samples> read(std::span<const WantedColumn> wanted) {
        return read(wanted, ReadingProgress());
    }
};

}  // namespace Rotavue::Workbench
