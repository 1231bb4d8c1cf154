#include "tests/cli/command_test.h"

#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <numbers>
#include <sstream>

namespace Rotavue::Cli {

namespace fs = std::filesystem;

namespace {

fs::path freshFolder() {
    std::string pattern = (fs::temp_directory_path() / "rotavue-cli-XXXXXX").string();
    if (::mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no temporary folder");
    return pattern;
}

}  // namespace

CommandTest::CommandTest() : base_(freshFolder()), folder_(base_ / "work") {
    fs::create_directory(folder_);
    fs::create_directory(base_ / "config");
    environment_ = {
        {"HOME", base_.string()},
        {"XDG_CONFIG_HOME", (base_ / "config").string()},
        {"MERIDAX_REGISTRY_USER", ""},
        {"MERIDAX_REGISTRY_MACHINE", (base_ / "machine.registry").string()},
        {"LC_ALL", "C"},
        {"QT_QPA_PLATFORM", "offscreen"},
    };
}

CommandTest::~CommandTest() {
    std::error_code ignored;
    fs::remove_all(base_, ignored);
}

ProcessOrder CommandTest::order(const std::vector<std::string>& arguments) const {
    ProcessOrder order;
    order.arguments = {programFile()};
    order.folder = folder_;
    order.environment = environment_;
    order.arguments.insert(order.arguments.end(), arguments.begin(), arguments.end());
    return order;
}

ProcessEnd CommandTest::rotavue(const std::vector<std::string>& arguments) const {
    return runProcess(order(arguments));
}

void CommandTest::write(std::string_view name, std::string_view text) const {
    std::ofstream(at(name), std::ios::binary) << text;
}

std::string CommandTest::read(std::string_view name) const {
    std::ostringstream text;
    text << std::ifstream(at(name), std::ios::binary).rdbuf();
    return text.str();
}

void CommandTest::writeRotor(std::string_view name) const {
    constexpr int Samples = 2000;
    constexpr int SamplesPerTurn = 50;
    std::string text = "t [s],x [um],y [um],kp [V]\n";
    for (int i = 0; i < Samples; ++i) {
        const double angle = 2.0 * std::numbers::pi * i / SamplesPerTurn;
        char line[100];
        std::snprintf(line, sizeof line, "%.3f,%.6f,%.6f,%d\n", i / 1000.0, 30.0 * std::cos(angle),
                      20.0 * std::sin(angle), i % SamplesPerTurn < 5 ? 5 : 0);
        text += line;
    }
    write(name, text);
}

std::vector<std::string> CommandTest::names() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder_))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

void CommandTest::setVariable(const std::string& name, const std::string& value) {
    environment_[name] = value;
}

std::string programFile() {
    return ROTAVUE_PROGRAM_FILE;
}

std::string moduleFile() {
    return ROTAVUE_MODULE_FILE;
}

fs::path sessionFolder() {
    return ROTAVUE_SESSIONS_FOLDER;
}

}  // namespace Rotavue::Cli
