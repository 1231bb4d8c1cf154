#include "workbench/recording/nearest_name.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <numeric>
#include <vector>

namespace Rotavue::Workbench {
namespace {

// Beyond this a name is a hostile one; the search costs the product of two lengths.
constexpr std::size_t LongestCompared = 200;
constexpr std::size_t LongestList = 10;

char folded(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

// Levenshtein's distance, one row of the table at a time.
std::size_t editDistance(std::string_view from, std::string_view to) {
    std::vector<std::size_t> row(to.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < from.size(); ++i) {
        std::size_t diagonal = row[0]++;
        for (std::size_t j = 0; j < to.size(); ++j) {
            const std::size_t replaced = diagonal + (folded(from[i]) == folded(to[j]) ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({replaced, row[j] + 1, diagonal + 1});
        }
    }
    return row.back();
}

}  // namespace

std::string nearestName(std::string_view wanted, std::span<const std::string> names) {
    std::string nearest;
    std::size_t least = std::numeric_limits<std::size_t>::max();
    for (const std::string& name : names) {
        const std::size_t distance = editDistance(
            wanted.substr(0, LongestCompared), std::string_view(name).substr(0, LongestCompared));
        if (distance < least) nearest = name;
        least = std::min(least, distance);
    }
    return nearest;
}

std::string listText(std::span<const std::string> names) {
    std::string text;
    for (std::size_t i = 0; i < std::min(names.size(), LongestList); ++i) {
        if (i > 0) text += i + 1 < names.size() ? ", " : " and ";
        text += names[i];
    }
    return names.size() > LongestList ? text + " and others" : text;
}

}  // namespace Rotavue::Workbench
