#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace Rotavue::Workbench {

/// The sense in which the shaft turns, as seen in the picture.
enum class Rotation { Clockwise, CounterClockwise };

/// What the keyphasor column holds.
///   None   there is no keyphasor, whatever the columns are called
///   Volts  a signal with pulses; an edge through a level marks the passing mark
///   Ramp   the shaft's angle in degrees, growing; any multiple of 360 may be added
///   Speed  the rotation speed in rpm; the angle is its integral from 0 at the first sample
enum class KeyphasorKind { None, Volts, Ramp, Speed };

enum class PulseEdge { Rising, Falling };

/// What becomes of the part of a displacement that stands still. Dc keeps it; Ac subtracts each
/// probe's mean over the recording, which centres the orbit and gives up the shaft's position.
enum class Coupling { Dc, Ac };

/// One displacement probe.
struct ProbeOptions {
    std::optional<std::string> column;  ///< name of the column, or "#2" for the second one
    std::optional<double> angle;        ///< degrees clockwise from the top, -360 to 360
    std::optional<double> sensitivity;  ///< file's unit per unit, not 0; see below
    std::optional<double> rest;         ///< the file's value that stands for displacement 0
};

struct KeyphasorOptions {
    std::optional<std::string> column;  ///< name of the column, or "#4" for the fourth one
    std::optional<KeyphasorKind> kind;  ///< unset: from the column's name, unit and values
    std::optional<PulseEdge> edge;      ///< unset: rising
    std::optional<double> level;        ///< file's unit; unset: from the quantiles, keyphasor.h
    std::optional<double> hysteresis;   ///< file's unit, 0 or more; unset: quarter of the swing
    std::optional<int> pulsesPerTurn;   ///< 1 to 3600; unset: 1
    std::optional<double> angle;        ///< degrees clockwise from the top, -360 to 360
};

/// What is known about a recording beside its numbers. Each field can stand in the machine file and
/// can be set by whoever reads the recording; an unset field leaves the word to the file, and an
/// item that nobody sets has the default that `MachineFacts` and `Recording` tell.
///
/// A value becomes a displacement by (value - rest) / sensitivity. The sensitivity is positive
/// where the value grows as the shaft comes nearer to the probe: an eddy-current driver of 200
/// mV/mil, whose volts get less negative then, is 0.00787 V/um. A negative one turns a probe round.
struct RecordingOptions {
    std::optional<std::filesystem::path> machineFile;  ///< unset: NAME.machine.json; "": none
    std::optional<double> rate;                        ///< samples per second; overrides the file's
    std::optional<std::string> timeColumn;             ///< name of the column, or "#1"
    ProbeOptions x;
    ProbeOptions y;
    KeyphasorOptions keyphasor;
    std::optional<Coupling> coupling;  ///< unset: Dc
    std::optional<Rotation> rotation;
    std::optional<double> clearanceWidth;   ///< diametral, in the unit, 0 or more
    std::optional<double> clearanceHeight;  ///< diametral, in the unit, 0 or more
    std::optional<std::string> unit;        ///< of the displacements, such as "um"
    std::optional<std::string> machine;     ///< name of the machine
    std::optional<std::string> point;       ///< name of the measuring point
};

/// `below` with every field that is set in `above` taken from there. `machineFile` too.
RecordingOptions overlaid(RecordingOptions below, const RecordingOptions& above);

/// Throws RecordingError if a number is outside the range that its field tells, or no number. The
/// message names the item by its place in a machine file, such as "/x/angle".
void checkOptions(const RecordingOptions& options);

/// The probe angle in degrees clockwise from the top, 0 to below 360, from a text such as "45",
/// "-12.5", "45 R" (right of the top: 45) or "45 L" (left of it: 315). A number with a side runs
/// from 0 to 180, one without from -360 to 360, always with a decimal point. Nothing for any other
/// text.
std::optional<double> parseProbeAngle(std::string_view text);

/// "CW" and "CCW", exactly; nothing for any other text.
std::optional<Rotation> parseRotation(std::string_view text);

/// "none", "volts", "ramp" and "speed", exactly; nothing for any other text.
std::optional<KeyphasorKind> parseKeyphasorKind(std::string_view text);

/// "rising" and "falling", exactly; nothing for any other text.
std::optional<PulseEdge> parsePulseEdge(std::string_view text);

/// "DC" and "AC", exactly; nothing for any other text.
std::optional<Coupling> parseCoupling(std::string_view text);

/// The word for it: what the functions above take.
std::string_view toText(Rotation rotation);
std::string_view toText(KeyphasorKind kind);
std::string_view toText(PulseEdge edge);
std::string_view toText(Coupling coupling);

}  // namespace Rotavue::Workbench
