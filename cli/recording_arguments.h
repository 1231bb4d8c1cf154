#pragma once

#include "workbench/recording/recording.h"

#include <CLI/App.hpp>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace Rotavue::Cli {

/// The options that say what a recording's numbers mean: each item of a machine file is one, named
/// after its place there, so that "/keyphasor/pulsesPerTurn" is --keyphasor-pulses-per-turn.
class RecordingArguments {
public:
    void declare(CLI::App& command);

    /// What was given. Raises `UsageError` for a value that an item does not take.
    Workbench::RecordingOptions options() const;

private:
    std::optional<std::string> machineFile_;
    std::vector<std::optional<std::string>> items_;  ///< as `Workbench::optionItems`
};

/// "--keyphasor-pulses-per-turn" for "/keyphasor/pulsesPerTurn".
std::string optionNameOf(std::string_view pointer);

}  // namespace Rotavue::Cli
