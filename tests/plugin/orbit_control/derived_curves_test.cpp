#include "tests/plugin/orbit_control/control_test.h"

#include <cmath>
#include <limits>

namespace Meridax::VisualControls::Rotavue {
namespace {

constexpr std::int32_t Largest = std::numeric_limits<std::int32_t>::max();

class SubSyncCurve : public ControlTest {
protected:
    SubSyncCurve() {
        describeOrbit("c", {1.0, 2.0, 3.0, 4.0}, {5.0, 6.0, 7.0, 8.0});
        host.description.host.sampleRate = 20.0;
    }

    OrbitCurve read() { return key.readSubSyncCurve(*host.channel("c")); }
};

TEST_F(SubSyncCurve, ShowsATenthOfASecondByRevolutions) {
    key.displayTime = 150.0;
    key.revolutions = 25;
    const OrbitCurve curve = read();
    EXPECT_EQ(curve.points, (std::vector<Point>{{4.0, 8.0}, {3.0, 7.0}})) << "20 Hz * 0.1 s";
    EXPECT_EQ(curve.kind, OrbitKind::Raw) << "it is drawn as a raw one";
    EXPECT_EQ(key.dataExtents.range(), (Range{3.0, 4.0, 7.0, 8.0}));
}

TEST_F(SubSyncCurve, AnyHistoryTypeButTimeShowsATenthOfASecond) {
    key.displayTime = 150.0;
    for (const std::int32_t type : {0, 2, -1}) {
        key.graph.setHistoryType(type);
        EXPECT_EQ(read().points.size(), 2U) << type;
    }
}

TEST_F(SubSyncCurve, ShowsTheDisplayTimeByTime) {
    key.graph.setHistoryType(1);
    key.displayTime = 50.0;
    EXPECT_EQ(read().points, (std::vector<Point>{{4.0, 8.0}}));
}

TEST_F(SubSyncCurve, IsBoundedByItsOwnCountLessOne) {
    key.graph.setHistoryType(1);
    key.displayTime = 1000.0;
    EXPECT_EQ(read().points.size(), 3U);
    channel("c").sampleCount = 0;
    EXPECT_EQ(read().points.size(), 0U);
    channel("c").sampleCount = std::numeric_limits<std::int32_t>::min();
    EXPECT_EQ(read().points.size(), 0U);
    key.displayTime = -1000.0;
    channel("c").sampleCount = 4;
    EXPECT_EQ(read().points.size(), 0U);
}

TEST_F(SubSyncCurve, AppliesItsBearingAndAsksForTheCountFirst) {
    host.description.host.sampleRate = 0.0;
    Lines calls = callsOf([&] { read(); });
    std::erase_if(calls, [](const std::string& line) { return line.starts_with("IHostProp"); });
    calls.resize(4);
    EXPECT_EQ(calls, (Lines{
                         R"(IHostChannel.getProperties[c]() -> "properties")",
                         R"(IHostChannel.getSampleCount[c]() -> 4)",
                         R"(IHostApp.getData() -> "data")",
                         R"(IHostData.getSampleRate() -> 0)",
                     }));
}

/// A channel of array samples, of which one is held: its elements are given by component.
class ArrayCurve : public ControlTest {
protected:
    ArrayCurve() {
        key.graph.setXAngle(90.0);
        describe({1.0, 2.0, 3.0}, {4.0, 5.0, 6.0});
    }

    void describe(std::vector<double> a, std::vector<double> b) {
        described.arraySize = static_cast<std::int32_t>(a.size());
        described.array = true;
        described.sampleCount = 1;
        described.axes = {{{30.0, 10.0}}};
        described.values[4] = std::move(a);
        described.values[5] = std::move(b);
    }

