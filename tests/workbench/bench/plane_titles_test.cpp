#include "workbench/bench/plane_titles.h"

#include "tests/workbench/analysis/generated_recording.h"

#include <gtest/gtest.h>

#include <memory>
#include <set>

namespace Rotavue::Workbench {
namespace {

using Titles = std::vector<std::string>;

struct Told {
    const char* file;
    const char* point = "";
    const char* machine = "";
    const char* x = "x";
    const char* y = "y";
};

std::shared_ptr<const PlaneSource> sourceOf(const Told& told) {
    Recording recording = generate({.duration = 0.01, .orders = {}});
    recording.file = told.file;
    recording.machine.point = told.point;
    recording.machine.machine = told.machine;
    recording.columns = {{.name = told.x, .unit = {}, .role = ColumnRole::X},
                         {.name = told.y, .unit = {}, .role = ColumnRole::Y}};
    return preparePlane(std::move(recording));
}

Titles titlesOf(const std::vector<Told>& planes) {
    std::vector<std::shared_ptr<const PlaneSource>> sources;
    std::vector<const PlaneSource*> shown;
    for (const Told& told : planes) {
        sources.push_back(sourceOf(told));
        shown.push_back(sources.back().get());
    }
    Titles titles;
    for (const PlaneTitle& title : planeTitles(shown))
        titles.push_back(title.text());
    return titles;
}

TEST(PlaneTitlesTest, NamesThatDifferStandAlone) {
    EXPECT_EQ(titlesOf({{.file = "a.csv"}, {.file = "b.csv"}}), (Titles{"a", "b"}));
    EXPECT_EQ(titlesOf({}), Titles{});
}

TEST(PlaneTitlesTest, OfOneNameEachHasWhatTellsItApart) {
    struct Case {
        std::vector<Told> planes;
        Titles titles;
    };
    const Case cases[] = {
        {{{.file = "a.csv", .point = "B1", .machine = "Pump"},
          {.file = "b.csv", .point = "B1", .machine = "Fan"}},
         {"B1 (Pump)", "B1 (Fan)"}},
        {{{.file = "a.csv", .point = "B1"}, {.file = "b.csv", .point = "B1"}},
         {"B1 (a.csv)", "B1 (b.csv)"}},
        {{{.file = "2024/a.csv"}, {.file = "2025/a.csv"}}, {"a (2024/a.csv)", "a (2025/a.csv)"}},
        {{{.file = "a.csv", .x = "P1.X", .y = "P1.Y"}, {.file = "a.csv", .x = "P2.X", .y = "P2.Y"}},
         {"a (columns P1.X and P1.Y)", "a (columns P2.X and P2.Y)"}},
        {{{.file = "a.csv"}, {.file = "a.csv"}}, {"a (1)", "a (2)"}},
    };
    for (const Case& one : cases)
        EXPECT_EQ(titlesOf(one.planes), one.titles);
}

TEST(PlaneTitlesTest, OnlyThoseOfOneNameGetMore) {
    EXPECT_EQ(titlesOf({{.file = "a.csv", .point = "B1"},
                        {.file = "a.csv", .point = "B2"},
                        {.file = "b.csv", .point = "B1"}}),
              (Titles{"B1 (a.csv)", "B2", "B1 (b.csv)"}));
}

TEST(PlaneTitlesTest, OneReasonIsAddedToAnotherOnlyWhereItIsNeeded) {
    EXPECT_EQ(titlesOf({{.file = "a.csv", .point = "B1", .x = "1"},
                        {.file = "a.csv", .point = "B1", .x = "2"},
                        {.file = "b.csv", .point = "B1", .x = "1"}}),
              (Titles{"B1 (a.csv, columns 1 and y)", "B1 (a.csv, columns 2 and y)", "B1 (b.csv)"}));
}

TEST(PlaneTitlesTest, NoTwoAreTheSameWhateverPlanesAreCalled) {
    const Titles titles = titlesOf({{.file = "f", .point = "a"},
                                    {.file = "f", .point = "a"},
                                    {.file = "f", .point = "a (1)"},
                                    {.file = "f", .point = "a (1, 1)"},
                                    {.file = "f", .point = "a (1)"}});
    EXPECT_EQ(std::set(titles.begin(), titles.end()).size(), 5U);
}

TEST(PlaneTitlesTest, AColumnWithAnEndlessNameIsCut) {
    const std::string longName(1000, 'n');
    const Titles titles = titlesOf({{.file = "a.csv", .x = longName.c_str()}, {.file = "a.csv"}});
    EXPECT_EQ(titles.front(), "a (columns " + std::string(40, 'n') + "... and y)");
}

TEST(PlaneTitlesTest, FilesAreToldOnceAndWithTheFolderWhereNamesAreTheSame) {
    EXPECT_EQ(fileTitles({"/d/a.csv", "/d/a.csv"}), Titles{"a.csv"});
    EXPECT_EQ(fileTitles({"/d/a.csv", "/e/a.csv", "/d/b.csv"}),
              (Titles{"d/a.csv", "e/a.csv", "b.csv"}));
    EXPECT_EQ(fileTitles({"a.csv", "e/a.csv"}), (Titles{"a.csv", "e/a.csv"}));
}

}  // namespace
}  // namespace Rotavue::Workbench
