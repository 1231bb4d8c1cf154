#include "tests/plugin/orbit_control/control_test.h"

#include <bit>
#include <cmath>
#include <limits>
#include <random>

namespace Meridax::VisualControls::Rotavue {
namespace {

class RawCurve : public ControlTest {
protected:
    RawCurve() {
        key.graph.setHistoryType(1);
        host.description.host.sampleRate = 1000.0;
        key.displayTime = 3.0;
        HostKit::ChannelDescription& orbit =
            describeOrbit("orbit", {1.0, 2.0, 3.0, 4.0}, {5.0, -6.0, 7.0, 8.0});
        orbit.name = L"Shaft";
        orbit.unit = L"um";
    }

    OrbitCurve read(std::vector<HostKit::ChannelItem> channels) {
        host.description.assigned.groups = {{std::move(channels), {}}};
        return key.readRawCurve(*group(0));
    }
};

TEST_F(RawCurve, HoldsTheNewestSampleFirst) {
    const OrbitCurve curve = read({"orbit"});
    EXPECT_EQ(curve.points, (std::vector<Point>{{4.0, 8.0}, {3.0, 7.0}, {2.0, -6.0}}));
    EXPECT_TRUE(curve.samples.empty());
    EXPECT_EQ(curve.kind, OrbitKind::Raw);
    EXPECT_EQ(curve.info.name, L"Shaft");
    EXPECT_EQ(curve.info.unit, L"um");
    EXPECT_EQ(key.dataExtents.range(), (Range{2.0, 4.0, -6.0, 8.0}));
}

TEST_F(RawCurve, NamesAndUnitsEndWhereTheAllowanceOfTheFrameIsUsedUp) {
    channel("orbit").unit = std::wstring(3'000'000, L'u');
    channel("orbit").name = std::wstring(5'000'000, L'n');
    ASSERT_TRUE(key.checkBearingConfig());
    EXPECT_EQ(read({"orbit"}).info.name.size(), 5'000'000U);
    const OrbitCurve second = read({"orbit"});  // 2,000,000 characters are left
    EXPECT_EQ(second.info.unit.size(), 2'000'000U);
    EXPECT_EQ(second.info.name, L"");
    EXPECT_LT(second.info.unit.capacity(), 3'000'000U) << "nor does it take memory";
    EXPECT_LT(second.info.name.capacity(), 100U);
    ASSERT_TRUE(key.checkBearingConfig());
    EXPECT_EQ(read({"orbit"}).info.name.size(), 5'000'000U) << "each frame has its own";
}

TEST_F(RawCurve, IsTurnedByTheBearingOfItsOwnChannel) {
    channel("orbit").properties = {{L"Orbit Y Angle", L"90"}};
    key.displayTime = 1.0;
    const Point point = read({"orbit"}).points.at(0);
    EXPECT_NEAR(point.x, 8.0, 1e-14) << "Y to the right";
    EXPECT_NEAR(point.y, 4.0, 1e-14) << "X up";
}

TEST_F(RawCurve, OnePointIsFetchedInThisOrder) {
    key.displayTime = 1.0;
    describeTacho("tacho", {0.0, 0.0});
    host.description.assigned.groups = {{{"orbit", "tacho"}, {}}};
    Lines calls = callsOf([&] { key.readRawCurve(*group(0)); });
    std::erase_if(calls, [](const std::string& line) {
        return line.starts_with("IHostProperties") || line.starts_with("IHostApp.getData");
    });
    EXPECT_EQ(calls, (Lines{
                         R"(IHostChannelList.getItem[0](0) -> "channel:orbit")",
                         R"(IHostChannel.getProperties[orbit]() -> "properties")",
                         R"(IHostChannel.getStorageKind[orbit]() -> 0)",
                         R"(IHostChannelList.getCount[0]() -> 2)",
                         R"(IHostChannelList.getItem[0](1) -> "channel:tacho")",
                         R"(IHostData.getSampleRate() -> 1000)",
                         R"(IHostChannel.getSampleCount[tacho]() -> 2)",
                         R"(IHostApp.isAcquiring() -> true)",
                         R"(IHostChannel.isAsynchronous[orbit]() -> false)",
                         R"(IHostChannel.getSampleCounter[orbit]() -> 0)",
                         R"(IHostData.getAcquiredSampleCount() -> 0)",
                         R"(IHostChannel.getRateDivider[orbit]() -> 1)",
                         R"(IHostChannel.getWritePosition[orbit]() -> 0)",
                         R"(IHostChannel.getBufferSize[orbit]() -> 4)",
                         R"(IHostChannel.getSampleCount[orbit]() -> 4)",
                         R"(IHostChannel.getArraySize[orbit]() -> 1)",
                         R"(IHostChannel.getValue[orbit](3, 4) -> 4)",
                         R"(IHostApp.isAcquiring() -> true)",
                         R"(IHostChannel.isAsynchronous[orbit]() -> false)",
                         R"(IHostChannel.getSampleCounter[orbit]() -> 0)",
                         R"(IHostData.getAcquiredSampleCount() -> 0)",
                         R"(IHostChannel.getRateDivider[orbit]() -> 1)",
                         R"(IHostChannel.getWritePosition[orbit]() -> 0)",
                         R"(IHostChannel.getBufferSize[orbit]() -> 4)",
                         R"(IHostChannel.getSampleCount[orbit]() -> 4)",
                         R"(IHostChannel.getArraySize[orbit]() -> 1)",
                         R"(IHostChannel.getValue[orbit](3, 5) -> 8)",
                         R"(IHostChannel.getColor[orbit]() -> 0)",
                         R"(IHostChannel.isArray[orbit]() -> false)",
                         R"(IHostChannel.getUnit[orbit]() -> "um")",
                         R"(IHostChannel.getName[orbit]() -> "Shaft")",
                         R"(IHostChannel.getDisplayValue[orbit]() -> 0)",
                     }));
}

TEST_F(RawCurve, ChannelWithoutStoredDataIsReadDuringAMeasurementOnly) {
    channel("orbit").storageKind = 1;
    EXPECT_EQ(read({"orbit"}).points.size(), 3U);
    host.description.host.acquiring = false;
    const Lines calls = callsOf([&] {
        const OrbitCurve curve = read({"orbit"});
        EXPECT_TRUE(curve.points.empty());
        EXPECT_EQ(curve.info.name, L"Shaft");
    });
    EXPECT_TRUE(linesOf(calls, "IHostChannelList.getCount").empty()) << "nor is its tacho sought";
    channel("orbit").storageKind = 0;
    channel("orbit").sampleRate = 1000.0;
    EXPECT_EQ(read({"orbit"}).points.size(), 3U);
}

TEST_F(RawCurve, OnlyTheSecondOfExactlyTwoIsATacho) {
    describeTacho("tacho", {0.0, 0.0, 0.0});
    EXPECT_EQ(read({"orbit", "tacho"}).points.size(), 2U) << "bounded by the tacho's count less 1";
    EXPECT_EQ(read({"orbit", "tacho", "third"}).points.size(), 3U);
    EXPECT_EQ(read({"orbit", std::nullopt}).points.size(), 3U);
}

TEST_F(RawCurve, IsCutOutByRevolutions) {
    // Newest first 10, 350, 340, 330: the mark stands at 1, and the buffer ends at 4.
    describeTacho("tacho", {330.0, 340.0, 350.0, 10.0});
    key.graph.setHistoryType(0);
    EXPECT_EQ(read({"orbit", "tacho"}).points,
              (std::vector<Point>{{3.0, 7.0}, {2.0, -6.0}, {1.0, 5.0}}));
}

TEST_F(RawCurve, ByRevolutionsWithoutATachoIsEmpty) {
    key.graph.setHistoryType(0);
    EXPECT_TRUE(read({"orbit"}).points.empty());
    EXPECT_TRUE(key.dataExtents.isUnset());
    describeTacho("tacho", {0.0, 0.0, 0.0, 0.0});
    EXPECT_TRUE(read({"orbit", "tacho"}).points.empty());
}

TEST_F(RawCurve, WindowBeyondTheDataEndsAtTheOrigin) {
    channel("orbit").bufferSize = 10;
    key.displayTime = 10.0;
    const OrbitCurve curve = read({"orbit"});
    ASSERT_EQ(curve.points.size(), 10U);
    EXPECT_EQ(curve.points[0], (Point{0.0, 0.0})) << "place 9 is beyond the count";
    EXPECT_EQ(curve.points[9], (Point{1.0, 5.0}));
}

TEST_F(RawCurve, NullOrbitChannelIsAnInvalidPointer) {
    host.description.assigned.groups = {{{std::nullopt, "tacho"}, {}}};
    expectHostError(0x80004003, [&] { key.readRawCurve(*group(0)); });
}

TEST_F(RawCurve, StampedGroupOnStoredDataReadsWithTheCursorThatIsLeft) {
    host.description.host.acquiring = false;
    channel("orbit").asynchronous = true;
    control.sampleCursor = 1;
    EXPECT_EQ(read({"orbit"}).points, (std::vector<Point>{{2.0, -6.0}, {1.0, 5.0}, {0.0, 0.0}}));
    EXPECT_EQ(control.sampleCursor, 1);
}

TEST_F(RawCurve, EndsWithItsAllowance) {
    key.displayTime = 2e9;  // that many samples, and no tacho to bound them
    key.pointAllowance.take(ReadAllowance::Places - 7);
    EXPECT_EQ(read({"orbit"}).points.size(), 7U);
    EXPECT_EQ(read({"orbit"}).points.size(), 0U);
}

TEST_F(RawCurve, FailureInTheMiddleLeavesTheExtentsAlone) {
    host.fail(HostKit::operation("IHostChannel.getValue"), 3);
    expectHostError(0x80004005, [&] { read({"orbit"}); });
    EXPECT_TRUE(key.dataExtents.isUnset());
    EXPECT_EQ(key.graph.xAngle(), 90.0) << "the bearing had been applied";
}

TEST_F(RawCurve, FailureAtTheNameComesAfterTheExtents) {
    host.fail(HostKit::operation("IHostChannel.getName"));
    expectHostError(0x80004005, [&] { read({"orbit"}); });
    EXPECT_FALSE(key.dataExtents.isUnset());
}

struct Clearance {
    const char* what;
    bool drawn;
    double radiusX;
    double radiusY;
    double reach;
};

const Clearance Clearances[] = {
    {"not drawn", false, 5.0, 3.0, 1.0},
    {"the greater one counts on both axes", true, 5.0, 3.0, 5.0},
    {"the greater one counts on both axes", true, 3.0, 7.0, 7.0},
    {"inside the data", true, 0.5, 0.25, 1.0},
    {"of 0", true, 0.0, 0.0, 1.0},
    {"one of them negative", true, -1.0, 9.0, 1.0},
    {"one of them negative", true, 9.0, -1.0, 1.0},
};

TEST_F(RawCurve, ClearanceWidensTheExtents) {
    for (const Clearance& clearance : Clearances) {
        key.graph.setDrawClearance(clearance.drawn);
        key.graph.setClearanceRadiusX(clearance.radiusX);
        key.graph.setClearanceRadiusY(clearance.radiusY);
        Extents curve;
        curve.takeIn(-1.0, -1.0);
        curve.takeIn(1.0, 1.0);
        key.dataExtents = {};
        key.foldExtents(curve);
        EXPECT_EQ(key.dataExtents.range(),
                  (Range{-clearance.reach, clearance.reach, -clearance.reach, clearance.reach}))
            << clearance.what;
    }
}

TEST_F(RawCurve, ClearanceOfZeroTakesTheOriginIn) {
    key.graph.setDrawClearance(true);
    read({"orbit"});
    EXPECT_EQ(key.dataExtents.range(), (Range{0.0, 4.0, -6.0, 8.0})) << "x alone runs from 2 to 4";
}

TEST_F(RawCurve, ClearanceOfOneZeroIsThatOfTheOther) {
    key.graph.setDrawClearance(true);
    channel("orbit").properties[L"Orbit Clearance Height"] = L"20";
    read({"orbit"});
    EXPECT_EQ(key.dataExtents.range(), (Range{-10.0, 10.0, -10.0, 10.0}));
}

TEST_F(RawCurve, ClearanceStandsWithoutAnyPoint) {
    key.graph.setDrawClearance(true);
    key.displayTime = 0.0;
    channel("orbit").properties[L"Orbit Clearance Width"] = L"10";
    channel("orbit").properties[L"Orbit Clearance Height"] = L"6";
    EXPECT_TRUE(read({"orbit"}).points.empty());
    EXPECT_EQ(key.dataExtents.range(), (Range{-5.0, 5.0, -5.0, 5.0}));
}

/// The curve against the formulas written out for each point, on random data.
class RawCurveArithmetic : public ControlTest, public testing::WithParamInterface<unsigned> {
protected:
    static constexpr int Count = 500;

