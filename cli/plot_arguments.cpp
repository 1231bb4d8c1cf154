#include "cli/plot_arguments.h"

namespace Rotavue::Cli {

void PlotArguments::declareRecordings(CLI::App& command) {
    command.add_option("RECORDINGS", recordings_, "CSV or WAV files of one bearing, a curve each")
        ->required()
        ->type_name("");
}

void PlotArguments::declareShown(CLI::App& command) {
    span_.declare(command, ShownGroup);
    command
        .add_option("--setup", setup_,
                    "a setup as \"rotavue setup\" makes it; options go before it")
        ->type_name("FILE")
        ->group(ShownGroup);
    curves_.declare(command);
    compensation_.declare(command);
}

void PlotArguments::declareRest(CLI::App& command) {
    recordingArguments_.declare(command);
    command
        .add_option("--module", module_,
                    "the module file, if not the registered one or the one beside the program")
        ->type_name("FILE");
    command.add_flag("-q,--quiet", quiet_, "no messages but errors");
}

RenderOptions PlotArguments::options() const {
    RenderOptions options;
    options.recordings = recordings_;
    options.recording = recordingArguments_.options();
    options.module = module_;
    options.quiet = quiet_;
    options.compensation = compensation_.choice();
    span_.read(options);
    curves_.read(options);
    return options;
}

std::optional<SetupChoice> PlotArguments::setup() const {
    if (!setup_) return std::nullopt;
    return SetupChoice(*setup_, module_);
}

}  // namespace Rotavue::Cli
