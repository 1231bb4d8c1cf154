#include "workbench/recording/csv_file.h"

#include <cmath>

#include "tests/workbench/recording/scratch_folder.h"

namespace Rotavue::Workbench {
namespace {

using Columns = std::vector<Samples>;

const std::vector<WantedColumn> TimeAndX = {{0, ColumnRole::Time}, {1, ColumnRole::X}};

class CsvFileTest : public ScratchFolder {
protected:
    Columns read(std::string_view text, const std::vector<WantedColumn>& wanted) const {
        return CsvFile(write("f", text)).read(wanted);
    }
    std::string faultOf(std::string_view text) const {
        return messageOf([&] { read(text, TimeAndX); });
    }
};

TEST_F(CsvFileTest, GivesTheWantedColumnsInTheirOrder) {
    const std::vector<WantedColumn> wanted = {{2, ColumnRole::Y}, {0, ColumnRole::X}};
    EXPECT_EQ(read("a,b,c\n1,2,3\n4,5,6", wanted), (Columns{{3, 6}, {1, 4}}));
}

TEST_F(CsvFileTest, PassesOverBlankLines) {
    EXPECT_EQ(read("t,x\n\n0,1\n \n\n1,2\n\n", TimeAndX), (Columns{{0, 1}, {1, 2}}));
}

TEST_F(CsvFileTest, TakesDecimalCommas) {
    EXPECT_EQ(read("t;x\n0;1\n0,5;-2,25\n", TimeAndX), (Columns{{0, 0.5}, {1, -2.25}}));
    EXPECT_EQ(read("t,x\n\"0\",\"1\"\n\"0,5\",\"-2,25\"\n", TimeAndX),
              (Columns{{0, 0.5}, {1, -2.25}}));
}

TEST_F(CsvFileTest, LeavesAGapInAVibrationColumn) {
    const Columns columns = read("t,x\n0,1\n1,\n2,nan\n3,inf\n", TimeAndX);
    ASSERT_EQ(columns[1].size(), 4u);
    EXPECT_EQ(columns[1][0], 1.0);
    for (std::size_t i = 1; i < 4; ++i)
        EXPECT_TRUE(std::isnan(columns[1][i])) << i;
}

TEST_F(CsvFileTest, AllowsTimeThatStandsForAStep) {
    EXPECT_EQ(read("t,x\n0,1\n0,2\n1,3\n", TimeAndX)[0], (Samples{0, 0, 1}));
}

TEST_F(CsvFileTest, DoesNotLookIntoColumnsThatNobodyWants) {
    EXPECT_EQ(read("t,x,c\n0,1,2\n1,2,text\n", TimeAndX)[1], (Samples{1, 2}));
}

TEST_F(CsvFileTest, CountsColumnsInCharactersAsAnEditorDoes) {
    const std::vector<WantedColumn> second = {{1, ColumnRole::X}};
    EXPECT_EQ(messageOf([&] { read("t,x\n0,1\n\u00FC\u00FC,abc\n", second); }),
              "f:3:4: found \"abc\" in column \"x\", allowed: a number, or nothing for a gap");
}

TEST_F(CsvFileTest, NamesThePlaceOfEachFault) {
    struct Case {
        const char* text;
        const char* fault;
    };
    const Case cases[] = {
        {"t,x\n0,1\n1\n", "f:3:2: found 1 field, allowed: 2 as in line 2"},
        {"t,x\n0,1\n1,2,\n", "f:3:5: found 3 fields, allowed: 2 as in line 2"},
        {"t,x\n0,1\n\n1,2,3\n", "f:4:5: found 3 fields, allowed: 2 as in line 2"},
        {"t,x\n0,1\n1, abc\n",
         "f:3:4: found \"abc\" in column \"x\", allowed: a number, or nothing for a gap"},
        {"t,x\n0,1\n1,\"a,b\"\n",
         "f:3:4: found \"a,b\" in column \"x\", allowed: a number, or nothing for a gap"},
        {"t,x\n0,1\nnan,2\n", "f:3:1: found \"nan\" in column \"t\", allowed: a number"},
        {"t,x\n0,1\n-inf,2\n", "f:3:1: found \"-inf\" in column \"t\", allowed: a number"},
        {"t,x\n0,1\n,2\n", "f:3:1: found nothing in column \"t\", allowed: a number"},
        {"t,x\n0,1\n1,1e31\n",
         "f:3:3: found \"1e31\" in column \"x\", allowed: a number from -1e+30 to 1e+30, or "
         "nothing "
         "for a gap"},
        {"t,x\n0.5,1\n0.25,2\n",
         "f:3:1: found time 0.25 after 0.5, allowed: time that does not run backward"},
        {"0,1\n0.5,1\nfive,2\n", "f:3:1: found \"five\" in column \"1\", allowed: a number"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(faultOf(c.text), c.fault) << c.text;
}

TEST_F(CsvFileTest, RefusesAGapInAKeyphasor) {
    const std::vector<WantedColumn> wanted = {{1, ColumnRole::Keyphasor}};
    EXPECT_EQ(messageOf([&] { read("t,k\n0,1\n1,\n", wanted); }),
              "f:3:3: found nothing in column \"k\", allowed: a number");
}

}  // namespace
}  // namespace Rotavue::Workbench
