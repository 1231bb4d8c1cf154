#include "tests/plugin/source_tree.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <regex>
#include <set>

namespace Rotavue::SourceTest {

namespace {

using Edges = std::map<std::string, std::vector<std::string>>;

SourceFile readSource(const std::filesystem::path& path, const std::filesystem::path& root) {
    SourceFile file{path.lexically_relative(root).generic_string(), {}};
    std::ifstream stream(path);
    for (std::string line; std::getline(stream, line);)
        file.lines.push_back(line);
    return file;
}

/// Follows the edges from one file; `road` is how it was reached.
std::string cycleFrom(const std::string& file, const Edges& edges, std::vector<std::string>& road,
                      std::set<std::string>& done) {
    const auto seen = std::find(road.begin(), road.end(), file);
    if (seen != road.end()) {
        std::string cycle;
        for (auto step = seen; step != road.end(); ++step)
            cycle += *step + " -> ";
        return cycle + file;
    }
    if (!edges.contains(file) || !done.insert(file).second) return "";
    road.push_back(file);
    for (const std::string& next : edges.at(file)) {
        std::string cycle = cycleFrom(next, edges, road, done);
        if (!cycle.empty()) return cycle;
    }
    road.pop_back();
    return "";
}

}  // namespace

std::vector<Include> SourceFile::includes() const {
    static const std::regex Pattern(R"(^\s*#\s*include\s*([<"])([^>"]+)[>"].*)");
    std::vector<Include> found;
    std::smatch match;
    for (const std::string& line : lines)
        if (std::regex_match(line, match, Pattern)) found.push_back({match[2], match[1] == "<"});
    return found;
}

std::vector<SourceFile> sourcesBelow(const std::string& folder) {
    const std::filesystem::path root = std::filesystem::path(ROTAVUE_SOURCE_DIR) / folder;
    std::vector<SourceFile> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
        const auto extension = entry.path().extension();
        if (extension == ".h" || extension == ".cpp")
            files.push_back(readSource(entry.path(), root));
    }
    std::sort(files.begin(), files.end(),
              [](const SourceFile& a, const SourceFile& b) { return a.path < b.path; });
    return files;
}

std::string cycleIn(const Edges& edges) {
    std::set<std::string> done;
    for (const auto& [file, next] : edges) {
        std::vector<std::string> road;
        std::string cycle = cycleFrom(file, edges, road, done);
        if (!cycle.empty()) return cycle;
    }
    return "";
}

}  // namespace Rotavue::SourceTest
