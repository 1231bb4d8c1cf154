#include "workbench/recording/column_roles.h"

#include <gtest/gtest.h>

#include <cmath>

namespace Rotavue::Workbench {
namespace {

SourceHead namedHead(std::initializer_list<const char*> names) {
    SourceHead head;
    for (const char* name : names)
        head.columns.push_back({name, ""});
    return head;
}

// A table without names, with a time or a wave in its first column.
SourceHead numberedHead(std::size_t count, bool timeFirst) {
    SourceHead head;
    head.namesGiven = false;
    for (std::size_t i = 0; i < count; ++i)
        head.columns.push_back({std::to_string(i + 1), ""});
    head.preview.resize(count);
    for (int row = 0; row < 50; ++row) {
        head.preview[0].push_back(timeFirst ? 0.001 * row : std::sin(0.3 * row));
    }
    return head;
}

// One letter a column: t, x, y, k, or - for an unused one.
std::string rolesOf(const SourceHead& head, const RecordingOptions& options = {}) {
    std::string letters;
    for (const RecordingColumn& column : assignRoles("f", head, options)) {
        letters += "-txyk"[static_cast<int>(column.role)];
    }
    return letters;
}

std::string faultOf(const SourceHead& head, const RecordingOptions& options = {}) {
    try {
        return rolesOf(head, options);
    } catch (const RecordingError& error) {
        return error.what();
    }
}

TEST(ColumnRoles, AreGuessedFromNames) {
    EXPECT_EQ(rolesOf(namedHead({"t", "x", "y"})), "txy");
    EXPECT_EQ(rolesOf(namedHead({"Time", "Probe Y", "Probe X", "Keyphasor"})), "tyxk");
    EXPECT_EQ(rolesOf(namedHead({"keyphasor", "plane1_x", "plane1_y", "plane2_x", "plane2_y"})),
              "kxy--");
    EXPECT_EQ(rolesOf(namedHead({"Ext. sync.", "Mach1.P1.Y", "Mach1.P1.X"})), "kyx");
    EXPECT_EQ(rolesOf(namedHead({"Horizontal_vibration_signals", "Vertical_vibration_signals"})),
              "xy");
    EXPECT_EQ(rolesOf(namedHead({"Zeit", "Tacho", "phi", "ProbeX", "YProbe"})), "t-kxy");
    EXPECT_EQ(rolesOf(namedHead({"RPM", "tacho", "dispx", "dispy"})), "-kxy");
    EXPECT_EQ(rolesOf(namedHead({"Zeit", "Vertikal", "Horizontal"})), "tyx");
    EXPECT_EQ(rolesOf(namedHead({"t", "BRG1X", "BRG1Y", "BRG2X", "BRG2Y"})), "txy--");
    EXPECT_EQ(rolesOf(namedHead({"t", "Lager1Y", "Lager1X"})), "tyx");
}

TEST(ColumnRoles, AnOrderIsNoAxis) {
    EXPECT_EQ(faultOf(namedHead({"t", "1X", "2X", "y"})).substr(0, 25),
              "f: found no column for x ");
}

TEST(ColumnRoles, AreGuessedFromTheOrderWithoutNames) {
    EXPECT_EQ(rolesOf(numberedHead(3, true)), "txy");
    EXPECT_EQ(rolesOf(numberedHead(4, true)), "txyk");
    EXPECT_EQ(rolesOf(numberedHead(2, false)), "xy");
    EXPECT_EQ(rolesOf(numberedHead(3, false)), "xyk");
}

TEST(ColumnRoles, AreGuessedAsFarAsTheyCanBe) {
    const auto guessOf = [](const SourceHead& head, const RecordingOptions& options) {
        std::string letters;
        for (const RecordingColumn& column : guessRoles(head, options))
            letters += "-txyk"[static_cast<int>(column.role)];
        return letters;
    };
    RecordingOptions options;
    EXPECT_EQ(guessOf(namedHead({"t", "tacho", "axl", "rad"}), options), "tk--");
    // More than three columns are left beside the time: nothing says which is which.
    EXPECT_EQ(guessOf(numberedHead(5, true), options), "t----");
    options.x.column = "axl";
    options.y.column = "axl";
    EXPECT_EQ(guessOf(namedHead({"t", "tacho", "axl", "rad"}), options), "tkx-");
    options.y.column = "gone";
    EXPECT_EQ(guessOf(namedHead({"t", "tacho", "axl", "rad"}), options), "tkx-");
}

TEST(ColumnRoles, LeaveTheProbesOfFurtherPlanesUnused) {
    const auto further = [](std::initializer_list<const char*> names) {
        return furtherProbes(assignRoles("f", namedHead(names), {}));
    };
    EXPECT_EQ(further({"t", "P1.X", "P1.Y", "P2.X", "P2.Y", "rpm"}),
              (std::vector<std::string>{"P2.X", "P2.Y"}));
    EXPECT_EQ(further({"t", "x", "y", "axl", "X-Axis Value"}), std::vector<std::string>{});
}

TEST(ColumnRoles, OfTheNextPlaneAreTheProbesBehindThoseOfThisOne) {
    const auto next = [](const SourceHead& head, int planes) {
        std::vector<RecordingColumn> columns = assignRoles("f", head, {});
        for (int plane = 0; plane < planes; ++plane)
            columns = nextPlane(columns);
        std::string letters;
        for (const RecordingColumn& column : columns)
            letters += "-txyk"[static_cast<int>(column.role)];
        return letters;
    };
    const SourceHead train =
        namedHead({"t", "P1.Y", "P1.X", "rpm", "P2.Y", "P2.X", "P3.X", "P3.Y"});
    EXPECT_EQ(next(train, 0), "tyxk----");
    EXPECT_EQ(next(train, 1), "t--kyx--");
    EXPECT_EQ(next(train, 2), "t--k--xy");
    // There is no fourth plane: a person has to tell.
    EXPECT_EQ(next(train, 3), "t--k----");
}

TEST(ColumnRoles, OfTheOptionsComeFirst) {
    RecordingOptions options;
    options.x.column = "B";
    options.y.column = "#1";
    options.keyphasor.column = "C [V]";
    EXPECT_EQ(rolesOf(namedHead({"A", "B", "C", "t"}), options), "yxkt");
    // X and Y named, one column left without a name: the keyphasor.
    RecordingOptions swapped;
    swapped.x.column = "3";
    swapped.y.column = "2";
    EXPECT_EQ(rolesOf(numberedHead(4, true), swapped), "tyxk");
    EXPECT_EQ(rolesOf(numberedHead(6, true), swapped), "tyx---");
}

TEST(ColumnRoles, LeaveOutAKeyphasorThatIsNotWanted) {
    RecordingOptions options;
    options.keyphasor.kind = KeyphasorKind::None;
    EXPECT_EQ(rolesOf(namedHead({"x", "y", "tacho"}), options), "xy-");
    EXPECT_EQ(rolesOf(numberedHead(3, false), options), "xy-");
}

TEST(ColumnRoles, NameTheNearestOfAColumnThatIsNotThere) {
    RecordingOptions options;
    options.x.column = "Probe Z";
    EXPECT_EQ(
        faultOf(namedHead({"Tacho", "Probe Y"}), options),
        "f: found no column \"Probe Z\" (the nearest name is \"Probe Y\"), allowed: Tacho and "
        "Probe Y");
    for (const char* name : {"#0", "#3", "#", "#1x", "#-1"}) {
        options.x.column = name;
        EXPECT_NE(faultOf(namedHead({"a", "b"}), options).find("found no column"),
                  std::string::npos)
            << name;
    }
}

TEST(ColumnRoles, RefuseOneColumnForTwoPurposes) {
    RecordingOptions options;
    options.x.column = "a";
    options.y.column = "a";
    EXPECT_EQ(
        faultOf(namedHead({"a", "b"}), options),
        "f: found column \"a\" named for two purposes, allowed: a column of its own for each");
}

TEST(ColumnRoles, RefuseAFileWithoutTwoProbes) {
    const std::string allowed =
        ", allowed: two probes, in columns named x and y or named by an option";
    EXPECT_EQ(faultOf(namedHead({"tacho", "axl", "rad", "tan"})),
              "f: found no column for x among tacho, axl, rad and tan" + allowed);
    // The two axes of a diagram of one channel are no probes.
    EXPECT_EQ(faultOf(namedHead({"X-Axis Value", "Y-Axis Value"})),
              "f: found no column for x among X-Axis Value and Y-Axis Value" + allowed);
    EXPECT_EQ(faultOf(numberedHead(2, true)), "f: found no column for y among 1 and 2" + allowed);
    EXPECT_EQ(faultOf(numberedHead(5, true)),
              "f: found no column for x among 1, 2, 3, 4 and 5" + allowed);
}

TEST(Time, IsKnownByItsEqualSteps) {
    std::vector<double> cut;
    for (int i = 0; i < 256; ++i)
        cut.push_back(std::floor(i * 19.53125) * 1e-6);
    EXPECT_TRUE(looksLikeTime(cut));
    EXPECT_TRUE(looksLikeTime(std::vector<double>{5, 6, 7}));
    EXPECT_FALSE(looksLikeTime(std::vector<double>{5, 6, 9}));
    EXPECT_FALSE(looksLikeTime(std::vector<double>{5, 6}));
    EXPECT_FALSE(looksLikeTime(std::vector<double>{7, 6, 5}));
    EXPECT_FALSE(looksLikeTime(std::vector<double>{5, 5, 5}));
    EXPECT_FALSE(looksLikeTime(std::vector<double>{5, std::nan(""), 7}));
    std::vector<double> quarterWave;
    for (int i = 0; i < 256; ++i)
        quarterWave.push_back(std::sin(i * 1.5 / 256));
    EXPECT_FALSE(looksLikeTime(quarterWave));
}

TEST(KeyphasorKindOfAName, IsToldByUnitThenByWord) {
    EXPECT_EQ(kindFromName({"phi", ""}), KeyphasorKind::Ramp);
    EXPECT_EQ(kindFromName({"phi", "V"}), KeyphasorKind::Volts);
    EXPECT_EQ(kindFromName({"tacho", "deg"}), KeyphasorKind::Ramp);
    EXPECT_EQ(kindFromName({"tacho", "rpm"}), KeyphasorKind::Speed);
    EXPECT_EQ(kindFromName({"Drehzahl", ""}), KeyphasorKind::Speed);
    EXPECT_EQ(kindFromName({"tacho", ""}), std::nullopt);
}

}  // namespace
}  // namespace Rotavue::Workbench
