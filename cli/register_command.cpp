#include "cli/register_command.h"

#include "host_kit/memory/call.h"
#include "plugin/framework/plugin_interfaces.h"

#include <cstdint>
#include <iostream>
#include <stdexcept>

namespace Rotavue::Cli {

namespace {

namespace EntryPoint = Meridax::VisualControls::Api::EntryPoint;

constexpr const char* RegisterHelp =
    "Announce the plug-in to hosts\n\n"
    "Examples:\n"
    "  rotavue register --user\n"
    "  rotavue register          (as root or administrator: for all users)\n"
    "  rotavue register --user --module /opt/rotavue/Rotavue64.vc\n";

constexpr const char* UnregisterHelp =
    "Take the announcement back\n\n"
    "Examples:\n"
    "  rotavue unregister --user\n"
    "  rotavue unregister        (as root or administrator: for all users)\n\n"
    "What names the module file to a host that asks for the class stays in the registry;\n"
    "the command says where.\n";

constexpr const wchar_t* UserWord = L"user";

/// The registering entry points of a module.
class Registrar {
public:
    explicit Registrar(const std::filesystem::path& module)
        : library_(HostKit::SharedLibrary::load(module)) {}

    void install(Scope scope) const {
        const auto install = entry<EntryPoint::InstallFunction>(EntryPoint::Install);
        check(install(true, scope == Scope::User ? UserWord : nullptr));
    }

    /// A module removes what its last registration in this process wrote, and without one what is
    /// there for all users. So the user's half is registered once more to be removed.
    void remove(Scope scope) const {
        if (scope == Scope::User) install(scope);
        check(entry<EntryPoint::UnregisterServerFunction>(EntryPoint::UnregisterServer)());
    }

private:
    template <class Function>
    Function* entry(const char* name) const {
        void* const address = library_->find(name);
        if (address == nullptr) {
            throw HostKit::LoadError(std::string("the module exports no ") + name);
        }
        return reinterpret_cast<Function*>(address);
    }

    static void check(std::int32_t status) {
        if (status >= 0) return;
        throw std::runtime_error("the module failed with status " +
                                 HostKit::statusText(static_cast<std::uint32_t>(status)));
    }

    std::unique_ptr<HostKit::SharedLibrary> library_;
};

bool isSameFile(const std::filesystem::path& a, const std::filesystem::path& b) {
    std::error_code ignored;
    return std::filesystem::equivalent(a, b, ignored);
}

}  // namespace

CLI::App* RegistryCommand::declare(CLI::App& program) {
    CLI::App* command = program.add_subcommand(name_, help_);
    command->add_flag("--user", user_, "for this user alone, instead of for all users");
    command
        ->add_option("--module", module_, "the module file, if not Rotavue64.vc beside the program")
        ->type_name("FILE");
    return command;
}

const char* RegistryCommand::forWhom() const {
    return user_ ? "for this user" : "for all users";
}

std::filesystem::path RegistryCommand::module(const std::filesystem::path& usual) const {
    if (module_) return *module_;
    std::error_code ignored;
    if (std::filesystem::is_regular_file(usual, ignored)) return usual;
    return HostKit::programFolder() / "Rotavue64.vc";
}

RegisterCommand::RegisterCommand() : RegistryCommand("register", RegisterHelp) {}

int RegisterCommand::run() {
    registeredIn(scope());  // a damaged registry is told before the module passes it over
    Registrar(module()).install(scope());
    const auto registered = registeredIn(scope());
    if (!registered || !isSameFile(*registered, module())) {
        throw std::runtime_error(notWritten(scope()));
    }
    std::cerr << "registered " << forWhom() << ": " << registered->string() << '\n';
    return 0;
}

UnregisterCommand::UnregisterCommand() : RegistryCommand("unregister", UnregisterHelp) {}

int UnregisterCommand::run() {
    const auto registered = registeredIn(scope());
    if (!registered) {
        std::cerr << "not registered " << forWhom() << ": nothing to remove\n";
        return 0;
    }
    Registrar(module(*registered)).remove(scope());
    if (registeredIn(scope())) throw std::runtime_error(notWritten(scope()));
    std::cerr << "unregistered " << forWhom() << '\n';
    if (const auto how = removalByHand(scope())) {
        std::cerr << "the class key stays, as the module leaves it; to remove it by hand, " << *how
                  << '\n';
    }
    return 0;
}

}  // namespace Rotavue::Cli
