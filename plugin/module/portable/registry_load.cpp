#include "plugin/module/portable/file_descriptor.h"
#include "plugin/module/portable/registry_file.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <system_error>

/// Where registry files are, and reading one from there.
namespace Meridax::VisualControls::Rotavue {

namespace {

constexpr const char* RegistryName = "meridax/registry.txt";

std::string messageOf(const std::string& file, std::size_t line, const std::string& fault) {
    std::string message = file;
    if (line > 0) message.append(":").append(std::to_string(line));
    return message.append(": ").append(fault);
}

bool isRegularFile(const FileDescriptor& file) {
    struct stat about {};
    return ::fstat(file.get(), &about) == 0 && S_ISREG(about.st_mode);
}

/// All bytes of a file, but at most one more than a registry may have.
std::string readBytes(const FileDescriptor& file, const std::string& name) {
    std::string bytes;
    std::array<char, 65536> piece;
    while (bytes.size() <= RegistryFile::MaxBytes) {
        const ::ssize_t count = ::read(file.get(), piece.data(), piece.size());
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) throw RegistryFileError(name, 0, std::generic_category().message(errno));
        if (count == 0) break;
        bytes.append(piece.data(), static_cast<std::size_t>(count));
    }
    return bytes;
}

std::filesystem::path pathFrom(const char* variable) {
    const char* const value = std::getenv(variable);
    return value == nullptr ? std::filesystem::path{} : std::filesystem::path{value};
}

std::filesystem::path userConfiguration() {
    std::filesystem::path configuration = pathFrom("XDG_CONFIG_HOME");
    if (configuration.is_absolute()) return configuration;
    std::filesystem::path home = pathFrom("HOME");
    return home.empty() ? home : home / ".config";
}

}  // namespace

RegistryFileError::RegistryFileError(const std::string& file, std::size_t faultyLine,
                                     const std::string& fault)
    : std::runtime_error(messageOf(file, faultyLine, fault)), line(faultyLine) {}

RegistryFile RegistryFile::load(const std::filesystem::path& path) {
    // Not to wait for a writer where the path leads to a pipe.
    const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    const int failure = file ? 0 : errno;
    if (failure == ENOENT) return {};
    if (failure != 0)
        throw RegistryFileError(path.string(), 0, std::generic_category().message(failure));
    if (!isRegularFile(file)) throw RegistryFileError(path.string(), 0, "not a regular file");
    return parse(readBytes(file, path.string()), path.string());
}

std::filesystem::path registryFilePath(Api::RegistryScope scope) {
    const bool isUser = scope == Api::RegistryScope::User;
    std::filesystem::path moved =
        pathFrom(isUser ? "MERIDAX_REGISTRY_USER" : "MERIDAX_REGISTRY_MACHINE");
    if (!moved.empty()) return moved;
    const std::filesystem::path folder = isUser ? userConfiguration() : "/etc";
    return folder.empty() ? folder : folder / RegistryName;
}

}  // namespace Meridax::VisualControls::Rotavue
