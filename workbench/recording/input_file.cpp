#include "workbench/recording/input_file.h"

#include <cerrno>
#include <system_error>

#include "workbench/recording/recording_error.h"

namespace Rotavue::Workbench {
namespace {

constexpr std::string_view Allowed = "a file that can be read";

std::string whatItIs(std::filesystem::file_type type) {
    switch (type) {
        case std::filesystem::file_type::not_found:
            return "no such file";
        case std::filesystem::file_type::directory:
            return "a directory";
        default:
            return "a device or pipe";
    }
}

}  // namespace

std::ifstream openInput(const std::filesystem::path& file) {
    std::error_code fault;
    const auto status = std::filesystem::status(file, fault);
    if (fault && status.type() != std::filesystem::file_type::not_found) {
        throw RecordingError({file}, inQuotes(fault.message()), Allowed);
    }
    if (!std::filesystem::is_regular_file(status)) {
        throw RecordingError({file}, whatItIs(status.type()), Allowed);
    }
    errno = 0;
    std::ifstream stream(file, std::ios::binary);
    if (!stream) {
        const std::error_code reason(errno, std::generic_category());
        throw RecordingError({file}, inQuotes(reason.message()), Allowed);
    }
    return stream;
}

std::string readSmallFile(const std::filesystem::path& file, std::size_t most) {
    std::ifstream stream = openInput(file);
    std::string text(most + 1, '\0');
    stream.read(text.data(), static_cast<std::streamsize>(text.size()));
    text.resize(static_cast<std::size_t>(stream.gcount()));
    if (text.size() > most) {
        throw RecordingError({file}, "more than " + std::to_string(most) + " bytes",
                             "at most " + std::to_string(most) + " bytes");
    }
    return text;
}

}  // namespace Rotavue::Workbench
