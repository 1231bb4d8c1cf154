#include "workbench/analysis/replace_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <random>
#include <string>

namespace Rotavue::Workbench {
namespace {

/// A file that is open for as long as this lives.
class Descriptor {
public:
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor() {
        if (number_ >= 0) ::close(number_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int number() const { return number_; }
    bool isOpen() const { return number_ >= 0; }

private:
    int number_;
};

std::error_code lastError() {
    return {errno != 0 ? errno : EIO, std::generic_category()};
}

// A name that no other writer of the same file uses.
std::filesystem::path besideName(const std::filesystem::path& file) {
    std::filesystem::path beside = file;
    return beside += ".part" + std::to_string(std::random_device{}());
}

bool writeAll(const Descriptor& file, std::string_view content) {
    while (!content.empty()) {
        const ::ssize_t count = ::write(file.number(), content.data(), content.size());
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) return false;
        content.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

// On the disk before its name is: else a power cut leaves an empty file under it.
std::error_code write(const std::filesystem::path& path, std::string_view content) {
    errno = 0;
    const Descriptor file(::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
    if (file.isOpen() && writeAll(file, content) && ::fsync(file.number()) == 0) return {};
    return lastError();
}

// A rename is on the disk when its folder is. Folders of some file systems cannot be asked for it.
void syncFolder(const std::filesystem::path& folder) {
    const Descriptor file(
        ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (file.isOpen()) ::fsync(file.number());
}

}  // namespace

std::error_code replaceFile(const std::filesystem::path& file, std::string_view content) {
    const std::filesystem::path beside = besideName(file);
    std::error_code fault = write(beside, content);
    if (!fault) std::filesystem::rename(beside, file, fault);
    std::error_code ignored;
    if (fault) {
        std::filesystem::remove(beside, ignored);
    } else {
        syncFolder(file.parent_path());
    }
    return fault;
}

}  // namespace Rotavue::Workbench
