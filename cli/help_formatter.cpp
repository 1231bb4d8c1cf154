#include "cli/help_formatter.h"

#include <algorithm>
#include <string_view>

namespace Rotavue::Cli {

namespace {

constexpr std::size_t ColumnWidth = 32;

}  // namespace

HelpFormatter::HelpFormatter() {
    column_width(ColumnWidth);
    label("OPTIONS", "options");
}

std::string HelpFormatter::make_subcommand(const CLI::App* command) const {
    const std::string description = command->get_description();
    std::string line = "  " + command->get_name();
    line.resize(std::max(line.size() + 2, ColumnWidth), ' ');
    return line + description.substr(0, description.find('\n')) + '\n';
}

/// Without the mark of a flag that means no, which says nothing to a reader.
std::string HelpFormatter::make_option_name(const CLI::Option* option, bool positional) const {
    constexpr std::string_view Mark = "{false}";
    std::string name = CLI::Formatter::make_option_name(option, positional);
    if (const std::size_t place = name.find(Mark); place != std::string::npos) {
        name.erase(place, Mark.size());
    }
    return name;
}

std::string HelpFormatter::make_option_opts(const CLI::Option* option) const {
    const std::string name = option->get_type_size() != 0 ? option->get_type_name() : "";
    return name.empty() ? "" : ' ' + name;
}

}  // namespace Rotavue::Cli
