#include "tests/cli/process.h"

#include <fcntl.h>
#include <grp.h>
#include <poll.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdlib>
#include <stdexcept>

namespace Rotavue::Cli {

namespace {

/// Far more than any command needs, even under sanitizers on a busy machine.
constexpr std::chrono::seconds MostTime{120};

/// What a child exits with that could not become the program.
constexpr int NotStarted = 127;

struct Pipe {
    int read = -1;
    int write = -1;

    Pipe() {
        std::array<int, 2> ends{};
        if (::pipe2(ends.data(), O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
        read = ends[0];
        write = ends[1];
    }
};

/// Ignored, the signal leaves it to the write to fail, as one on a full disk does.
void limitFiles(std::size_t bytes, bool endThere) {
    const ::rlimit limit{bytes, bytes};
    ::setrlimit(RLIMIT_FSIZE, &limit);
    std::signal(SIGXFSZ, endThere ? SIG_DFL : SIG_IGN);
}

bool becomeUser(unsigned user) {
    return ::setgroups(0, nullptr) == 0 && ::setgid(user) == 0 && ::setuid(user) == 0;
}

void takeConditions(const ProcessOrder& order) {
    if (::chdir(order.folder.c_str()) != 0) ::_exit(NotStarted);
    for (const auto& [name, value] : order.environment)
        value.empty() ? ::unsetenv(name.c_str()) : ::setenv(name.c_str(), value.c_str(), 1);
    if (order.largestFile) limitFiles(*order.largestFile, order.endAtLargest);
    if (order.user && !becomeUser(*order.user)) ::_exit(NotStarted);
}

[[noreturn]] void become(const ProcessOrder& order, const Pipe& out, const Pipe& error) {
    takeConditions(order);
    std::vector<char*> arguments;
    for (const std::string& argument : order.arguments)
        arguments.push_back(const_cast<char*>(argument.c_str()));
    arguments.push_back(nullptr);
    ::dup2(::open("/dev/null", O_RDONLY), STDIN_FILENO);
    ::dup2(out.write, STDOUT_FILENO);
    ::dup2(error.write, STDERR_FILENO);
    ::execv(arguments.front(), arguments.data());
    ::_exit(NotStarted);
}

/// Takes what is there; false at the end of what will ever be there.
bool takeFrom(int file, std::string& text) {
    std::array<char, 65536> part;
    const ::ssize_t count = ::read(file, part.data(), part.size());
    if (count > 0) text.append(part.data(), static_cast<std::size_t>(count));
    return count > 0;
}

}  // namespace

RunningProcess::RunningProcess(const ProcessOrder& order) {
    const Pipe out;
    const Pipe error;
    process_ = ::fork();
    if (process_ < 0) throw std::runtime_error("no process");
    if (process_ == 0) become(order, out, error);
    ::close(out.write);
    ::close(error.write);
    out_ = out.read;
    error_ = error.read;
}

RunningProcess::~RunningProcess() {
    ::close(out_);
    ::close(error_);
    if (process_ < 0) return;
    send(SIGKILL);
    ::waitpid(process_, nullptr, 0);
}

void RunningProcess::send(int signal) const {
    ::kill(process_, signal);
}

void RunningProcess::readOutputs(ProcessEnd& end,
                                 std::chrono::steady_clock::time_point deadline) const {
    std::array<::pollfd, 2> files{::pollfd{out_, POLLIN, 0}, ::pollfd{error_, POLLIN, 0}};
    const std::array<std::string*, 2> texts{&end.out, &end.error};
    while (files[0].fd >= 0 || files[1].fd >= 0) {
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
            deadline - std::chrono::steady_clock::now());
        if (left.count() <= 0 || ::poll(files.data(), files.size(), int(left.count())) == 0) {
            return send(SIGKILL);
        }
        for (std::size_t i = 0; i < files.size(); ++i)
            if (files[i].revents != 0 && !takeFrom(files[i].fd, *texts[i])) files[i].fd = -1;
    }
}

ProcessEnd RunningProcess::end() {
    ProcessEnd end;
    readOutputs(end, std::chrono::steady_clock::now() + MostTime);
    int status = 0;
    ::waitpid(process_, &status, 0);
    process_ = -1;
    if (WIFEXITED(status)) end.status = WEXITSTATUS(status);
    if (WIFSIGNALED(status)) end.signal = WTERMSIG(status);
    return end;
}

ProcessEnd runProcess(const ProcessOrder& order) {
    return RunningProcess(order).end();
}

}  // namespace Rotavue::Cli
