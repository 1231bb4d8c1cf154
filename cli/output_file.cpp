#include "cli/output_file.h"

#include "cli/part_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <system_error>

namespace Rotavue::Cli {

namespace {

constexpr const char* IsThere = "the file is there; --force replaces it";

std::string reason(int error) {
    return std::generic_category().message(error);
}

std::filesystem::path folderOf(const std::filesystem::path& file) {
    return file.has_parent_path() ? file.parent_path() : std::filesystem::path(".");
}

}  // namespace

OutputError::OutputError(const std::filesystem::path& file, std::string_view why)
    : std::runtime_error(file.string() + ": " + std::string(why)) {}

OutputFile::OutputFile(std::filesystem::path file, bool replace)
    : file_(std::move(file)), replace_(replace) {
    if (isStandardOutput()) return;
    std::error_code fault;
    if (std::filesystem::is_symlink(file_, fault)) file_ = std::filesystem::canonical(file_, fault);
    const auto status = std::filesystem::status(file_, fault);
    if (std::filesystem::is_directory(status)) throw OutputError(file_, "is a folder");
    special_ = std::filesystem::exists(status) && !std::filesystem::is_regular_file(status);
    if (special_) return;
    if (std::filesystem::exists(status) && !replace_) throw OutputError(file_, IsThere);
    if (!std::filesystem::is_directory(folderOf(file_), fault)) {
        throw OutputError(file_, "the folder is not there");
    }
}

void OutputFile::write(std::string_view bytes) const {
    if (isStandardOutput() || special_) {
        const int file =
            isStandardOutput() ? ::dup(STDOUT_FILENO) : ::open(file_.c_str(), O_WRONLY | O_CLOEXEC);
        if (const int error = file < 0 ? errno : writeAndClose(file, bytes)) {
            throw OutputError(isStandardOutput() ? "standard output" : file_, reason(error));
        }
        return;
    }
    PartFile part(file_);
    if (const int error = part.write(bytes)) throw OutputError(file_, reason(error));
    const int error = replace_ ? part.replace() : part.appear();
    if (error == EEXIST) throw OutputError(file_, IsThere);
    if (error != 0) throw OutputError(file_, reason(error));
}

}  // namespace Rotavue::Cli
