#pragma once

#include "host_kit/control/driven_control.h"
#include "host_kit/loader/module.h"
#include "workbench/setup/setup_file.h"

#include <filesystem>
#include <optional>
#include <string>

namespace Rotavue::Cli {

/// A new control with nothing assigned, to load setups and to save them.
class SetupControl {
public:
    /// Of that module file, else the registered one, else the one beside the program.
    explicit SetupControl(const std::optional<std::string>& module);

    /// What the control writes into a setup now: every key in its order, also those that a document
    /// need not store.
    Workbench::SetupEntries save();

    /// Lets the control load checked entries; a key that is left out has the default of a setup
    /// document. Raises `RecordingError`, naming the file and the key, where the control fails.
    void load(const std::filesystem::path& file, const Workbench::SetupEntries& entries);

private:
    HostKit::MemoryHost host_;
    HostKit::Module module_;
    HostKit::DrivenControl control_;
};

/// The entries as a document holds them.
HostKit::DrivenControl::Settings documentTexts(const Workbench::SetupEntries& entries);

}  // namespace Rotavue::Cli
