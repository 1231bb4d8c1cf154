#include "cli/setup_command.h"

#include "cli/output_file.h"
#include "cli/setup_control.h"
#include "workbench/recording/recording_error.h"
#include "workbench/setup/setup_rules.h"

#include <algorithm>
#include <iostream>

namespace Rotavue::Cli {

namespace {

using Workbench::SetupEntries;
using Workbench::SetupEntry;

constexpr const char* Help =
    "Make and keep setups of the control\n\n"
    "Examples:\n"
    "  rotavue setup new plot.xml\n"
    "  rotavue setup set graphType=1 revolutions=8 plot.xml\n"
    "  rotavue setup show plot.xml\n"
    "  rotavue setup check plot.xml\n"
    "  rotavue render pump.csv -o pump.png --setup plot.xml\n";

constexpr const char* NewHelp =
    "Write what a new control has\n\n"
    "Examples:\n"
    "  rotavue setup new plot.xml\n"
    "  rotavue setup new graphType=1 tickCount=3 plot.xml\n";

constexpr const char* ShowHelp =
    "List what a control holds after loading a setup\n\n"
    "Examples:\n"
    "  rotavue setup show plot.xml\n"
    "  rotavue setup show plot.xml | grep Type\n\n"
    "Each line is a KEY=VALUE as the other commands take it.\n";

constexpr const char* SetHelp =
    "Change settings in a setup\n\n"
    "Examples:\n"
    "  rotavue setup set displayTime=250 historyType=1 plot.xml\n\n"
    "The file is written anew beside its place and then put there: it is never half-written.\n";

constexpr const char* CheckHelp =
    "Tell whether a control takes a setup as it stands\n\n"
    "Examples:\n"
    "  rotavue setup check plot.xml\n";

constexpr const char* WordsName = "FILE KEY=VALUE";
constexpr const char* WordsHelp = "the XML file and what to set, in any order";

/// What stands before the '=' of a setting, which no path begins with; empty for another word.
std::string keyIn(const std::string& word) {
    const std::size_t equals = word.find('=');
    const std::string key = word.substr(0, equals == std::string::npos ? 0 : equals);
    return key.find_first_of("./") == std::string::npos ? key : "";
}

auto isEntry(const std::string& key) {
    return [&key](const SetupEntry& entry) { return entry.key == key; };
}

/// The settings that the file leaves out and that a control then takes otherwise than it makes
/// them.
void noteMissing(const std::string& file, const SetupEntries& read, const SetupEntries& made,
                 const SetupEntries& held) {
    for (const SetupEntry& one : held) {
        const bool there = std::any_of(read.begin(), read.end(), isEntry(one.key));
        const SetupEntry& usual = *std::find_if(made.begin(), made.end(), isEntry(one.key));
        if (there || usual.text == one.text) continue;
        std::cerr << file << ": without \"" << one.key << "\" a control takes " << one.text
                  << ", where a new one has " << usual.text << '\n';
    }
}

}  // namespace

CLI::App* SetupCommand::declare(CLI::App& program) {
    CLI::App* command = program.add_subcommand("setup", Help);
    command->require_subcommand(1);
    make_ = command->add_subcommand("new", NewHelp);
    change_ = command->add_subcommand("set", SetHelp);
    show_ = command->add_subcommand("show", ShowHelp);
    CLI::App* check = command->add_subcommand("check", CheckHelp);
    for (CLI::App* writing : {make_, change_})
        writing->add_option(WordsName, words_, WordsHelp)->required()->type_name("");
    for (CLI::App* reading : {show_, check})
        reading->add_option("FILE", file_, "an XML file")->required()->type_name("");
    make_->add_flag("--force", force_, "replace a setup that is there");
    for (CLI::App* one : {make_, change_, show_, check})
        declareModule(*one);
    return command;
}

void SetupCommand::declareModule(CLI::App& command) {
    command
        .add_option("--module", module_,
                    "the module file, if not the registered one or the one beside the program")
        ->type_name("FILE");
}

int SetupCommand::run() {
    if (make_->parsed()) return make();
    if (change_->parsed()) return change();
    return show_->parsed() ? show() : check();
}

void SetupCommand::sortWords() {
    for (const std::string& word : words_) {
        const std::string key = keyIn(word);
        if (key.empty()) {
            if (!file_.empty()) throw UsageError("one file at a time: " + file_ + ", " + word);
            file_ = word;
        } else {
            changes_.push_back({key, word.substr(key.size() + 1)});
        }
    }
    if (file_.empty()) throw UsageError("FILE is required");
    checkChanges();
}

void SetupCommand::checkChanges() const {
    for (auto change = changes_.begin(); change != changes_.end(); ++change) {
        const auto& [key, text, line] = *change;
        if (!Workbench::isSettingKey(key)) throw UsageError("found " + Workbench::unknownKey(key));
        if (!Workbench::isSettingText(key, text)) {
            throw UsageError(key, text, Workbench::allowedTexts(key));
        }
        const auto again = std::find_if(changes_.begin(), change, isEntry(key));
        if (again != change) throw UsageError(key + " is given twice");
    }
}

SetupEntries SetupCommand::changed(SetupEntries entries) const {
    for (const SetupEntry& change : changes_)
        std::find_if(entries.begin(), entries.end(), isEntry(change.key))->text = change.text;
    return entries;
}

int SetupCommand::make() {
    sortWords();
    const OutputFile output(file_, force_);
    SetupControl control(module_);
    control.load(file_, changed(control.save()));
    output.write(Workbench::setupXml(control.save()));
    return 0;
}

int SetupCommand::change() {
    sortWords();
    if (changes_.empty()) throw UsageError("nothing to set: KEY=VALUE is missing");
    SetupControl control(module_);
    control.load(file_, Workbench::readCheckedSetup(file_));
    control.load(file_, changed(control.save()));
    OutputFile(file_, true).write(Workbench::setupXml(control.save()));
    return 0;
}

int SetupCommand::show() const {
    SetupControl control(module_);
    control.load(file_, Workbench::readCheckedSetup(file_));
    std::string lines;
    for (const SetupEntry& entry : control.save())
        lines += entry.key + '=' + entry.text + '\n';
    OutputFile("-", false).write(lines);
    return 0;
}

int SetupCommand::check() const {
    const SetupEntries entries = Workbench::readCheckedSetup(file_);
    SetupControl control(module_);
    const SetupEntries made = control.save();
    control.load(file_, entries);
    noteMissing(file_, entries, made, control.save());
    std::cerr << file_ << ": a control takes it as it stands\n";
    return 0;
}

}  // namespace Rotavue::Cli
