#include "workbench/analysis/replace_file.h"

#include <cerrno>
#include <fstream>
#include <random>

namespace Rotavue::Workbench {
namespace {

// A name that no other writer of the same file uses.
std::filesystem::path besideName(const std::filesystem::path& file) {
    std::filesystem::path beside = file;
    return beside += ".part" + std::to_string(std::random_device{}());
}

std::error_code write(const std::filesystem::path& file, std::string_view content) {
    errno = 0;
    std::ofstream stream(file, std::ios::binary);
    stream.write(content.data(), static_cast<std::streamsize>(content.size()));
    stream.close();
    if (stream) return {};
    return {errno != 0 ? errno : EIO, std::generic_category()};
}

}  // namespace

std::error_code replaceFile(const std::filesystem::path& file, std::string_view content) {
    const std::filesystem::path beside = besideName(file);
    std::error_code fault = write(beside, content);
    if (!fault) std::filesystem::rename(beside, file, fault);
    std::error_code ignored;
    if (fault) std::filesystem::remove(beside, ignored);
    return fault;
}

}  // namespace Rotavue::Workbench
