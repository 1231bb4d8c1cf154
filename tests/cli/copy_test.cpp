#include "tests/cli/command_test.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <numbers>
#include <sstream>

namespace Rotavue::Cli {

namespace {

using Names = std::vector<std::string>;
using Table = std::vector<Names>;

Table cellsOf(const std::string& text, char delimiter) {
    Table rows;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        if (line.ends_with('\r')) line.pop_back();
        rows.emplace_back();
        std::istringstream cells(line);
        for (std::string cell; std::getline(cells, cell, delimiter);)
            rows.back().push_back(cell);
    }
    return rows;
}

/// The row of a sample of `writeRotor`. The probes are at 90 and 0 degrees, so that x and y stand
/// in the row as they are.
std::string rotorRow(int sample) {
    const double angle = 2.0 * std::numbers::pi * sample / 50;
    char row[60];
    std::snprintf(row, sizeof row, "%.3f\t%.3f\r\n", 30.0 * std::cos(angle),
                  20.0 * std::sin(angle));
    return row;
}

class CopyTest : public CommandTest {
protected:
    CopyTest() { writeRotor("rotor.csv"); }
};

TEST_F(CopyTest, RawOrbitIsItsTitleItsColumnsAndTheNewestSamplesFirst) {
    const ProcessEnd end = rotavue({"copy", "rotor.csv", "--revolutions", "1", "-q"});
    EXPECT_EQ(end.status, 0) << end.error;
    EXPECT_EQ(end.error, "");
    std::string beginning = "rotor (um)\r\nX\tY\r\n";
    for (int sample = 1999; sample > 1999 - 50; --sample)  // a turn is 50 samples
        beginning += rotorRow(sample);
    EXPECT_EQ(end.out.substr(0, beginning.size()), beginning);
    EXPECT_TRUE(end.out.ends_with("\r\n\r\n"));
}

TEST_F(CopyTest, EveryLineEndsAsSpreadsheetsOnEverySystemTakeIt) {
    const std::string text = rotavue({"copy", "rotor.csv", "-q"}).out;
    std::size_t lines = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\n') continue;
        ASSERT_EQ(text[i - 1], '\r');
        ++lines;
    }
    EXPECT_GT(lines, 8U * 50U);  // eight turns unless told otherwise
}

TEST_F(CopyTest, EachRecordingHasASection) {
    writeRotor("other.csv");
    const std::string text = rotavue({"copy", "rotor.csv", "other.csv", "-q"}).out;
    EXPECT_EQ(text.find("rotor (um)\r\nX\tY\r\n"), 0U);
    EXPECT_NE(text.find("\r\n\r\nother (um)\r\nX\tY\r\n"), std::string::npos);
}

TEST_F(CopyTest, SetupChoosesHowMuch) {
    ASSERT_EQ(rotavue({"setup", "new", "plot.xml", "revolutions=2"}).status, 0);
    EXPECT_EQ(rotavue({"copy", "rotor.csv", "-q", "--setup", "plot.xml"}).out,
              rotavue({"copy", "rotor.csv", "-q", "--revolutions", "2"}).out);
    ASSERT_EQ(rotavue({"setup", "set", "plot.xml", "historyType=1", "displayTime=30"}).status, 0);
    EXPECT_EQ(rotavue({"copy", "rotor.csv", "-q", "--setup", "plot.xml"}).out,
              rotavue({"copy", "rotor.csv", "-q", "--time", "30"}).out);
}

TEST_F(CopyTest, TextIsTheSameInAnotherLocale) {
    const std::string plain = rotavue({"copy", "rotor.csv", "-q"}).out;
    setVariable("LOCPATH", ROTAVUE_TEST_LOCALES);
    setVariable("LC_ALL", "de_DE.UTF-8");
    EXPECT_EQ(rotavue({"copy", "rotor.csv", "-q"}).out, plain);
}

TEST_F(CopyTest, FaultsLeaveStandardOutputEmpty) {
    write("bad.csv", "t,x,y\n0,1,2\n1,2\n");
    const ProcessEnd end = rotavue({"copy", "bad.csv"});
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.out, "");
    EXPECT_EQ(end.error, "rotavue copy: bad.csv:3:4: found 2 fields, allowed: 3 as in line 2\n");
    EXPECT_EQ(rotavue({"copy"}).status, 2);
    EXPECT_EQ(rotavue({"copy", "rotor.csv", "--revolutions", "0"}).status, 2);
}

