#include "cli/text_table.h"

#include <algorithm>

namespace Rotavue::Cli {

namespace {

/// The characters of a UTF-8 text: bytes that begin one.
std::size_t widthOf(const std::string& text) {
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char byte) { return (byte & 0xC0) != 0x80; }));
}

}  // namespace

std::vector<std::size_t> TextTable::widths() const {
    std::vector<std::size_t> widths;
    for (const Line& line : lines_) {
        widths.resize(std::max(widths.size(), line.size()));
        for (std::size_t i = 0; i < line.size(); ++i)
            widths[i] = std::max(widths[i], widthOf(line[i]));
    }
    return widths;
}

std::string TextTable::text() const {
    const std::vector<std::size_t> width = widths();
    std::string text;
    for (const Line& line : lines_) {
        for (std::size_t i = 0; i < line.size(); ++i) {
            const std::string blanks(width[i] - widthOf(line[i]), ' ');
            const bool last = i + 1 == line.size();
            text += i == 0 ? line[i] + (last ? "" : blanks) : "  " + blanks + line[i];
        }
        text += '\n';
    }
    return text;
}

}  // namespace Rotavue::Cli
