#include "cli/copy_command.h"

#include "cli/argument_values.h"
#include "cli/output_file.h"
#include "cli/setup_choice.h"
#include "cli/setup_texts.h"
#include "host_kit/memory/memory_clipboard.h"
#include "host_kit/memory/utf8.h"

#include <iostream>
#include <stdexcept>

namespace Rotavue::Cli {

namespace {

constexpr const char* Help =
    "Print what a control copies to the clipboard\n\n"
    "Examples:\n"
    "  rotavue copy pump.csv > pump.tsv\n"
    "  rotavue copy pump.csv --revolutions 1 --show raw,average\n"
    "  rotavue copy run-up.csv --show shaft-center | column -t -s $'\\t'\n\n"
    "Each curve has a title, a line of column names and its rows, tabs between the columns.\n";

constexpr const char* SpanGroup = "What is shown";

/// As `render` bounds them.
constexpr int MostRevolutions = 25;
constexpr double MostMilliseconds = 10'000.0;
constexpr double MostSeconds = 1e9;

std::string copiedText(const RenderOptions& options, OrbitScene& scene) {
    HostKit::MemoryClipboard clipboard;
    HostKit::Module module(HostKit::chooseModule(options.module));
    module.supplyClipboard(&clipboard);
    DrivenControl control(module, scene.host());
    control.assignmentChanged();
    control.load(settingsFor(options, scene, {}));
    control.copy();
    module.supplyClipboard(nullptr);
    const auto text = clipboard.takeText();
    if (!text) throw std::runtime_error("the plug-in put nothing on the clipboard");
    return HostKit::toUtf8(*text);
}

}  // namespace

CLI::App* CopyCommand::declare(CLI::App& program) {
    CLI::App* command = program.add_subcommand("copy", Help);
    command->add_option("RECORDINGS", recordings_, "CSV or WAV files of one bearing")
        ->required()
        ->type_name("");
    CLI::Option* turns =
        command->add_option("--revolutions", revolutions_, "the newest whole turns, 1 to 25 (8)");
    turns->type_name("N")->group(SpanGroup);
    command->add_option("--time", milliseconds_, "the newest milliseconds, 1 to 10000")
        ->type_name("MS")
        ->excludes(turns)
        ->group(SpanGroup);
    command->add_option("--at", at_, "where the newest sample is, after the first one (the end)")
        ->type_name("SECONDS")
        ->group(SpanGroup);
    command->add_option("--setup", setup_, "a setup as \"rotavue setup\" makes it")
        ->type_name("FILE")
        ->group(SpanGroup);
    curves_.declare(*command);
    recordingArguments_.declare(*command);
    command
        ->add_option("--module", module_,
                     "the module file, if not the registered one or the one beside the program")
        ->type_name("FILE");
    command->add_flag("-q,--quiet", quiet_, "no messages but errors");
    return command;
}

RenderOptions CopyCommand::options() const {
    RenderOptions options;
    options.recordings = recordings_;
    options.recording = recordingArguments_.options();
    options.module = module_;
    if (revolutions_) {
        options.revolutions = wholeNumber("--revolutions", *revolutions_, 1, MostRevolutions);
    }
    if (milliseconds_) {
        options.milliseconds = number("--time", *milliseconds_, 1.0, MostMilliseconds, "ms");
    }
    if (at_) options.at = number("--at", *at_, 0.0, MostSeconds, "s");
    curves_.read(options);
    if (!setup_) return options;
    SetupChoice setup(*setup_, module_);
    setup.takeSpan(options);
    setup.takePlot(options);
    return options;
}

int CopyCommand::run() {
    const RenderOptions asked = options();
    OrbitScene scene(asked);
    OutputFile("-", false).write(copiedText(asked, scene));
    if (quiet_) return 0;
    for (const std::string& note : scene.notes())
        std::cerr << note << '\n';
    return 0;
}

}  // namespace Rotavue::Cli
