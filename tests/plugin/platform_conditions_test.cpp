#include "tests/plugin/source_tree.h"

#include <gtest/gtest.h>

#include <regex>

/// The logic of the plug-in is the same on every platform: only plugin/module/ may ask on which one
/// it is built.
namespace Rotavue::SourceTest {
namespace {

/// The lines of a file that choose by a condition of the preprocessor.
std::vector<std::string> conditionsIn(const SourceFile& file) {
    static const std::regex Condition(R"(^\s*#\s*(if|ifdef|ifndef|elif)\b.*)");
    std::vector<std::string> found;
    for (const std::string& line : file.lines)
        if (std::regex_match(line, Condition)) found.push_back(line);
    return found;
}

TEST(PlatformConditions, StandInTheModuleOnly) {
    for (const SourceFile& file : sourcesBelow("plugin")) {
        if (file.path.starts_with("module/")) continue;
        EXPECT_EQ(conditionsIn(file), std::vector<std::string>{}) << file.path;
    }
}

TEST(PlatformConditions, AreFoundWhereThereAreSome) {
    const SourceFile file{"x.h",
                          {"#pragma once", "#ifdef _WIN32", "  # if defined(__linux__)", "#endif",
                           "// #if in a comment", "#elif __APPLE__"}};
    EXPECT_EQ(conditionsIn(file),
              (std::vector<std::string>{"#ifdef _WIN32", "  # if defined(__linux__)",
                                        "#elif __APPLE__"}));
}

}  // namespace
}  // namespace Rotavue::SourceTest
