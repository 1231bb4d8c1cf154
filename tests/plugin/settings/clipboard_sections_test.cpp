// The rows of each kind of orbit on the clipboard.

#include "plugin/settings/clipboard_writer.h"
#include "tests/plugin/settings/clipboard_section.h"

#include <algorithm>
#include <limits>

namespace Meridax::VisualControls::Rotavue {
namespace {

TEST_F(ClipboardSection, OfAReferenceHasAllElements) {
    describeArray("reference", L"Reference", {1, 2, 3}, {4, 5, 6});
    EXPECT_EQ(lines(),
              (WideLines{L" ()", L"X\tY", L"1.000\t4.000", L"2.000\t5.000", L"3.000\t6.000", L""}));
}

TEST_F(ClipboardSection, OfAnAverageHasAllElementsWithoutTheAxis) {
    describeArray("average", L"Average", {1, 2}, {4, 5}).axes = {{100.0, 50.0}};
    EXPECT_EQ(lines(), (WideLines{L" ()", L"X\tY", L"1.000\t4.000", L"2.000\t5.000", L""}));
}

TEST_F(ClipboardSection, OfAnAverageAsksForTheAxisAtEveryRowAndAReferenceNever) {
    describeArray("average", L"Average", {1, 2}, {4, 5});
    const Lines calls = callsOf([&] { control.clipboardText(); });
    EXPECT_EQ(linesOf(calls, "IHostChannel.getAxes").size(), 2U);
    EXPECT_EQ(linesOf(calls, "IHostAxis.getStart").size(), 2U);
    EXPECT_EQ(linesOf(calls, "IHostAxis.getStep").size(), 2U);
    host.description.assigned.channels.clear();
    describeArray("reference", L"Reference", {1, 2}, {4, 5});
    EXPECT_TRUE(linesOf(callsOf([&] { control.clipboardText(); }), "IHostChannel.getAxes").empty());
}

TEST_F(ClipboardSection, OfAnAverageFailsWithoutAnAxis) {
    HostKit::ChannelDescription& described = describeArray("average", L"Average", {1}, {4});
    described.axes->clear();
    expectHostError(0x80004003, [&] { control.clipboardText(); });
    described.axes.reset();
    expectHostError(0x80004003, [&] { control.clipboardText(); });
}

TEST_F(ClipboardSection, OfAHarmonicIsAnOpenEllipseOf340RowsForEachOrder) {
    // Phasors: the sensor at the Y angle (0, 2), the one at the X angle (3, 0). At d degrees,
    // y = 2 sin(d + 90) and x = 3 sin(d).
    describeArray("harmonic", L"Harmonic", {0, 3}, {2, 0});
    const WideLines found = lines();
    ASSERT_EQ(found.size(), 2U + 340U + 1U);
    EXPECT_EQ(found[1], L"X\tY");
    EXPECT_EQ(found[2], L"0.000\t2.000");
    EXPECT_EQ(found[2 + 30], L"1.500\t1.732");  // 3 sin 30, 2 sin 120
    EXPECT_EQ(found[2 + 90], L"3.000\t0.000");
    EXPECT_EQ(found[2 + 339], L"-1.075\t1.867");  // 3 sin 339, 2 sin 429
}

TEST_F(ClipboardSection, OfAHarmonicIsTurnedIntoTheFrameOfTheMachine) {
    // Sensors at 30 and 90 degrees. With x and y as above, the row is (x sin 30 + y sin 90,
    // x cos 30 + y cos 90) = (x / 2 + y, 0.8660254 x).
    HostKit::ChannelDescription& described = describeArray("h", L"Harmonic", {0, 3}, {2, 0});
    described.properties[L"Orbit X Angle"] = L"30";
    described.properties[L"Orbit Y Angle"] = L"90";
    const WideLines found = lines();
    EXPECT_EQ(found[2], L"2.000\t0.000");
    EXPECT_EQ(found[2 + 30], L"2.482\t1.299");  // x = 1.5, y = 1.7320508
    EXPECT_EQ(found[2 + 90], L"1.500\t2.598");  // x = 3, y = 0
}

TEST_F(ClipboardSection, OfAHarmonicLeavesAnOddElementUnreadAndHasNoneWithoutAPair) {
    const auto rowsOf = [&](std::vector<double> values) {
        host.description.assigned.channels.clear();
        describeArray("harmonic", L"Harmonic", values, values);
        return lines().size() - 3;  // title, columns, empty line
    };
    EXPECT_EQ(rowsOf({1, 2}), 340U);
    EXPECT_EQ(rowsOf({1, 2, 3}), 340U);
    EXPECT_EQ(rowsOf({1, 2, 3, 4}), 680U);
    EXPECT_EQ(rowsOf({1}), 0U);
    EXPECT_EQ(rowsOf({}), 0U);
}

TEST_F(ClipboardSection, OfAHarmonicHoldsTheOrdersOneAfterTheOther) {
    // Order 1: elements 0 and 2; order 2: elements 1 and 3.
    describeArray("harmonic", L"Harmonic", {0, 0, 1, 1}, {5, 7, 0, 0});
    const WideLines found = lines();
    EXPECT_EQ(found[2], L"0.000\t5.000");
    EXPECT_EQ(found[2 + 340], L"0.000\t7.000");
}

TEST_F(ClipboardSection, OfAHarmonicHasTheAmplitudesOfTheChannel) {
    HostKit::ChannelDescription& described = describeArray("h", L"Harmonic", {0, 3}, {2, 0});
    const WideLines asPeak = lines();
    for (const wchar_t* amplitude : {L"rms", L"peak-peak"}) {
        described.properties[L"Orbit Amplitude"] = amplitude;
        EXPECT_EQ(lines(), asPeak);
    }
}

TEST_F(ClipboardSection, OfAShaftCenterHasTheSpeedInFrontAndTheOldestFirst) {
    describeShaftCenter("center");
    EXPECT_EQ(lines(),
              (WideLines{L" ()", L"RPM\tX\tY", L"3000\t2.000\t1.000", L"3000\t4.000\t3.000", L""}));
    EXPECT_EQ(control.sampleCursor, -1);
}

TEST_F(ClipboardSection, OfAShaftCenterHasTheTimeInFrontForAnyOtherDisplayType) {
    HostKit::ChannelDescription& described = describeShaftCenter("center");
    described.values[0][3] = 1.26;
    for (const std::int32_t type : {1, 7, -1}) {
        key.graph.setDisplayType(type);
        EXPECT_EQ(lines(), (WideLines{L" ()", L"Time\tX\tY", L"1.3\t2.000\t1.000",
                                      L"1.5\t4.000\t3.000", L""}));
    }
    // 1.25 lies halfway: which way it goes is the formatter's.
    described.values[0][3] = 1.25;
    const std::wstring label = lines()[2].substr(0, 4);
    EXPECT_TRUE(label == L"1.2\t" || label == L"1.3\t");
}

TEST_F(ClipboardSection, OfAShaftCenterIsTurnedWithItsFirstElementAtTheYAngle) {
    HostKit::ChannelDescription& described = describeShaftCenter("center");
    described.properties[L"Orbit X Angle"] = L"30";
    described.properties[L"Orbit Y Angle"] = L"90";
    // Element 1 is 2, then 4; element 0 is 1, then 3: (2 / 2 + 1, 0.8660254 * 2), (5, 3.4641016).
    const WideLines found = lines();
    EXPECT_EQ(found[2], L"3000\t2.000\t1.732");
    EXPECT_EQ(found[3], L"3000\t5.000\t3.464");
}

TEST_F(ClipboardSection, OfAShaftCenterOnStoredDataSeeksItsCursorAnew) {
    HostKit::ChannelDescription& described = describeShaftCenter("center");
    described.asynchronous = true;
    described.timestamps = {0.5, 2.0};
    host.description.host.acquiring = false;
    host.description.host.sampleRate = 1000.0;
    host.description.host.blockSize = 1000;
    host.description.host.currentPosition = {1,
                                             0};  // 1 s: the first sample is the newest before it
    control.sampleCursor = 1;
    EXPECT_EQ(lines(),
              (WideLines{L" ()", L"RPM\tX\tY", L"0\t0.000\t0.000", L"3000\t2.000\t1.000", L""}));
    EXPECT_EQ(control.sampleCursor, 0);
}

TEST_F(ClipboardSection, OfAShaftCenterHoldsAllSamplesWhateverTheDrawingShows) {
    describeShaftCenter("center");
    key.showOnlyLastPosition = true;
    EXPECT_EQ(lines().size(), 5U);
}

TEST_F(ClipboardSection, OfASubSyncOrbitIsMeasuredByTheOrbitChannelItself) {
    HostKit::ChannelDescription& described = describeOrbit("sub", {1, 2, 3}, {4, 5, 6});
    described.properties[L"OrbitType"] = L"SubSync";
    host.description.assigned.channels = {"sub"};
    key.graph.setHistoryType(1);
    key.displayTime = 100.0;
    // 1000 samples wanted, three held: the newest two.
    EXPECT_EQ(lines(), (WideLines{L" ()", L"X\tY", L"3.000\t6.000", L"2.000\t5.000", L""}));
    key.graph.setHistoryType(0);
    EXPECT_EQ(lines(), (WideLines{L" ()", L"X\tY", L""})) << "no rate, so no turns";
}

TEST_F(ClipboardSection, EndsWhereTheAllowanceOfThePassIsUsedUp) {
    describeArray("reference", L"Reference", {1, 2, 3}, {4, 5, 6}).arraySize =
        std::numeric_limits<std::int32_t>::max();
    ASSERT_TRUE(key.checkBearingConfig());
    key.pointAllowance.take(ReadAllowance::Places - 2);
    ClipboardWriter writer(control);
    writer.addChannel(*host.channel("reference"));
    EXPECT_EQ(writer.takeText(), L" ()\r\nX\tY\r\n1.000\t4.000\r\n2.000\t5.000\r\n\r\n");
}

TEST_F(ClipboardSection, TakesTwoPlacesForARowOfThreeColumns) {
    describeShaftCenter("center");
    ASSERT_TRUE(key.checkBearingConfig());
    key.pointAllowance.take(ReadAllowance::Places - 3);
    ClipboardWriter writer(control);
    writer.addChannel(*host.channel("center"));
    EXPECT_EQ(writer.takeText(), L" ()\r\nRPM\tX\tY\r\n3000\t4.000\t3.000\r\n\r\n");
}

TEST_F(ClipboardSection, HasMoreRowsThanASheet) {
    describeArray("reference", L"Reference", {1}, {2}).arraySize = 1'048'576;
    describeArray("second", L"Reference", {3}, {4}).arraySize = 1;
    ASSERT_TRUE(key.checkBearingConfig());
    ClipboardWriter writer(control);
    writer.addChannel(*host.channel("reference"));
    writer.addChannel(*host.channel("second"));
    const std::wstring text = writer.takeText();
    // Two titles, two lines of names, the rows, two empty lines.
    EXPECT_EQ(std::count(text.begin(), text.end(), L'\n'), 2 + 2 + 1'048'577 + 2);
    EXPECT_TRUE(text.ends_with(L" ()\r\nX\tY\r\n3.000\t4.000\r\n\r\n"));
}

TEST_F(ClipboardSection, LeavesOutRowsAndTitlesOfATextThatIsTooLong) {
    // 800 orders of 360 rows, nearly each of two numbers with 154 digits and 4 characters more: 91
    // million characters.
    const std::vector<double> large(1600, 1e153);
    describeArray("harmonic", L"Harmonic", large, large);
    describeArray("reference", L"Reference", {1}, {2}).name = L"after it";
    ASSERT_TRUE(key.checkBearingConfig());
    ClipboardWriter writer(control);
    writer.addChannel(*host.channel("harmonic"));
    writer.addChannel(*host.channel("reference"));
    const std::wstring text = writer.takeText();
    constexpr std::size_t LongestRow = 400;
    EXPECT_GE(text.size(), ClipboardWriter::MostCharacters);
    EXPECT_LT(text.size(), ClipboardWriter::MostCharacters + LongestRow);
    EXPECT_EQ(text.find(L"after it"), std::wstring::npos);
}

TEST_F(ClipboardSection, HasNoRowsForCountsBelowZero) {
    describeShaftCenter("center").sampleCount = -5;
    describeArray("reference", L"Reference", {1}, {2}).arraySize = -5;
    describeArray("harmonic", L"Harmonic", {1}, {2}).arraySize = std::numeric_limits<int>::min();
    EXPECT_EQ(lines(),
              (WideLines{L" ()", L"RPM\tX\tY", L"", L" ()", L"X\tY", L"", L" ()", L"X\tY", L""}));
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
