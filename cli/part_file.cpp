#include "cli/part_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdio>
#include <cstring>

namespace Rotavue::Cli {

namespace {

constexpr std::array Interrupts{SIGINT, SIGTERM, SIGHUP};

/// What a handler takes away: a name that it can read at any moment.
std::array<char, PATH_MAX> partName;
volatile std::sig_atomic_t hasPart = 0;

extern "C" void takePartAway(int signal) {
    if (hasPart != 0) ::unlink(partName.data());
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

void watch(const std::string& part) {
    if (part.size() >= partName.size()) return;
    std::strcpy(partName.data(), part.c_str());
    hasPart = 1;
    for (const int signal : Interrupts) {
        // A program that was started to outlive its terminal goes on.
        if (std::signal(signal, takePartAway) == SIG_IGN) std::signal(signal, SIG_IGN);
    }
}

void stopWatching() {
    hasPart = 0;
}

int resultOf(int status) {
    return status == 0 ? 0 : errno;
}

}  // namespace

int writeAndClose(int descriptor, std::string_view bytes) {
    int error = 0;
    while (!bytes.empty() && error == 0) {
        const ::ssize_t count = ::write(descriptor, bytes.data(), bytes.size());
        if (count >= 0) bytes.remove_prefix(static_cast<std::size_t>(count));
        if (count < 0 && errno != EINTR) error = errno;
    }
    const int closed = resultOf(::close(descriptor));
    return error != 0 ? error : closed;
}

PartFile::PartFile(const std::filesystem::path& place)
    : place_(place.string()), part_(place_ + ".part" + std::to_string(::getpid())) {
    watch(part_);
}

PartFile::~PartFile() {
    ::unlink(part_.c_str());
    stopWatching();
}

int PartFile::write(std::string_view bytes) {
    ::unlink(part_.c_str());
    const int file = ::open(part_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    return file < 0 ? errno : writeAndClose(file, bytes);
}

int PartFile::replace() {
    return resultOf(std::rename(part_.c_str(), place_.c_str()));
}

int PartFile::appear() {
    const int error = resultOf(::link(part_.c_str(), place_.c_str()));
    // Where a file system has no second names, the place was empty when it was looked at.
    return error == EPERM || error == EOPNOTSUPP || error == ENOSYS ? replace() : error;
}

}  // namespace Rotavue::Cli