    HostKit::ChannelDescription& described = channel("c");
    const Host::Ref<Host::IHostChannel> ref = host.channel("c");
};

TEST_F(ArrayCurve, ReferenceTakesAllElementsAsPoints) {
    const OrbitCurve curve = key.readReferenceCurve(*ref);
    EXPECT_EQ(curve.points, (std::vector<Point>{{1.0, 4.0}, {2.0, 5.0}, {3.0, 6.0}}));
    EXPECT_TRUE(curve.samples.empty());
    EXPECT_EQ(curve.kind, OrbitKind::Reference);
    EXPECT_EQ(curve.info.axisStart, 30.0);
    EXPECT_EQ(key.dataExtents.range(), (Range{1.0, 3.0, 4.0, 6.0}));
}

TEST_F(ArrayCurve, ReferenceReadsXThenYOfEachElement) {
    EXPECT_EQ(linesOf(callsOf([&] { key.readReferenceCurve(*ref); }), "IHostChannel.getValue"),
              (Lines{
                  "IHostChannel.getValue[c](0, 4) -> 1",
                  "IHostChannel.getValue[c](0, 5) -> 4",
                  "IHostChannel.getValue[c](1, 4) -> 2",
                  "IHostChannel.getValue[c](1, 5) -> 5",
                  "IHostChannel.getValue[c](2, 4) -> 3",
                  "IHostChannel.getValue[c](2, 5) -> 6",
              }));
}

TEST_F(ArrayCurve, AverageCarriesTheAxisValueOfEachElement) {
    const OrbitCurve curve = key.readAverageCurve(*ref);
    EXPECT_EQ(curve.samples,
              (std::vector<CurveSample>{{1.0, 4.0, 30.0}, {2.0, 5.0, 40.0}, {3.0, 6.0, 50.0}}));
    EXPECT_TRUE(curve.points.empty());
    EXPECT_EQ(curve.kind, OrbitKind::Average);
    EXPECT_EQ(key.dataExtents.range(), (Range{1.0, 3.0, 4.0, 6.0})) << "z has no part in it";
}

TEST_F(ArrayCurve, AverageFetchesItsAxisForEveryElement) {
    describe({1.0, 2.0}, {3.0, 4.0});
    Lines calls = callsOf([&] { key.readAverageCurve(*ref); });
    std::erase_if(calls, [](const std::string& line) {
        return !line.starts_with("IHostAxis") && !line.starts_with("IHostChannel.getValue") &&
               !line.starts_with("IHostChannel.getAxes");
    });
    calls.resize(12);
    EXPECT_EQ(calls, (Lines{
                         R"(IHostChannel.getValue[c](0, 4) -> 1)",
                         R"(IHostChannel.getValue[c](0, 5) -> 3)",
                         R"(IHostChannel.getAxes[c]() -> "axes")",
                         R"(IHostAxisList.getAxis(0) -> "axis:0")",
                         R"(IHostAxis.getStart() -> 30)",
                         R"(IHostAxis.getStep() -> 10)",
                         R"(IHostChannel.getValue[c](1, 4) -> 2)",
                         R"(IHostChannel.getValue[c](1, 5) -> 4)",
                         R"(IHostChannel.getAxes[c]() -> "axes")",
                         R"(IHostAxisList.getAxis(0) -> "axis:0")",
                         R"(IHostAxis.getStart() -> 30)",
                         R"(IHostAxis.getStep() -> 10)",
                     }));
}

TEST_F(ArrayCurve, AverageIsNotTurnedByTheTachosAngle) {
    key.graph.setTachoAngle(77.0);
    EXPECT_EQ(key.readAverageCurve(*ref).samples[0], (CurveSample{1.0, 4.0, 30.0}));
}

TEST_F(ArrayCurve, AverageOfOneElementGetsASpan) {
    describe({1.0}, {4.0});
    key.readAverageCurve(*ref);
    EXPECT_EQ(key.dataExtents.range(), (Range{0.9, 1.1, 3.9, 4.1}));
}

TEST_F(ArrayCurve, ReferenceOfOneElementGetsNone) {
    describe({1.0}, {4.0});
    key.readReferenceCurve(*ref);
    EXPECT_EQ(key.dataExtents.range(), (Range{1.0, 1.0, 4.0, 4.0}));
}

TEST_F(ArrayCurve, AverageWithoutAnAxisIsAnInvalidPointer) {
    described.axes->clear();
    expectHostError(0x80004003, [&] { key.readAverageCurve(*ref); });
    described.axes.reset();
    expectHostError(0x80004003, [&] { key.readAverageCurve(*ref); });
    EXPECT_TRUE(key.dataExtents.isUnset());
}

TEST_F(ArrayCurve, ArrayWithoutElementsIsAnEmptyCurve) {
    for (const std::int32_t size : {0, -4}) {
        described.arraySize = size;
        EXPECT_TRUE(key.readReferenceCurve(*ref).points.empty());
        EXPECT_TRUE(key.readAverageCurve(*ref).samples.empty());
        EXPECT_TRUE(key.readHarmonicCurve(*ref).points.empty());
    }
    EXPECT_TRUE(key.dataExtents.isUnset());
}

TEST_F(ArrayCurve, HostileArrayEndsWithTheAllowance) {
    described.arraySize = Largest;
    key.pointAllowance.take(ReadAllowance::Places - 1000);
    EXPECT_EQ(key.readReferenceCurve(*ref).points.size(), 1000U);
    EXPECT_EQ(key.readAverageCurve(*ref).samples.size(), 0U);
    key.pointAllowance.renew();
    key.pointAllowance.take(ReadAllowance::Places - 1000);
    // Two ellipses of 340 steps fit into it; the odd entry at the end stays.
    EXPECT_EQ(key.readHarmonicCurve(*ref).points.size(), 5U);
}

TEST_F(ArrayCurve, ReadsStoredDataAtTheCursor) {
    host.description.host.acquiring = false;
    described.scale = {2.0, 0.0};
    EXPECT_EQ(key.readReferenceCurve(*ref).points[2], (Point{6.0, 12.0}));
}

class HarmonicCurve : public ArrayCurve {};

TEST_F(HarmonicCurve, PairsTheTwoHalvesSideBySideWithoutTurningThem) {
    key.graph.setXAngle(45.0);
    describe({1.0, 2.0, 3.0, 4.0}, {5.0, 6.0, 7.0, 8.0});
    const OrbitCurve curve = key.readHarmonicCurve(*ref);
    EXPECT_EQ(curve.points, (std::vector<Point>{{1.0, 5.0}, {3.0, 7.0}, {2.0, 6.0}, {4.0, 8.0}}));
    EXPECT_EQ(curve.kind, OrbitKind::Harmonic);
}

TEST_F(HarmonicCurve, LastOfAnOddCountIsNeverWritten) {
    EXPECT_EQ(key.readHarmonicCurve(*ref).points,
              (std::vector<Point>{{1.0, 4.0}, {2.0, 5.0}, {0.0, 0.0}}));
    describe({1.0}, {4.0});
    EXPECT_EQ(key.readHarmonicCurve(*ref).points, (std::vector<Point>{{0.0, 0.0}}));
}

TEST_F(HarmonicCurve, AmplitudesBecomePeakValues) {
    describe({1.0, 2.0}, {3.0, 4.0});
    const std::pair<const wchar_t*, double> cases[] = {
        {L"peak", 1.0}, {L"rms", 1.4142135623730951}, {L"peak-peak", 0.5}, {L"other", 1.0}};
    for (const auto& [text, factor] : cases) {
        described.properties[L"Orbit Amplitude"] = text;
        EXPECT_EQ(key.readHarmonicCurve(*ref).points,
                  (std::vector<Point>{{1.0 * factor, 3.0 * factor}, {2.0 * factor, 4.0 * factor}}));
    }
}

TEST_F(HarmonicCurve, ReadsTheAmplitudeThenTheSizeThenTheValues) {
    describe({1.0, 2.0}, {3.0, 4.0});
    Lines calls = callsOf([&] { key.readHarmonicCurve(*ref); });
    EXPECT_EQ(Lines(calls.begin(), calls.begin() + 3),
              (Lines{
                  R"(IHostChannel.getProperties[c]() -> "properties")",
                  R"(IHostProperties.getValue("Orbit Amplitude") -> "")",
                  R"(IHostChannel.getArraySize[c]() -> 2)",
              }));
    EXPECT_EQ(linesOf(calls, "IHostChannel.getValue"), (Lines{
                                                           "IHostChannel.getValue[c](0, 4) -> 1",
                                                           "IHostChannel.getValue[c](0, 5) -> 3",
                                                           "IHostChannel.getValue[c](1, 4) -> 2",
                                                           "IHostChannel.getValue[c](1, 5) -> 4",
                                                       }));
}

double sinOfDegrees(double degrees) {
    return std::sin(degrees * 3.141592653589793 / 180.0);
}

TEST_F(HarmonicCurve, ExtentIsThatOf340StepsOfTheEllipse) {
    // X at 90 degrees and Y at 0: y runs as 2 sin(d + phase), x as 3 sin(d + phase).
    // The Y phasor lies at 0 degrees: it reaches its peak at d = 90 and its trough at d = 270.
    // The X phasor lies at -70 degrees: its peak is at d = 160, and its trough would be at 340, the
    // first step that is left out. The last one, 339, gives 3 sin(269).
    describe({2.0, 3.0 * sinOfDegrees(20.0)}, {0.0, -3.0 * sinOfDegrees(70.0)});
    key.readHarmonicCurve(*ref);
    const Range extents = key.dataExtents.range();
    EXPECT_NEAR(extents.yMax, 2.0, 1e-12);
    EXPECT_NEAR(extents.yMin, -2.0, 1e-12);
    EXPECT_NEAR(extents.xMax, 3.0, 1e-12);
    EXPECT_NEAR(extents.xMin, 3.0 * sinOfDegrees(269.0), 1e-12);
    EXPECT_GT(extents.xMin, -2.9996) << "a step more would reach -3";
}

TEST_F(HarmonicCurve, ExtentIsTurnedByTheSensors) {
    // Both sensors upward: y is the sum of two ellipses in phase, 2 + 3, and x stays 0.
    key.graph.setXAngle(0.0);
    describe({2.0, 3.0}, {0.0, 0.0});
    key.readHarmonicCurve(*ref);
    const Range extents = key.dataExtents.range();
    EXPECT_EQ(extents.xMin, 0.0);
    EXPECT_EQ(extents.xMax, 0.0);
    EXPECT_NEAR(extents.yMax, 5.0, 1e-12);
    EXPECT_NEAR(extents.yMin, -5.0, 1e-12);
}

TEST_F(HarmonicCurve, OrdersAreNotSummed) {
    // Two orders on the Y sensor alone, of 2 and 5: the extent is 5 and not 7.
    describe({2.0, 5.0, 0.0, 0.0}, {0.0, 0.0, 0.0, 0.0});
    key.readHarmonicCurve(*ref);
    EXPECT_NEAR(key.dataExtents.range().yMax, 5.0, 1e-12);
    EXPECT_NEAR(key.dataExtents.range().yMin, -5.0, 1e-12);
}

TEST_F(HarmonicCurve, UnwrittenEntryHasNoPartInTheExtent) {
    describe({0.0, 0.0, 9.0}, {0.0, 0.0, 9.0});
    key.readHarmonicCurve(*ref);
    EXPECT_EQ(key.dataExtents.range(), (Range{0.0, 0.0, 0.0, 0.0}));
}

/// A shaft-centre channel of three stored positions at 0, 1 and 2 s, with the cursor at 1.5 s.
class ShaftCenterCurve : public ControlTest {
protected:
    ShaftCenterCurve() {
        key.graph.setXAngle(90.0);
        host.description.host.acquiring = false;
        host.description.host.currentPosition = {15, 0};
        described.asynchronous = true;
        described.arraySize = 4;
        described.sampleCount = 3;
        described.timestamps = {0.0, 1.0, 2.0};
        // Gap at the Y angle, gap at the X angle, speed, time.
        described.values[0] = {10.0, 1.0, 500.0, 0.25,  //
                               20.0, 2.0, 600.0, 1.25,  //
                               30.0, 3.0, 700.0, 2.25};
    }

