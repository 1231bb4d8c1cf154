#include "cli/command_line.h"

int main(int count, char** arguments) {
    return Rotavue::Cli::CommandLine().run(count, arguments);
}
