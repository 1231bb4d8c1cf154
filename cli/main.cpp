#include "cli/command_line.h"
#include "cli/standard_streams.h"

int main(int count, char** arguments) {
    Rotavue::Cli::keepLineEnds();
    return Rotavue::Cli::CommandLine(Rotavue::Cli::makeProgram()).run(count, arguments);
}
