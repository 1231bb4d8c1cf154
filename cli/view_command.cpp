#include "cli/view_command.h"

#include "cli/argument_values.h"
#include "cli/curve_list.h"
#include "cli/output_file.h"
#include "cli/window_entry.h"
#include "host_kit/loader/platform.h"

#include <stdexcept>

namespace Rotavue::Cli {

namespace {

constexpr const char* Help =
    "Look at recordings in a window\n\n"
    "Examples:\n"
    "  rotavue view\n"
    "  rotavue view unbalance.csv\n"
    "  rotavue view bearing-1.csv bearing-2.csv\n"
    "  rotavue view run-up.csv --at 3.2 --theme dark --screenshot window.png\n";

constexpr const char* ScreenGroup = "The screen";
constexpr double MostSeconds = 1e9;
constexpr double LeastScale = 0.5;
constexpr double LargestScale = 4.0;
constexpr int LargestWindow = 8192;

int runFromLibrary(const Workbench::WindowOrder& order) try {
    const auto library = HostKit::SharedLibrary::load(HostKit::programFolder() / WindowLibraryName);
    void* const entry = library->find(WindowEntryName);
    if (entry == nullptr) {
        throw std::runtime_error(std::string(WindowLibraryName) + " is of another program");
    }
    // Qt's own clean-up at the end of the process must still find its code.
    library->keepLoaded();
    std::string failure;
    const int status = reinterpret_cast<WindowEntry*>(entry)(order, failure);
    if (!failure.empty()) throw std::runtime_error(failure);
    return status;
} catch (const HostKit::LoadError& error) {
    throw std::runtime_error(std::string("no window can be opened: ") + error.what());
}

}  // namespace

CLI::App* ViewCommand::declare(CLI::App& program) {
    CLI::App* command = program.add_subcommand("view", Help);
    command->add_option("RECORDINGS", recordings_, "CSV or WAV files, a bearing plane each")
        ->type_name("");
    command
        ->add_option("--show", show_,
                     "what is drawn of each, joined by commas, as in render --show (raw)")
        ->type_name("CURVES");
    command->add_option("--setup", setup_, "a setup file for the controls (docs/setups.md)")
        ->type_name("FILE");
    command->add_option("--at", at_, "where the cursor is, after the first sample (the end)")
        ->type_name("SECONDS");
    command->add_option("--theme", theme_, "light, dark or system (as it was last)")
        ->type_name("THEME")
        ->group(ScreenGroup);
    command->add_option("--size", size_, "of the window, in pixels (as it was last)")
        ->type_name("WIDTHxHEIGHT")
        ->group(ScreenGroup);
    command->add_option("--scale", scale_, "of everything, 0.5 to 4 (as the desktop has it)")
        ->type_name("N")
        ->group(ScreenGroup);
    command
        ->add_option("--screenshot", screenshot_,
                     "paint the window into a PNG file and end; needs no display")
        ->type_name("FILE")
        ->group(ScreenGroup);
    command->add_flag("--force", force_, "replace a picture that is there")->group(ScreenGroup);
    command->add_flag("--reset-settings", resetSettings_,
                      "forget layout, theme and all else that the window remembers");
    recordingArguments_.declare(*command);
    command
        ->add_option("--module", module_,
                     "the module file, if not the registered one or the one beside the program")
        ->type_name("FILE");
    return command;
}

Workbench::WindowOrder ViewCommand::order() const {
    Workbench::WindowOrder order{.recordings = recordings_,
                                 .recording = recordingArguments_.options(),
                                 .setup = setup_,
                                 .module = module_,
                                 .theme = theme_.value_or(""),
                                 .screenshot = screenshot_,
                                 .resetSettings = resetSettings_};
    if (show_) order.show = curveRequests(*show_);
    if (at_) order.at = number("--at", *at_, 0.0, MostSeconds, "s");
    if (theme_ && *theme_ != "light" && *theme_ != "dark" && *theme_ != "system") {
        throw UsageError("--theme", *theme_, "light, dark or system");
    }
    if (scale_) order.scale = number("--scale", *scale_, LeastScale, LargestScale, "");
    if (size_) {
        const PixelSize size = pixelSize("--size", *size_, LargestWindow);
        order.width = size.width;
        order.height = size.height;
    }
    return order;
}

int ViewCommand::run() {
    const Workbench::WindowOrder asked = order();
    if (screenshot_) OutputFile(*screenshot_, force_);
    return runFromLibrary(asked);
}

}  // namespace Rotavue::Cli
