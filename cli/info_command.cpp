#include "cli/info_command.h"

#include "cli/output_file.h"
#include "cli/recording_facts.h"

namespace Rotavue::Cli {

namespace {

constexpr const char* Help =
    "Tell what is in a recording\n\n"
    "Examples:\n"
    "  rotavue info unbalance.csv\n"
    "  rotavue info unbalance.csv --json\n"
    "  rotavue info volts.wav --x-column '#1' --y-column '#2' --keyphasor-column '#3'\n";

}  // namespace

CLI::App* InfoCommand::declare(CLI::App& program) {
    CLI::App* command = program.add_subcommand("info", Help);
    command->add_option("RECORDING", file_, "a CSV or WAV file")->required()->type_name("");
    command->add_flag("--json", json_, "one JSON object");
    arguments_.declare(*command);
    return command;
}

int InfoCommand::run() {
    const Workbench::Recording recording = Workbench::readRecording(file_, arguments_.options());
    const std::string text = json_ ? factsAsJson(recording) : factsAsText(recording);
    OutputFile("-", false).write(text);
    return 0;
}

}  // namespace Rotavue::Cli
