#pragma once

#include "cli/program.h"

#include <CLI/App.hpp>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace Rotavue::Cli {

/// The program: its sub-commands, its help, its exit status.
class CommandLine {
public:
    explicit CommandLine(Program program);

    /// Runs what the arguments ask for. Data goes to standard output, one line for each error to
    /// standard error.
    int run(int count, const char* const* arguments);

private:
    void add(std::unique_ptr<Command> command);
    void parse(int count, const char* const* arguments);
    int runParsed();

    /// Raises `UsageError` for a first word that is no sub-command, with the nearest one.
    void checkCommandName(int count, const char* const* arguments) const;

    /// The program and the sub-commands that were named, each below the one before.
    std::vector<const CLI::App*> named() const;

    /// What is wrong with an option, or another word, that nobody takes.
    std::string unknownOption(const std::string& option) const;
    std::string unknownWord(const std::string& word) const;

    /// "rotavue render" where that sub-command was named.
    std::string nameForErrors() const;

    CLI::App app_;
    std::vector<std::pair<CLI::App*, std::unique_ptr<Command>>> commands_;
};

}  // namespace Rotavue::Cli