    RawCurveArithmetic() {
        key.graph.setHistoryType(1);
        host.description.host.sampleRate = 1000.0;
        key.displayTime = Count;
        for (int i = 0; i < Count; ++i) {
            x.push_back(value(random));
            y.push_back(value(random));
        }
        const std::vector<double> storedX(x.rbegin(), x.rend());
        const std::vector<double> storedY(y.rbegin(), y.rend());
        describeOrbit("orbit", storedX, storedY).properties = {
            {L"Orbit X Angle", std::to_wstring(xAngle)},
            {L"Orbit Y Angle", std::to_wstring(yAngle)}};
        assignGroup({"orbit"});
    }

    static double rad(float angle) { return double{angle} * 3.141592653589793 / 180.0; }

    static std::uint64_t bits(double number) { return std::bit_cast<std::uint64_t>(number); }

    std::mt19937 random{GetParam()};
    std::uniform_real_distribution<double> value{-1000.0, 1000.0};
    std::vector<double> x;  // newest first
    std::vector<double> y;
    // Six decimals of a text hold a quarter of a degree exactly.
    float xAngle = static_cast<float>(random() % 1440) / 4.0F;
    float yAngle = static_cast<float>(random() % 1440) / 4.0F;
};

TEST_P(RawCurveArithmetic, EqualsTheFormulasToTheLastBit) {
    const OrbitCurve curve = key.readRawCurve(*group(0));
    ASSERT_EQ(curve.points.size(), std::size_t{Count});
    double minX = std::numeric_limits<double>::max();
    double maxX = -minX;
    for (std::size_t i = 0; i < Count; ++i) {
        const double px = x[i] * std::sin(rad(xAngle)) + y[i] * std::sin(rad(yAngle));
        const double py = x[i] * std::cos(rad(xAngle)) + y[i] * std::cos(rad(yAngle));
        ASSERT_EQ(bits(curve.points[i].x), bits(px)) << i;
        ASSERT_EQ(bits(curve.points[i].y), bits(py)) << i;
        minX = std::min(minX, px);
        maxX = std::max(maxX, px);
    }
    EXPECT_EQ(key.dataExtents.range().xMin, minX);
    EXPECT_EQ(key.dataExtents.range().xMax, maxX);
}

TEST_P(RawCurveArithmetic, IsTheSameOnStoredData) {
    const OrbitCurve running = key.readRawCurve(*group(0));
    host.description.host.acquiring = false;
    host.description.host.currentPosition = {0, Count - 1};
    channel("orbit").sampleRate = 1000.0;
    const OrbitCurve stored = key.readRawCurve(*group(0));
    EXPECT_EQ(stored.points, running.points);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RawCurveArithmetic, testing::Range(1U, 21U));

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
