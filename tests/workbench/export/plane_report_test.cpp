#include "workbench/export/plane_report.h"

#include "tests/workbench/bench/bench_fixture.h"

namespace Rotavue::Workbench {
namespace {

class PlaneReportTest : public BenchTest {
protected:
    bool says(const std::string& words) {
        const PictureOrder page{.format = PictureFormat::Svg, .width = 794, .height = 1123};
        return paintPlaneReport(bench_, page, true).find(words) != std::string::npos;
    }
};

TEST_F(PlaneReportTest, SaysWhetherRunOutIsCompensated) {
    Plane& plane = add();
    const std::string name = plane.name();
    EXPECT_TRUE(says(name + ": run-out not compensated"));
    bench_.showCompensated(plane, still(plane));
    EXPECT_TRUE(says(name + ": run-out compensated: 1X, 2X vector"));
    EXPECT_FALSE(says("run-out not compensated"));
}

TEST_F(PlaneReportTest, SaysOfEachPlaneWhetherItsRunOutIsCompensated) {
    Plane& first = add();
    add();
    EXPECT_TRUE(says("All planes: run-out not compensated"));
    bench_.showCompensated(first, still(first));
    EXPECT_TRUE(says("1X, 2X vector, "));
    EXPECT_TRUE(says(": run-out not compensated"));
}

}  // namespace
}  // namespace Rotavue::Workbench