/// The spreadsheet program, which is large and not everywhere; empty where it is not.
std::string spreadsheetProgram() {
    std::istringstream folders(std::getenv("PATH"));
    for (std::string folder; std::getline(folders, folder, ':');)
        if (std::filesystem::exists(folder + "/soffice")) return folder + "/soffice";
    return "";
}

class SpreadsheetTest : public CopyTest {
protected:
    /// What a spreadsheet makes of a text with tabs between the columns, in its first sheet.
    Table pasted(const std::string& text) {
        write("copy.tsv", text);
        ProcessOrder convert = order({});
        convert.arguments = {spreadsheetProgram(),
                             "--headless",
                             "-env:UserInstallation=file://" + at("profile").string(),
                             "--infilter=CSV:9,34,76,1",  // tabs, quotes, UTF-8, from line 1
                             "--convert-to",
                             "csv:Text - txt - csv (StarCalc):59,,76,1",  // semicolons, no quotes
                             "--outdir",
                             at("sheet").string(),
                             "copy.tsv"};
        const ProcessEnd end = runProcess(convert);
        EXPECT_EQ(end.status, 0) << end.out << end.error;
        return cellsOf(read("sheet/copy.csv"), ';');
    }

    /// The cells of a row that hold something: a sheet is as wide as its widest row.
    static Names filled(Names cells) {
        while (!cells.empty() && cells.back().empty())
            cells.pop_back();
        return cells;
    }

    void expectSameCells(const Table& sheet, const Table& copy) {
        ASSERT_GE(sheet.size() + 1, copy.size());  // the empty line at the end may go
        for (std::size_t row = 0; row < sheet.size(); ++row) {
            const Names found = filled(sheet[row]);
            const Names wanted = row < copy.size() ? copy[row] : Names{};
            ASSERT_EQ(found.size(), wanted.size()) << "row " << row + 1;
            for (std::size_t i = 0; i < found.size(); ++i) {
                char* end = nullptr;
                const double number = std::strtod(wanted[i].c_str(), &end);
                if (*end == '\0') {
                    EXPECT_EQ(std::strtod(found[i].c_str(), nullptr), number);
                } else {
                    EXPECT_EQ(found[i], wanted[i]);
                }
            }
        }
    }
};

TEST_F(SpreadsheetTest, HasAColumnForEachNumber) {
    if (spreadsheetProgram().empty()) {
        GTEST_SKIP() << "soffice is not installed: tools/install-packages test installs it";
    }
    const std::string text = rotavue({"copy", "rotor.csv", "-q", "--revolutions", "1"}).out;
    const Table sheet = pasted(text);
    ASSERT_GE(sheet.size(), 52U);  // title, names and 50 samples
    EXPECT_EQ(filled(sheet[0]), Names{"rotor (um)"});
    EXPECT_EQ(filled(sheet[1]), (Names{"X", "Y"}));
    EXPECT_EQ(filled(sheet[2]).size(), 2U);
    EXPECT_NEAR(std::strtod(sheet[2][0].c_str(), nullptr), 29.763, 1e-9);  // 30 cos 7.2 degrees
    EXPECT_NEAR(std::strtod(sheet[2][1].c_str(), nullptr), -2.507, 1e-9);  // -20 sin 7.2 degrees
    expectSameCells(sheet, cellsOf(text, '\t'));
}

TEST_F(SpreadsheetTest, HasASpeedBeforeThePositionsOfTheShaftsCentre) {
    if (spreadsheetProgram().empty()) {
        GTEST_SKIP() << "soffice is not installed: tools/install-packages test installs it";
    }
    const std::string text = rotavue({"copy", "rotor.csv", "-q", "--show", "shaft-center"}).out;
    const Table sheet = pasted(text);
    ASSERT_GE(sheet.size(), 3U);
    EXPECT_EQ(filled(sheet[1]), (Names{"RPM", "X", "Y"}));
    EXPECT_EQ(filled(sheet[2]).front(), "1200");  // 20 turns a second
    expectSameCells(sheet, cellsOf(text, '\t'));
}

}  // namespace

}  // namespace Rotavue::Cli
