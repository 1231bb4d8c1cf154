#include "workbench/recording/table_layout.h"

#include "tests/workbench/recording/scratch_folder.h"

namespace Rotavue::Workbench {
namespace {

class TableLayoutTest : public ScratchFolder {
protected:
    TableLayout layoutOf(std::string_view text) const { return findTableLayout(write("f", text)); }
    std::string faultOf(std::string_view text) const {
        return messageOf([&] { layoutOf(text); });
    }
    static std::string namesOf(const TableLayout& layout) {
        std::string names;
        for (const RecordingColumn& column : layout.head.columns) {
            names += column.name + '[' + column.unit + ']';
        }
        return names;
    }
};

TEST_F(TableLayoutTest, IsFoundForEveryShape) {
    struct Case {
        const char* text;
        char delimiter;
        std::size_t headerLine;
        std::size_t firstDataLine;
        const char* names;
    };
    const Case cases[] = {
        {"0,1,2\n1,1,2\n", ',', 0, 1, "1[]2[]3[]"},
        {"t,x,y\n0,1,2\n", ',', 1, 2, "t[]x[]y[]"},
        {"\xEF\xBB\xBFt;x;y\n0;1;2\n", ';', 1, 2, "t[]x[]y[]"},
        {"t\tx\ty\r\n0\t1\t2\r\n", '\t', 1, 2, "t[]x[]y[]"},
        {"Zeit;Tacho;phi\n0,00;1,5;20\n", ';', 1, 2, "Zeit[]Tacho[]phi[]"},
        {"Time [s],X (um),Y [um]\n0,1,2\n", ',', 1, 2, "Time[s]X[um]Y[um]"},
        {"t,x,y\n[s],[um],[um]\n0,1,2\n", ',', 1, 3, "t[s]x[um]y[um]"},
        {"t,x,y\n(s),,\n0,1,2\n", ',', 1, 3, "t[s]x[]y[]"},
        {"t,x,y\ns,um,um\n\n0,1,2\n", ',', 1, 4, "t[s]x[um]y[um]"},
        {"Machine Name,Kit\nSample Rate,5000\n\nx,y\n1,2\n", ',', 4, 5, "x[]y[]"},
        {"Sample Rate,5000\n1,2\n", ',', 0, 2, "1[]2[]"},
        {"A title\nt,x,y\n0,1,2\n", ',', 2, 3, "t[]x[]y[]"},
        {"A title\n0,1,2\n", ',', 0, 2, "1[]2[]3[]"},
        {"# t, x, y\n0,1,2\n", ',', 1, 2, "t[]x[]y[]"},
        {"t,x,y,\n0,1,2,\n", ',', 1, 2, "t[]x[]y[]4[]"},
        {"t,x,y\n0,1,2,\n", ',', 1, 2, "t[]x[]y[]4[]"},
        {"t,x,y,\n0,1,2\n", ',', 1, 2, "t[]x[]y[]"},
        {"Time,1,2\n0,1,2\n", ',', 1, 2, "Time[]1[]2[]"},
        {"\"t\",\"x\"\n\"0,5\",\"1,5\"\n", ',', 1, 2, "t[]x[]"},
        {"t,x,y\n0,,nan\n", ',', 1, 2, "t[]x[]y[]"},
    };
    for (const Case& c : cases) {
        const TableLayout layout = layoutOf(c.text);
        EXPECT_EQ(layout.delimiter, c.delimiter) << c.text;
        EXPECT_EQ(layout.headerLine, c.headerLine) << c.text;
        EXPECT_EQ(layout.firstDataLine, c.firstDataLine) << c.text;
        EXPECT_EQ(namesOf(layout), c.names) << c.text;
        EXPECT_EQ(layout.head.namesGiven, c.headerLine > 0) << c.text;
    }
}

TEST_F(TableLayoutTest, TakesTheKeysAboveTheNames) {
    const TableLayout layout = layoutOf(
        "Machine Name;Pump 3\nPoint Name;DE\nSample Rate [kHz];5,12\nY-Axis Unit;um\n\n"
        "X;Y\n1;2\n");
    EXPECT_EQ(layout.head.machine, "Pump 3");
    EXPECT_EQ(layout.head.point, "DE");
    EXPECT_EQ(layout.head.rate, 5120.0);
    EXPECT_EQ(layout.head.unit, "um");
}

TEST_F(TableLayoutTest, ShowsTheFirstRowsOfATableWithoutNames) {
    const TableLayout layout = layoutOf("0,5\n1,6\n2,7\n");
    EXPECT_EQ(layout.head.preview, (std::vector<std::vector<double>>{{0, 1, 2}, {5, 6, 7}}));
    std::string rows;
    for (std::size_t i = 0; i < PreviewRowCount + 5; ++i)
        rows += "1,2\n";
    EXPECT_EQ(layoutOf(rows).head.preview[0].size(), PreviewRowCount);
    EXPECT_EQ(layoutOf("0,5\n1,6\n2,7,8\n").head.preview[0].size(), 2u);
}

TEST_F(TableLayoutTest, NamesTheFaultOfATableThatDoesNotBegin) {
    struct Case {
        const char* text;
        const char* fault;
    };
    const Case cases[] = {
        {"hello\nworld\n",
         "f: found no row of numbers in 2 lines, allowed: rows of two or more numbers between "
         "commas, semicolons or tabs"},
        {"1\n2\n",
         "f: found no row of numbers in 2 lines, allowed: rows of two or more numbers between "
         "commas, semicolons or tabs"},
        {"t,x,y\n0,1,ok\n1,2,ok\n", "f:2:5: found \"ok\", allowed: a number"},
        {"t,x,y\n0,1,oops\n1,2,3\n", "f:2:5: found \"oops\", allowed: a number"},
        {"0,1,oops\n1,2,3\n", "f:1:5: found \"oops\", allowed: a number"},
        {"Zeit,x,y\n0,5,1,5,2,5\n",
         "f:2: found 6 fields, allowed: 3 as in line 1; decimal commas need semicolons or tabs "
         "between the columns, or quotes"},
        {"BEGIN_HEADER\nEND_HEADER\n1,2\n",
         "f:1:1: found \"BEGIN_HEADER\", allowed: a table; blocks that begin so are not read"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(faultOf(c.text), c.fault) << c.text;
}

TEST_F(TableLayoutTest, LooksAtOneThousandLinesOnly) {
    std::string text;
    for (int i = 0; i < 999; ++i)
        text += "note\n";
    EXPECT_EQ(layoutOf(text + "1,2\n").firstDataLine, 1000u);
    EXPECT_EQ(faultOf(text + "note\n1,2\n"),
              "f: found no row of numbers in 1000 lines, allowed: rows of two or more numbers "
              "between commas, semicolons or tabs");
}

TEST_F(TableLayoutTest, RefusesMoreColumnsThanItCounts) {
    std::string row = "1";
    for (int i = 1; i < 1024; ++i)
        row += ",1";
    EXPECT_EQ(layoutOf(row).columnCount, 1024u);
    EXPECT_EQ(faultOf(row + ",1"), "f:1: found 1025 columns, allowed: at most 1024");
}

}  // namespace
}  // namespace Rotavue::Workbench
