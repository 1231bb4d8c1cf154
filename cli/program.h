#pragma once

#include "cli/command.h"

#include <memory>
#include <string>
#include <vector>

namespace Rotavue::Cli {

/// What a build of the program can do.
struct Program {
    std::string help;  ///< what it is, with examples
    std::vector<std::unique_ptr<Command>> commands;
};

/// The program of this build: with the workbench in workbench_program.cpp, with the host kit alone
/// in host_program.cpp.
Program makeProgram();

}  // namespace Rotavue::Cli
