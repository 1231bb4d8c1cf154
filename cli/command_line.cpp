#include "cli/command_line.h"

#include "cli/help_formatter.h"
#include "workbench/recording/nearest_name.h"
#include "workbench/recording/recording_error.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <iostream>

namespace Rotavue::Cli {

namespace {

std::string withNearest(const std::string& what, const std::string& found,
                        const std::vector<std::string>& names) {
    return what + Workbench::inQuotes(found) + ", did you mean " +
           Workbench::nearestName(found, names) + "?";
}

}  // namespace

CommandLine::CommandLine(Program program) : app_(program.help, "rotavue") {
    app_.formatter(std::make_shared<HelpFormatter>());
    app_.set_version_flag("--version", std::string("rotavue ") + ROTAVUE_VERSION);
    app_.require_subcommand(0, 1);
    app_.option_defaults()->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
    for (std::unique_ptr<Command>& command : program.commands)
        add(std::move(command));
}

void CommandLine::add(std::unique_ptr<Command> command) {
    CLI::App* declared = command->declare(app_);
    commands_.emplace_back(declared, std::move(command));
}

void CommandLine::checkCommandName(int count, const char* const* arguments) const {
    if (count < 2 || arguments[1][0] == '-') return;
    std::vector<std::string> names;
    for (const auto& [declared, command] : commands_)
        names.push_back(declared->get_name());
    const std::string word = arguments[1];
    if (std::find(names.begin(), names.end(), word) != names.end()) return;
    throw UsageError(withNearest("there is no command ", word, names));
}

std::vector<const CLI::App*> CommandLine::named() const {
    std::vector<const CLI::App*> chain{&app_};
    while (!chain.back()->get_subcommands().empty())
        chain.push_back(chain.back()->get_subcommands().front());
    return chain;
}

std::string CommandLine::unknownOption(const std::string& option) const {
    std::vector<std::string> names;
    for (const CLI::Option* known : named().back()->get_options())
        for (const std::string& name : known->get_lnames())
            names.push_back("--" + name);
    return withNearest("there is no option ", option.substr(0, option.find('=')), names);
}

std::string CommandLine::unknownWord(const std::string& word) const {
    std::vector<std::string> names;
    for (const CLI::App* known : named().back()->get_subcommands({}))
        names.push_back(known->get_name());
    if (names.empty()) return "found " + Workbench::inQuotes(word) + ", allowed: nothing more";
    return withNearest("there is no command ", word, names);
}

std::string CommandLine::nameForErrors() const {
    std::string text;
    for (const CLI::App* command : named())
        text += (text.empty() ? "" : " ") + command->get_name();
    return text;
}

void CommandLine::parse(int count, const char* const* arguments) {
    checkCommandName(count, arguments);
    try {
        app_.parse(count, arguments);
    } catch (const CLI::Success&) {
        throw;
    } catch (const CLI::ParseError& error) {
        const std::vector<std::string> left = app_.remaining(true);
        const auto option = std::find_if(left.begin(), left.end(), [](const std::string& word) {
            return word.size() > 1 && word[0] == '-';
        });
        if (option != left.end()) throw UsageError(unknownOption(*option));
        if (!left.empty()) throw UsageError(unknownWord(left.front()));
        throw UsageError(error.what());
    }
}

int CommandLine::runParsed() {
    for (const auto& [declared, command] : commands_)
        if (declared->parsed()) return command->run();
    std::cout << app_.help();
    return static_cast<int>(ExitStatus::Done);
}

int CommandLine::run(int count, const char* const* arguments) {
    try {
        parse(count, arguments);
        return runParsed();
    } catch (const CLI::Success& asked) {
        return app_.exit(asked);
    } catch (const UsageError& error) {
        std::cerr << nameForErrors() << ": " << error.what() << " (" << nameForErrors()
                  << " --help tells more)\n";
        return static_cast<int>(ExitStatus::WrongUse);
    } catch (const std::exception& error) {
        std::cerr << nameForErrors() << ": " << error.what() << '\n';
        return static_cast<int>(ExitStatus::Failed);
    }
}

}  // namespace Rotavue::Cli
