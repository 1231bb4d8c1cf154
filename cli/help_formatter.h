#pragma once

#include <CLI/App.hpp>
#include <CLI/Formatter.hpp>

#include <string>

namespace Rotavue::Cli {

/// Help with the examples first; a command's line in the list of commands is the first of its own
/// help.
class HelpFormatter final : public CLI::Formatter {
public:
    HelpFormatter();

    std::string make_subcommand(const CLI::App* command) const override;
    std::string make_option_name(const CLI::Option* option, bool positional) const override;
    std::string make_option_opts(const CLI::Option* option) const override;
};

}  // namespace Rotavue::Cli
