#pragma once

#include <map>
#include <string>
#include <vector>

/// The sources of this tree as text, for tests of their form.
namespace Rotavue::SourceTest {

struct Include {
    std::string name;
    bool isAngled = false;
};

struct SourceFile {
    std::string path;  ///< below the folder that was asked for
    std::vector<std::string> lines;

    std::vector<Include> includes() const;
};

/// All headers and sources below a folder of the tree, sorted by path.
std::vector<SourceFile> sourcesBelow(const std::string& folder);

/// The first cycle among the edges, as "a -> b -> a"; empty where there is none.
std::string cycleIn(const std::map<std::string, std::vector<std::string>>& edges);

}  // namespace Rotavue::SourceTest
