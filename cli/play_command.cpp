#include "cli/play_command.h"

#include "host_kit/session/play.h"

#include <filesystem>
#include <iostream>

namespace Rotavue::Cli {

namespace {

constexpr const char* Help =
    "Play a session on the loaded plug-in\n\n"
    "Examples:\n"
    "  rotavue play raw-orbit.json\n"
    "  rotavue play raw-orbit.json --calls all > raw-orbit.log\n";

constexpr const char* PictureHelp = "  rotavue play raw-orbit.json --picture raw-orbit.png\n";

constexpr const char* FolderHelp =
    "  rotavue play sessions/ --out logs/\n\n"
    "Exit status: 0 all steps were sent, 1 a log or picture cannot be written, 2 no valid\n"
    "session or wrong use, 3 the plug-in cannot be loaded.\n";

constexpr const char* CallGroupHelp =
    "groups of calls in the log, joined by commas: draw, measure, panel, setup, control, data, or "
    "all (draw,panel,setup,control)";

HostKit::PlayOptions optionsFor(const std::optional<std::string>& calls,
                                const std::optional<std::string>& module) {
    HostKit::PlayOptions options;
    if (module) options.module = *module;
    if (!calls) return options;
    const auto groups = HostKit::parseCallGroups(*calls);
    if (!groups) {
        throw UsageError("--calls", *calls,
                         "draw, measure, panel, setup, control and data, joined by commas, or all");
    }
    options.log.groups = *groups;
    return options;
}

}  // namespace

CLI::App* PlayCommand::declare(CLI::App& program) {
    const std::string help = std::string(Help) + (openPicture_ ? PictureHelp : "") + FolderHelp;
    CLI::App* command = program.add_subcommand("play", help);
    command->add_option("SESSION", session_, "a session file, or a folder of them")
        ->required()
        ->type_name("");
    command->add_option("--calls", calls_, CallGroupHelp)->type_name("GROUPS");
    command->add_option("--out", out_, "the folder for the logs of a folder")->type_name("FOLDER");
    command
        ->add_option("--module", module_,
                     "the module file, if not the registered one or the one beside the program")
        ->type_name("FILE");
    if (openPicture_) declarePicture(*command);
    return command;
}

void PlayCommand::declarePicture(CLI::App& command) {
    command
        .add_option("--picture", picture_, "paint the frame of the last draw message into a file")
        ->type_name("FILE");
    command.add_flag("--force", force_, "replace a picture that is there");
}

int PlayCommand::run() {
    return std::filesystem::is_directory(session_) ? playAll() : playOne();
}

int PlayCommand::playOne() const {
    if (out_) throw UsageError("--out goes with a folder of sessions");
    HostKit::PlayOptions options = optionsFor(calls_, module_);
    std::unique_ptr<SessionPicture> picture;
    if (picture_) {
        picture = openPicture_(*picture_, force_);
        options.log.picture = picture->maker();
    }
    const auto status = HostKit::playSession(session_, options, std::cout, std::cerr);
    if (status == HostKit::PlayStatus::Done && picture) picture->write();
    return static_cast<int>(status);
}

int PlayCommand::playAll() const {
    if (!out_) throw UsageError("a folder of sessions needs --out FOLDER for the logs");
    if (picture_) throw UsageError("--picture goes with one session");
    return static_cast<int>(
        HostKit::playFolder(session_, *out_, optionsFor(calls_, module_), std::cerr));
}

}  // namespace Rotavue::Cli
