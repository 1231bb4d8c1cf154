#pragma once

#include "tests/cli/process.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace Rotavue::Cli {

/// A line of standard error as the tests name it: `rotavue render: ` and the like is part of it.
inline std::string moreHelp(const std::string& command) {
    return " (" + command + " --help tells more)\n";
}

/// Runs the built program in a folder of the test's own, with both registries and the user's
/// configuration inside it. File names in arguments are relative to that folder.
class CommandTest : public testing::Test {
protected:
    CommandTest();
    ~CommandTest() override;

    /// `rotavue` with these arguments.
    ProcessEnd rotavue(const std::vector<std::string>& arguments) const;

    /// What `rotavue` would be started as, for a test that changes the conditions.
    ProcessOrder order(const std::vector<std::string>& arguments) const;

    std::filesystem::path at(std::string_view name) const { return folder_ / name; }
    void write(std::string_view name, std::string_view text) const;
    std::string read(std::string_view name) const;

    /// A recording of 20 turns a second with 1,000 samples a second, 2 s long: x is 30 cos, y 20
    /// sin of the shaft's angle, a pulse of 5 V at each turn's begin.
    void writeRotor(std::string_view name) const;

    /// The names in the folder, below which registries and configuration do not lie.
    std::vector<std::string> names() const;

    /// Sets a variable of the environment for every command of this test.
    void setVariable(const std::string& name, const std::string& value);

    const std::filesystem::path& folder() const { return folder_; }

private:
    std::filesystem::path base_;
    std::filesystem::path folder_;
    std::map<std::string, std::string> environment_;
};

/// The file of the program, of the module beside it, and of the sessions.
std::string programFile();
std::string moduleFile();
std::filesystem::path sessionFolder();

}  // namespace Rotavue::Cli
