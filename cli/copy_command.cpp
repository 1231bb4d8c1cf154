#include "cli/copy_command.h"

#include "cli/output_file.h"
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

std::string copiedText(const RenderOptions& options, OrbitScene& scene) {
    HostKit::MemoryClipboard clipboard;
    HostKit::Module module(HostKit::chooseModule(options.module));
    module.supplyClipboard(&clipboard);
    HostKit::DrivenControl control(module, scene.host());
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
    arguments_.declareRecordings(*command);
    arguments_.declareShown(*command);
    arguments_.declareRest(*command);
    return command;
}

RenderOptions CopyCommand::options() const {
    RenderOptions options = arguments_.options();
    if (auto setup = arguments_.setup()) {
        setup->takeSpan(options);
        setup->takePlot(options);
    }
    return options;
}

int CopyCommand::run() {
    const RenderOptions asked = options();
    OrbitScene scene(asked);
    OutputFile("-", false).write(copiedText(asked, scene));
    if (asked.quiet) return 0;
    for (const std::string& note : scene.notes())
        std::cerr << note << '\n';
    return 0;
}

}  // namespace Rotavue::Cli
