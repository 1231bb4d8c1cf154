#include "tests/sessions/log_difference.h"

#include <algorithm>
#include <sstream>
#include <vector>

namespace Rotavue::HostKit {

namespace {

using Lines = std::vector<std::string>;

constexpr std::size_t LinesAround = 3;
constexpr std::size_t LongestRun = 40;

Lines linesOf(const std::string& text) {
    Lines lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

/// Where two logs part, and where they come together again.
struct Run {
    std::size_t expectedFrom, gotFrom;
    std::size_t expectedTo, gotTo;
};

/// The nearest place behind which three lines are the same again.
bool meets(const Lines& expected, std::size_t i, const Lines& got, std::size_t j) {
    const std::size_t left = std::min({std::size_t{3}, expected.size() - i, got.size() - j});
    if (left == 0) return i == expected.size() && j == got.size();
    return std::equal(expected.begin() + static_cast<std::ptrdiff_t>(i),
                      expected.begin() + static_cast<std::ptrdiff_t>(i + left),
                      got.begin() + static_cast<std::ptrdiff_t>(j));
}

Run runFrom(const Lines& expected, const Lines& got, std::size_t i, std::size_t j) {
    const std::size_t most = expected.size() - i + got.size() - j;
    for (std::size_t distance = 1; distance < most; ++distance) {
        for (std::size_t skip = 0; skip <= distance; ++skip) {
            const std::size_t x = i + distance - skip;
            const std::size_t y = j + skip;
            if (x <= expected.size() && y <= got.size() && meets(expected, x, got, y)) {
                return {i, j, x, y};
            }
        }
    }
    return {i, j, expected.size(), got.size()};
}

void append(std::string& out, char mark, const Lines& lines, std::size_t from, std::size_t to) {
    for (std::size_t i = from; i < std::min(to, from + LongestRun); ++i)
        out.append(1, mark).append(" ").append(lines[i]).append("\n");
    if (to > from + LongestRun) {
        out.append(1, mark).append(" ... ").append(std::to_string(to - from - LongestRun));
        out.append(" more lines\n");
    }
}

void append(std::string& out, const Lines& expected, const Lines& got, const Run& run) {
    const std::size_t first = run.expectedFrom - std::min(run.expectedFrom, LinesAround);
    out.append("line ").append(std::to_string(run.expectedFrom + 1)).append(":\n");
    append(out, ' ', expected, first, run.expectedFrom);
    append(out, '-', expected, run.expectedFrom, run.expectedTo);
    append(out, '+', got, run.gotFrom, run.gotTo);
    append(out, ' ', expected, run.expectedTo,
           std::min(run.expectedTo + LinesAround, expected.size()));
}

}  // namespace

std::string logDifference(const std::string& expected, const std::string& got) {
    const Lines left = linesOf(expected);
    const Lines right = linesOf(got);
    std::string difference;
    std::size_t i = 0;
    std::size_t j = 0;
    while (i < left.size() || j < right.size()) {
        if (i < left.size() && j < right.size() && left[i] == right[j]) {
            ++i;
            ++j;
            continue;
        }
        const Run run = runFrom(left, right, i, j);
        append(difference, left, right, run);
        i = run.expectedTo;
        j = run.gotTo;
    }
    return difference;
}

}  // namespace Rotavue::HostKit
