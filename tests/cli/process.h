#pragma once

#include <chrono>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace Rotavue::Cli {

/// A program to start, and the conditions that it is started under.
struct ProcessOrder {
    std::vector<std::string> arguments;              ///< the first is the program's file
    std::filesystem::path folder;                    ///< the working folder
    std::map<std::string, std::string> environment;  ///< beside what is inherited; "" takes it away
    std::optional<unsigned> user;                    ///< an id to run as; root alone may ask
    std::optional<std::size_t> largestFile;  ///< bytes; what goes beyond fails as on a full disk
    bool endAtLargest = false;               ///< it ends the program at that byte instead
};

/// How a program ended and what it said.
struct ProcessEnd {
    int status = -1;  ///< what it exited with; -1 where a signal ended it
    int signal = 0;   ///< that signal; SIGKILL after the time that a program is given here
    std::string out;
    std::string error;
};

/// Runs it to its end with nothing on its standard input.
ProcessEnd runProcess(const ProcessOrder& order);

/// A program that is on its way.
class RunningProcess {
public:
    explicit RunningProcess(const ProcessOrder& order);
    ~RunningProcess();
    RunningProcess(const RunningProcess&) = delete;
    RunningProcess& operator=(const RunningProcess&) = delete;

    void send(int signal) const;

    /// Reads all that it says and waits for it.
    ProcessEnd end();

private:
    void readOutputs(ProcessEnd& end, std::chrono::steady_clock::time_point deadline) const;

    int process_ = -1;
    int out_ = -1;
    int error_ = -1;
};

}  // namespace Rotavue::Cli
