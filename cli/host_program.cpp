#include "cli/play_command.h"
#include "cli/program.h"
#include "cli/register_command.h"

namespace Rotavue::Cli {

namespace {

constexpr const char* Help =
    "The orbit plug-in: announce it to hosts, and play sessions on it\n\n"
    "Examples:\n"
    "  rotavue register --user\n"
    "  rotavue play raw-orbit.json\n"
    "  rotavue unregister --user\n\n"
    "Exit status: 0 done, 1 failed, 2 wrong use (play also: 3 no plug-in).\n";

}  // namespace

Program makeProgram() {
    Program program{Help, {}};
    program.commands.push_back(std::make_unique<PlayCommand>());
    program.commands.push_back(std::make_unique<RegisterCommand>());
    program.commands.push_back(std::make_unique<UnregisterCommand>());
    return program;
}

}  // namespace Rotavue::Cli
