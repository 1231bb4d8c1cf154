#include "cli/copy_command.h"

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
    span_.declare(*command, SpanGroup);
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
    span_.read(options);
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
