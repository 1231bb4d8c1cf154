#include "cli/picture_name.h"

#include "cli/usage_error.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <filesystem>
#include <string_view>

namespace Rotavue::Cli {

namespace {

struct FormatName {
    std::string_view name;
    Workbench::PictureFormat format;
};

constexpr std::array Formats{
    FormatName{"png", Workbench::PictureFormat::Png},
    FormatName{"svg", Workbench::PictureFormat::Svg},
    FormatName{"pdf", Workbench::PictureFormat::Pdf},
};

std::optional<Workbench::PictureFormat> formatNamed(std::string name) {
    std::transform(name.begin(), name.end(), name.begin(), [](char letter) {
        return static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
    });
    for (const FormatName& format : Formats)
        if (format.name == name) return format.format;
    return std::nullopt;
}

}  // namespace

Workbench::PictureFormat pictureFormatOf(const std::string& file,
                                         const std::optional<std::string>& named) {
    if (named) {
        if (const auto format = formatNamed(*named)) return *format;
        throw UsageError("--format", *named, "png, svg or pdf");
    }
    const std::string ending = std::filesystem::path(file).extension().string();
    if (!ending.empty()) {
        if (const auto format = formatNamed(ending.substr(1))) return *format;
    }
    throw UsageError(
        "a picture's name ends with .png, .svg or .pdf, or --format names the format: " +
        (file.empty() ? std::string("it is empty") : file));
}

}  // namespace Rotavue::Cli