    std::vector<CurveSample> read() { return key.readShaftCenterCurve(*ref).samples; }

    HostKit::ChannelDescription& described = channel("c");
    const Host::Ref<Host::IHostChannel> ref = host.channel("c");
};

TEST_F(ShaftCenterCurve, ReachesFromTheCursorToTheOldestWithTheNewestFirst) {
    EXPECT_EQ(read(), (std::vector<CurveSample>{{2.0, 20.0, 600.0}, {1.0, 10.0, 500.0}}));
    EXPECT_EQ(control.sampleCursor, 1);
    EXPECT_EQ(key.dataExtents.range(), (Range{1.0, 2.0, 10.0, 20.0}));
}

TEST_F(ShaftCenterCurve, FirstElementGoesWithTheYAngle) {
    key.graph.setXAngle(0.0);
    key.graph.setYAngle(90.0);
    const CurveSample newest = read()[0];
    EXPECT_NEAR(newest.x, 20.0, 1e-14);
    EXPECT_NEAR(newest.y, 2.0, 1e-14);
}

TEST_F(ShaftCenterCurve, ThirdValueIsSpeedOrTime) {
    for (const std::int32_t type : {1, 7}) {
        key.graph.setDisplayType(type);
        EXPECT_EQ(read()[0].z, 1.25) << type;
    }
    key.graph.setDisplayType(0);
    EXPECT_EQ(read()[0].z, 600.0);
}

TEST_F(ShaftCenterCurve, ReadsTheOldestFirst) {
    const Lines calls = callsOf([&] { read(); });
    EXPECT_EQ(calls.front(), R"(IHostApp.getData() -> "data")");
    EXPECT_EQ(calls[1], R"(IHostData.isWholeDataset() -> false)");
    EXPECT_EQ(linesOf(calls, "IHostChannel.getValue"), (Lines{
                                                           "IHostChannel.getValue[c](0, 0) -> 10",
                                                           "IHostChannel.getValue[c](1, 0) -> 1",
                                                           "IHostChannel.getValue[c](2, 0) -> 500",
                                                           "IHostChannel.getValue[c](4, 0) -> 20",
                                                           "IHostChannel.getValue[c](5, 0) -> 2",
                                                           "IHostChannel.getValue[c](6, 0) -> 600",
                                                       }));
    // Two walks down to index 1: one for the count, one for the cursor.
    EXPECT_EQ(
        linesOf(calls, "IHostChannel.getTimestamp"),
        (Lines{"IHostChannel.getTimestamp[c](2) -> 2", "IHostChannel.getTimestamp[c](1) -> 1",
               "IHostChannel.getTimestamp[c](2) -> 2", "IHostChannel.getTimestamp[c](1) -> 1"}));
}

struct HistoryCount {
    bool whole;
    bool onlyLast;
    std::size_t expected;
};

const HistoryCount HistoryCounts[] = {
    {false, false, 2}, {false, true, 1}, {true, false, 3}, {true, true, 1}};

TEST_F(ShaftCenterCurve, CountsPositionsByDatasetAndSetting) {
    for (const auto& [whole, onlyLast, expected] : HistoryCounts) {
        host.description.host.wholeDataset = whole;
        key.showOnlyLastPosition = onlyLast;
        EXPECT_EQ(read().size(), expected) << whole << onlyLast;
    }
}

TEST_F(ShaftCenterCurve, OnlyLastPositionOfAnEmptyChannelIsNone) {
    key.showOnlyLastPosition = true;
    described.sampleCount = 0;
    EXPECT_TRUE(read().empty());
    described.sampleCount = -3;
    EXPECT_TRUE(read().empty());
}

TEST_F(ShaftCenterCurve, SinglePositionGetsASpan) {
    key.showOnlyLastPosition = true;
    EXPECT_EQ(read(), (std::vector<CurveSample>{{2.0, 20.0, 600.0}}));
    EXPECT_EQ(key.dataExtents.range(), (Range{1.9, 2.1, 19.9, 20.1}));
}

TEST_F(ShaftCenterCurve, WholeDatasetBeyondTheCursorEndsAtTheOrigin) {
    host.description.host.wholeDataset = true;
    EXPECT_EQ(read(),
              (std::vector<CurveSample>{{2.0, 20.0, 600.0}, {1.0, 10.0, 500.0}, {0.0, 0.0, 0.0}}));
}

TEST_F(ShaftCenterCurve, CursorBeforeTheFirstStampShowsNothing) {
    host.description.host.currentPosition = {0, 0};
    EXPECT_TRUE(read().empty());
    EXPECT_EQ(control.sampleCursor, -1);
    EXPECT_TRUE(key.dataExtents.isUnset());
}

TEST_F(ShaftCenterCurve, EmptyChannelGivesOnePoint) {
    // The cursor search answers 0 for an empty channel, and 0 + 1 is one position.
    described.sampleCount = 0;
    described.values.clear();
    EXPECT_EQ(read(), (std::vector<CurveSample>{{0.0, 0.0, 0.0}}));
}

TEST_F(ShaftCenterCurve, EndsWithItsAllowanceAtTheNewest) {
    host.description.host.wholeDataset = true;
    described.sampleCount = Largest;
    control.sampleCursor = 1;
    key.pointAllowance.take(ReadAllowance::Places - 2);
    key.stampAllowance.take(ReadAllowance::Places);
    EXPECT_EQ(read().size(), 2U);
}

TEST_F(ShaftCenterCurve, OneHeldSampleGetsASpanOfItsOwn) {
    key.showOnlyLastPosition = true;
    described.sampleCount = 1;
    EXPECT_EQ(read(), (std::vector<CurveSample>{{1.0, 10.0, 500.0}}));
    EXPECT_EQ(key.dataExtents.range(), (Range{0.9, 1.1, 9.9, 10.1}));
}

TEST_F(ShaftCenterCurve, IsCountedByItsStampsDuringAMeasurementToo) {
    host.description.host.acquiring = true;
    // Two stamps lie before the cursor; the two positions are the newest of the ring.
    EXPECT_EQ(read(), (std::vector<CurveSample>{{3.0, 30.0, 700.0}, {2.0, 20.0, 600.0}}));
}

TEST_F(ShaftCenterCurve, IsTheOnlyOneThatStartsASearch) {
    control.sampleCursor = 5;
    host.description.host.acquiring = true;
    key.readReferenceCurve(*ref);
    key.readHarmonicCurve(*ref);
    key.readSubSyncCurve(*ref);
    assignGroup({"c"});
    key.readRawCurve(*group(0));
    described.axes = {{{0.0, 1.0}}};
    key.readAverageCurve(*ref);
    EXPECT_EQ(control.sampleCursor, 5);
    read();
    EXPECT_EQ(control.sampleCursor, -1);
}

TEST_F(ShaftCenterCurve, IsReadFromTheRingDuringAMeasurement) {
    host.description.host.acquiring = true;
    host.description.host.wholeDataset = true;
    EXPECT_EQ(read(), (std::vector<CurveSample>{
                          {3.0, 30.0, 700.0}, {2.0, 20.0, 600.0}, {1.0, 10.0, 500.0}}));
    EXPECT_EQ(control.sampleCursor, -1) << "made ready for a search that nobody needed";
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
