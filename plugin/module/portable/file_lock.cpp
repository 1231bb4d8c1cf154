#include "plugin/module/portable/file_lock.h"

#include <fcntl.h>
#include <sys/file.h>

#include <thread>

namespace Meridax::VisualControls::Rotavue {

std::optional<FileLock> FileLock::acquire(const std::filesystem::path& path,
                                          std::chrono::milliseconds wait) {
    constexpr std::chrono::milliseconds Pause{10};
    std::filesystem::path beside = path;
    beside += ".lock";
    FileDescriptor file(
        ::open(beside.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0666));
    if (!file) return std::nullopt;
    const auto end = std::chrono::steady_clock::now() + wait;
    while (::flock(file.get(), LOCK_EX | LOCK_NB) != 0) {
        if (std::chrono::steady_clock::now() >= end) return std::nullopt;
        std::this_thread::sleep_for(Pause);
    }
    return FileLock(std::move(file));
}

}  // namespace Meridax::VisualControls::Rotavue
