#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "workbench/recording/reading_watch.h"
#include "workbench/recording/recording_error.h"
#include "workbench/recording/recording_options.h"
#include "workbench/recording/samples.h"

namespace Rotavue::Workbench {

/// More samples than this in one recording are refused.
inline constexpr std::size_t MaxSampleCount = 100'000'000;

/// What a column of the file is used for.
enum class ColumnRole { Unused, Time, X, Y, Keyphasor };

/// A column of a text file or a channel of a WAV file, in the file's order.
struct RecordingColumn {
    std::string name;  ///< without its unit; "1", "2".. where the file gives none
    std::string unit;  ///< from brackets in the header or from a line of units; empty: not given
    ColumnRole role = ColumnRole::Unused;
};

/// Where the sample rate is from.
enum class RateSource { TimeColumn, FileHeader, Option };

/// Machine and probes, complete: from the options, then the machine file, then the recording's own
/// header, then the defaults below. Angles are degrees clockwise from the top of the picture, 0 to
/// below 360; the default is that of plain right/up data.
struct MachineFacts {
    std::string machine;               ///< name; empty: not given
    std::string point;                 ///< name; empty: not given
    std::string unit;                  ///< of x, y and clearance; empty: not given
    double xAngle = 90.0;              ///< place of the X probe
    double yAngle = 0.0;               ///< place of the Y probe
    double tachoAngle = 0.0;           ///< place of the keyphasor probe
    std::optional<Rotation> rotation;  ///< empty: not given, and not guessed
    double clearanceWidth = 0.0;       ///< diametral; 0: not given
    double clearanceHeight = 0.0;      ///< diametral; 0: not given
};

/// One recording of one bearing plane, as plain values; it owns all it holds and keeps no file
/// open.
///
/// x and y have the same number of samples, at equal steps of 1 / sampleRate. `angle` has as many,
/// or none at all when there is no keyphasor: the shaft's angle in degrees, 0 to below 360, rising
/// and falling back once a turn, so that neighbours which differ by more than 180 mark one turn.
///
/// A gap is a NaN, in x, in y or in both; `angle` has no gaps. There is at least one sample in
/// which both probes have a value. A host channel has no word for a gap: see gaps.h for what it is
/// given.
struct Recording {
    std::filesystem::path file;
    double sampleRate = 0.0;  ///< samples per second, above 0
    RateSource rateSource = RateSource::TimeColumn;
    double startTime = 0.0;          ///< s, what the time column begins with; else 0
    Samples x;                       ///< displacement toward the X probe, in the unit
    Samples y;                       ///< displacement toward the Y probe, in the unit
    Samples angle;                   ///< degrees; empty: no keyphasor
    std::vector<double> pulseTimes;  ///< s after the first sample; of KeyphasorKind::Volts
    KeyphasorKind keyphasorKind = KeyphasorKind::None;  ///< as used
    int pulsesPerTurn = 1;                              ///< of KeyphasorKind::Volts
    double meanSpeed = 0.0;            ///< rpm over the whole recording; 0: no keyphasor
    Coupling coupling = Coupling::Dc;  ///< as used
    MachineFacts machine;
    std::vector<RecordingColumn> columns;
    std::vector<std::string> notes;  ///< what a person should know, one line each

    std::size_t sampleCount() const { return x.size(); }
    bool hasTacho() const { return !angle.empty(); }

    /// Whether the angle counts from a mark on the shaft, so that it means the same in another
    /// recording. A sum of speeds counts from the first sample, and of several pulses a turn nobody
    /// knows which came first.
    bool hasMark() const;
    double duration() const { return static_cast<double>(x.size()) / sampleRate; }
};

/// Reads a CSV or WAV file, told apart by their first bytes, together with the machine file that
/// lies beside it (machine_file.h); what is set in `options` goes before the machine file.
///
/// Throws RecordingError, with no other effect, if the file, the machine file or an option cannot
/// be used, and ReadingCancelled if the watch does not let the reading go on. Memory stays within a
/// small multiple of the file's size, whatever its header claims.
Recording readRecording(const std::filesystem::path& file, const RecordingOptions& options = {},
                        const ReadingWatch& watch = {});

}  // namespace Rotavue::Workbench
