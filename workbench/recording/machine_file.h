#pragma once

#include <filesystem>
#include <string>

#include "workbench/recording/recording_options.h"

namespace Rotavue::Workbench {

/// A machine file tells what a recording's numbers mean. It is one JSON object; every member may be
/// left out:
///
///     {
///       "machine": "Rotor kit",        "point": "Bearing 1",      "unit": "um",
///       "rotation": "CCW",             "rate": 5000,              "time": {"column": "t"},
///       "coupling": "DC",
///       "x": {"column": "X", "angle": "45 R", "sensitivity": 0.00787, "rest": -9.8},
///       "y": {"column": "Y", "angle": 315, "sensitivity": 0.00787, "rest": -9.8},
///       "keyphasor": {"column": "KP", "kind": "volts", "edge": "falling", "level": -5,
///                     "hysteresis": 1, "pulsesPerTurn": 1, "angle": 0},
///       "clearance": {"width": 200, "height": 180}
///     }
///
/// What each member means, its unit and its range, stands at the field of the same name in
/// recording_options.h.

/// Where the machine file of a recording is looked for: beside it, with the name's last extension
/// replaced, so that "kit/run-up.csv" has "kit/run-up.machine.json".
std::filesystem::path machineFileOf(const std::filesystem::path& recording);

/// Reads a machine file. Throws RecordingError if it cannot be read, is larger than 64 KiB, is no
/// JSON (with line and column), or holds an unknown member, a wrong type or a value out of range
/// (with the JSON pointer of the member). `machineFile` of the result stays unset.
RecordingOptions readMachineFile(const std::filesystem::path& file);

/// The same from a text; `file` is what its errors name.
RecordingOptions readMachineText(const std::filesystem::path& file, const std::string& text);

/// All that is known of a recording before it is read: the options, and below them what its machine
/// file tells. That is the one that they name, or the one beside the recording if there is one; an
/// empty name stands for none. Throws RecordingError as `readMachineFile`.
RecordingOptions withMachineFile(const std::filesystem::path& recording,
                                 const RecordingOptions& options);

/// The same, but what is wrong in the machine file is left out: a member alone, or all of what is
/// no machine file. What a person begins with who mends it.
RecordingOptions withSoundItems(const std::filesystem::path& recording,
                                const RecordingOptions& options);

/// The text of a machine file that tells what is set in the options, but for `machineFile`.
std::string machineText(const RecordingOptions& options);

}  // namespace Rotavue::Workbench
