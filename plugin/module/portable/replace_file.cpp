#include "plugin/module/portable/replace_file.h"

#include "plugin/module/portable/file_descriptor.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstdio>

namespace Meridax::VisualControls::Rotavue {

namespace {

bool writeAll(const FileDescriptor& file, std::string_view content) {
    while (!content.empty()) {
        const ::ssize_t count = ::write(file.get(), content.data(), content.size());
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) return false;
        content.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

bool keepPermissions(const std::filesystem::path& of, const FileDescriptor& file) {
    struct stat about {};
    if (::stat(of.c_str(), &about) != 0) return true;
    return ::fchmod(file.get(), about.st_mode & 07777U) == 0;
}

bool writeBeside(const std::filesystem::path& beside, const std::filesystem::path& path,
                 std::string_view content) {
    const FileDescriptor file(
        ::open(beside.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, 0666));
    return file && keepPermissions(path, file) && writeAll(file, content) &&
           ::fsync(file.get()) == 0;
}

/// A rename is on the disk when its folder is.
void syncFolder(const std::filesystem::path& folder) {
    const FileDescriptor file(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (file) ::fsync(file.get());
}

}  // namespace

bool replaceFile(const std::filesystem::path& path, std::string_view content) {
    std::filesystem::path beside = path;
    beside += ".new";
    ::unlink(beside.c_str());  // What a writer left that did not come to its end.
    if (!writeBeside(beside, path, content) || std::rename(beside.c_str(), path.c_str()) != 0) {
        ::unlink(beside.c_str());
        return false;
    }
    syncFolder(path.parent_path());
    return true;
}

}  // namespace Meridax::VisualControls::Rotavue
