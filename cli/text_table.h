#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace Rotavue::Cli {

/// Lines of cells for a person: each column as wide as its widest cell, two blanks between columns,
/// all but the first column set to the right.
class TextTable {
public:
    using Line = std::vector<std::string>;

    void add(Line line) { lines_.push_back(std::move(line)); }

    std::string text() const;

private:
    std::vector<std::size_t> widths() const;

    std::vector<Line> lines_;
};

}  // namespace Rotavue::Cli
