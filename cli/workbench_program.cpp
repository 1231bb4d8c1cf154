#include "cli/analyze_command.h"
#include "cli/copy_command.h"
#include "cli/info_command.h"
#include "cli/play_command.h"
#include "cli/program.h"
#include "cli/register_command.h"
#include "cli/render_command.h"
#include "cli/session_painting.h"
#include "cli/setup_command.h"
#include "cli/view_command.h"

namespace Rotavue::Cli {

namespace {

constexpr const char* Help =
    "Orbit plots of rotating shafts\n\n"
    "Examples:\n"
    "  rotavue render unbalance.csv -o unbalance.png\n"
    "  rotavue view unbalance.csv\n"
    "  rotavue info unbalance.csv\n"
    "  rotavue analyze unbalance.csv\n"
    "  rotavue register --user\n"
    "  rotavue play raw-orbit.json\n\n"
    "Exit status: 0 done, 1 failed, 2 wrong use (play also: 3 no plug-in).\n";

}  // namespace

Program makeProgram() {
    Program program{Help, {}};
    program.commands.push_back(std::make_unique<RenderCommand>());
    program.commands.push_back(std::make_unique<ViewCommand>());
    program.commands.push_back(std::make_unique<InfoCommand>());
    program.commands.push_back(std::make_unique<AnalyzeCommand>());
    program.commands.push_back(std::make_unique<CopyCommand>());
    program.commands.push_back(std::make_unique<SetupCommand>());
    program.commands.push_back(std::make_unique<PlayCommand>(openSessionPainting));
    program.commands.push_back(std::make_unique<RegisterCommand>());
    program.commands.push_back(std::make_unique<UnregisterCommand>());
    return program;
}

}  // namespace Rotavue::Cli
