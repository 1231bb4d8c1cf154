#pragma once

#include "cli/command.h"
#include "workbench/setup/setup_file.h"

#include <optional>
#include <string>
#include <vector>

namespace Rotavue::Cli {

/// Makes, shows, changes and checks setups of the control as XML files.
class SetupCommand final : public Command {
public:
    CLI::App* declare(CLI::App& program) override;
    int run() override;

private:
    void declareModule(CLI::App& command);
    int make();
    int show() const;
    int change();
    int check() const;

    /// Tells the file from the changes among the words. Raises `UsageError`.
    void sortWords();
    void checkChanges() const;

    /// The entries of all keys with the changes.
    Workbench::SetupEntries changed(Workbench::SetupEntries entries) const;

    CLI::App* make_ = nullptr;
    CLI::App* show_ = nullptr;
    CLI::App* change_ = nullptr;
    std::string file_;
    std::vector<std::string> words_;  ///< the file and the changes, as they were given
    Workbench::SetupEntries changes_;
    bool force_ = false;
    std::optional<std::string> module_;
};

}  // namespace Rotavue::Cli
