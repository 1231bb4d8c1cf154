#include "tests/plugin/source_tree.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

/// Who may include whom inside plugin/: an edge against this order does not pass.
namespace Rotavue::SourceTest {
namespace {

const std::map<std::string, std::set<std::string>> MayInclude{
    {"framework/host", {}},
    {"setup_document", {"framework/host"}},
    {"orbit_graph", {"framework/host"}},
    {"framework", {"framework/host", "setup_document"}},
    {"orbit_control", {"framework", "framework/host", "orbit_graph"}},
    {"settings", {"orbit_control", "orbit_graph", "setup_document", "framework", "framework/host"}},
    {"module", {"framework", "framework/host", "orbit_control"}},
    {"module/windows", {"module", "framework", "framework/host", "setup_document"}},
};

/// The row of the table to which a path below plugin/ belongs; empty for none.
std::string folderOf(const std::string& path) {
    std::string longest;
    for (const auto& [folder, allowed] : MayInclude)
        if (path.starts_with(folder + "/") && folder.size() > longest.size()) longest = folder;
    return longest;
}

/// What is wrong with an include of a file below plugin/; empty where nothing is.
std::string faultOf(const std::string& file, const Include& include) {
    const bool isSystem = include.name.find('.') != std::string::npos;
    const bool isPlatforms =
        file.starts_with("module/portable/") || file.starts_with("module/windows/");
    if (include.isAngled && isSystem && !isPlatforms)
        return "neither ours nor of the standard library";
    if (include.isAngled) return "";
    if (!include.name.starts_with("plugin/")) return "from outside plugin/";
    const std::string from = folderOf(file);
    const std::string to = folderOf(include.name.substr(std::string("plugin/").size()));
    if (from.empty() || to.empty()) return "a folder that is not in the order";
    return from == to || MayInclude.at(from).contains(to) ? "" : "against the order";
}

TEST(IncludeOrder, HoldsInEveryFileOfThePlugin) {
    int count = 0;
    for (const SourceFile& file : sourcesBelow("plugin")) {
        for (const Include& include : file.includes()) {
            ++count;
            EXPECT_EQ(faultOf(file.path, include), "") << file.path << " includes " << include.name;
        }
    }
    EXPECT_GT(count, 100);
}

TEST(IncludeOrder, ConcreteControlIsNamedByOneFileOfTheModule) {
    std::set<std::string> files;
    for (const SourceFile& file : sourcesBelow("plugin/module"))
        for (const Include& include : file.includes())
            if (include.name.starts_with("plugin/orbit_control/")) files.insert(file.path);
    EXPECT_EQ(files, std::set<std::string>{"control_maker.cpp"});
}

TEST(IncludeOrder, HasNoCycleBetweenFiles) {
    std::map<std::string, std::vector<std::string>> edges;
    for (const SourceFile& file : sourcesBelow("plugin"))
        for (const Include& include : file.includes())
            if (!include.isAngled) edges["plugin/" + file.path].push_back(include.name);
    EXPECT_EQ(cycleIn(edges), "");
}

/// What the host side shares with the plug-in: the contract, the text conversions that both need,
/// the node layer's exception, which reaches the host, the registry file, which a host reads, and
/// the binary form of the interfaces.
bool isShared(const std::string& header) {
    static const std::set<std::string> Shared{"plugin/framework/guid_text.h",
                                              "plugin/framework/message_arguments.h",
                                              "plugin/framework/message_codes.h",
                                              "plugin/framework/plugin_interfaces.h",
                                              "plugin/framework/unicode.h",
                                              "plugin/module/portable/registry_file.h",
                                              "plugin/module/windows/platform_headers.h",
                                              "plugin/setup_document/xml_exception.h"};
    return header.starts_with("plugin/framework/host/") ||
           header.starts_with("plugin/module/windows/interfaces/") || Shared.contains(header);
}

TEST(IncludeOrder, HostKitKnowsTheContractAndNoneOfTheLogic) {
    for (const SourceFile& file : sourcesBelow("host_kit")) {
        for (const Include& include : file.includes()) {
            const bool isPlugin = include.name.starts_with("plugin/");
            EXPECT_TRUE(!isPlugin || isShared(include.name))
                << file.path << " includes " << include.name;
            EXPECT_FALSE(include.name.starts_with("workbench/")) << file.path;
            EXPECT_FALSE(include.name.starts_with("Q")) << file.path;
        }
    }
}

struct Edge {
    std::string file;
    std::string line;
    std::string fault;
};

class IncludeEdge : public testing::TestWithParam<Edge> {};

TEST_P(IncludeEdge, IsJudgedByItsFolders) {
    const SourceFile file{GetParam().file, {GetParam().line}};
    ASSERT_EQ(file.includes().size(), 1U);
    EXPECT_EQ(faultOf(file.path, file.includes().front()), GetParam().fault);
}

INSTANTIATE_TEST_SUITE_P(
    Samples, IncludeEdge,
    testing::Values(
        Edge{"framework/bridge.cpp", "#include \"plugin/setup_document/node.h\"", ""},
        Edge{"framework/bridge.h", "#include \"plugin/framework/host/ref.h\"", ""},
        Edge{"framework/bridge.h", "#include \"plugin/orbit_control/x.h\"", "against the order"},
        Edge{"framework/host/ref.h", "#include \"plugin/framework/platform.h\"",
             "against the order"},
        Edge{"orbit_graph/scales.h", "#include \"plugin/framework/draw_context.h\"",
             "against the order"},
        Edge{"orbit_control/x.cpp", "  #  include \"plugin/settings/x.h\"", "against the order"},
        Edge{"module/x.cpp", "#include \"plugin/settings/x.h\"", "against the order"},
        Edge{"module/x.cpp", "#include \"plugin/elsewhere/x.h\"",
             "a folder that is not in the order"},
        Edge{"settings/x.cpp", "#include \"host_kit/memory/memory_host.h\"",
             "from outside plugin/"},
        Edge{"settings/x.cpp", "#include <vector>", ""},
        Edge{"settings/x.cpp", "#include <nlohmann/json.hpp>",
             "neither ours nor of the standard library"},
        Edge{"module/x.cpp", "#include <unistd.h>", "neither ours nor of the standard library"},
        Edge{"module/portable/x.cpp", "#include <unistd.h>", ""},
        Edge{"module/windows/x.cpp", "#include <oaidl.h>", ""},
        Edge{"module/windows/x.cpp", "#include \"plugin/orbit_control/x.h\"",
             "against the order"}));

TEST(IncludeCycle, IsFoundWhereThereIsOne) {
    EXPECT_EQ(cycleIn({{"a", {"b"}}, {"b", {"c", "d"}}, {"d", {"b"}}}), "b -> d -> b");
    EXPECT_EQ(cycleIn({{"a", {"b", "c"}}, {"b", {"c"}}}), "");
}

}  // namespace
}  // namespace Rotavue::SourceTest
