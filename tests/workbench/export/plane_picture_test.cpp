#include "workbench/export/plane_picture.h"

#include "tests/workbench/bench/bench_fixture.h"
#include "workbench/paint/painting_studio.h"
#include "workbench/scene/scheme_colors.h"

#include <algorithm>
#include <future>
#include <vector>

namespace Rotavue::Workbench {

namespace {

class PlanePictureTest : public BenchTest {
protected:
    std::string picture(Plane& plane) {
        return paint(PlanePicture(plane, bench_).drawn({.format = PictureFormat::Svg}, true));
    }
};

TEST_F(PlanePictureTest, IsDarkOnLightWhateverTheScreenIs) {
    Plane& plane = add();
    bench_.setScheme(LightNumber);
    const std::string light = picture(plane);
    bench_.setScheme(DarkNumber);
    EXPECT_EQ(picture(plane), light);
}

TEST_F(PlanePictureTest, LeavesTheScreensColoursAndListenerAsTheyWere) {
    struct Listener : HostKit::HostListener {
        void invalidated() override { ++count; }
        int count = 0;
    } listener;
    Plane& plane = add();
    bench_.setScheme(DarkNumber);
    plane.host().listen(&listener);
    const std::uint32_t color = plane.host().description.channels["orbit1"].color;
    picture(plane);
    EXPECT_EQ(plane.host().description.channels["orbit1"].color, color);
    EXPECT_EQ(plane.host().listener(), &listener);
    EXPECT_EQ(listener.count, 0);
    plane.host().listen(nullptr);
}

TEST_F(PlanePictureTest, HasNoReadoutOfThePointerOnTheScreen) {
    Plane& plane = add();
    const std::string before = picture(plane);
    plane.control().draw(plane.host().canvas(), 600, 600, DarkNumber);
    plane.control().enterPointer();
    plane.control().movePointer(400, 300);
    EXPECT_EQ(picture(plane), before);
}

TEST_F(PlanePictureTest, WhatIsDrawnIsPaintedOnAnyThreadWithoutThePlane) {
    for (const auto format : {PictureFormat::Png, PictureFormat::Svg, PictureFormat::Pdf}) {
        const DrawnPicture drawn =
            PlanePicture(add(), bench_).drawn({.format = format, .scale = 1.5}, true);
        const std::string here = paint(drawn);
        bench_.showPlanes({}, 0.0);
        EXPECT_EQ(std::async(std::launch::async, [&] { return paint(drawn); }).get(), here);
    }
}

TEST_F(PlanePictureTest, PaintingEndsAtTheNextWordWhenItIsCancelled) {
    const DrawnPicture drawn = PlanePicture(add(), bench_).drawn({}, true);
    std::vector<double> parts;
    const auto paintWhile = [&](std::size_t words) {
        parts.clear();
        paint(drawn, ReadingProgress([&](double part) {
                  parts.push_back(part);
                  return parts.size() < words;
              }));
    };
    paintWhile(1000);
    EXPECT_TRUE(std::is_sorted(parts.begin(), parts.end()));
    const std::size_t words = parts.size();
    EXPECT_GE(words, 10U);  // 600 rows, 64 a word, and one or more of the orbit
    for (std::size_t i = 1; i <= words; ++i) {
        EXPECT_THROW(paintWhile(i), ReadingCancelled);
        EXPECT_EQ(parts.size(), i);
    }
}

TEST_F(PlanePictureTest, LimitIsTheScreensAndCanBeFixed) {
    // X reaches 40, Y 30; the automatic scale leaves a tenth free.
    Plane& plane = add();
    PlanePicture picture(plane, bench_);
    EXPECT_NEAR(picture.limit(), 44.0, 0.1);
    EXPECT_NEAR(picture.extent(), 40.0, 0.1);
    picture.setLimit(60.0);
    EXPECT_EQ(picture.limit(), 60.0);
    EXPECT_EQ(plane.settings().count(L"useManualMagnitudeLimits") == 0 ||
                  plane.settings().at(L"useManualMagnitudeLimits") == L"False",
              true);
}

TEST_F(PlanePictureTest, HasAsManyTicksAsThereIsRoomFor) {
    Plane& plane = add();
    Settings settings = plane.settings();
    settings[L"tickCount"] = L"5";
    plane.load(settings);
    PlanePicture picture(plane, bench_);
    picture.setLimit(60.0);
    const auto division = [&](int side) -> std::string {
        picture.fit({.width = side, .height = side, .textHeight = 14});
        const auto facts = picture.header().facts;
        const auto found = std::find_if(facts.begin(), facts.end(), [](const std::string& fact) {
            return fact.ends_with("/div");
        });
        return found == facts.end() ? "" : *found;
    };
    // "-60.0" needs 70 pixels from tick to tick; the plot is 120 pixels smaller than its area.
    EXPECT_EQ(division(800), "20 um/div");  // five ticks: 680 / 6 pixels
    EXPECT_EQ(division(400), "30 um/div");  // three: 280 / 4
    EXPECT_EQ(division(300), "60 um/div");  // one: 180 / 2
}

TEST_F(PlanePictureTest, StripTellsWhatIsShown) {
    Recording recording = rotor();
    recording.machine.machine = "Kit";
    recording.machine.point = "Bearing 1";
    recording.machine.xAngle = 45;
    recording.machine.yAngle = 315;
    recording.machine.rotation = Rotation::CounterClockwise;
    Plane& plane = add(recording);
    PlanePicture picture(plane, bench_);
    picture.setLimit(60.0);
    const PictureHeader header = picture.header();
    EXPECT_EQ(header.title, "Kit, Bearing 1");
    const auto says = [&](const std::string& fact) {
        return std::find(header.facts.begin(), header.facts.end(), fact) != header.facts.end();
    };
    EXPECT_TRUE(says("direct, 8 turns"));
    EXPECT_TRUE(says("3000 rpm"));
    EXPECT_TRUE(says("X 45\u00b0 R, Y 45\u00b0 L"));
    EXPECT_TRUE(says("rotation CCW"));
    EXPECT_FALSE(says("run-out compensated: waveform"));
}

TEST_F(PlanePictureTest, StripSaysThatRunOutIsTakenAway) {
    Plane& plane = add();
    bench_.showCompensated(plane, still(plane));
    const auto facts = [&] { return PlanePicture(plane, bench_).header().facts; };
    const auto on = facts();
    EXPECT_EQ(std::count(on.begin(), on.end(), "run-out compensated: 1X, 2X vector"), 1);
    bench_.showOriginal(plane);
    const auto off = facts();
    EXPECT_EQ(std::count(off.begin(), off.end(), "run-out compensated: 1X, 2X vector"), 0);
}

}  // namespace
}  // namespace Rotavue::Workbench
