#pragma once

#include "cli/command.h"
#include "cli/registry_entries.h"
#include "host_kit/loader/platform.h"

#include <optional>
#include <string>

namespace Rotavue::Cli {

/// What `register` and `unregister` share: the scope, the module and its entry points.
class RegistryCommand : public Command {
public:
    CLI::App* declare(CLI::App& program) override;

protected:
    RegistryCommand(const char* name, const char* help) : name_(name), help_(help) {}

    Scope scope() const { return user_ ? Scope::User : Scope::Machine; }

    /// "for this user" or "for all users".
    const char* forWhom() const;

    /// The file that is named, else `usual` where that is there, else the one beside the program.
    std::filesystem::path module(const std::filesystem::path& usual = {}) const;

private:
    const char* name_;
    const char* help_;
    bool user_ = false;
    std::optional<std::string> module_;
};

/// Lets the module announce itself, and reads back whether it did: the module itself reports no
/// failure of the registry.
class RegisterCommand final : public RegistryCommand {
public:
    RegisterCommand();
    int run() override;
};

/// Lets the module take its announcement away, reads back whether it did, and says what stays.
class UnregisterCommand final : public RegistryCommand {
public:
    UnregisterCommand();
    int run() override;
};

}  // namespace Rotavue::Cli
