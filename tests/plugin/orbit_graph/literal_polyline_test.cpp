#include "tests/plugin/orbit_graph/literal_polyline.h"

#include "tests/plugin/orbit_graph/graph_fixture.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cstdint>
#include <limits>
#include <random>

namespace Meridax::VisualControls::Rotavue {
namespace {

// Random plots and curves, the same in every run. The graph and the literal arithmetic draw them on
// canvases of their own.
class LiteralPolyline : public testing::Test {
protected:
    double between(double lower, double upper) {
        return std::uniform_real_distribution<double>(lower, upper)(random_);
    }

    /// A number that a sample or a limit may be, mostly a plain one.
    double anyNumber() {
        constexpr double Largest = std::numeric_limits<double>::max();
        constexpr std::array<double, 8> Odd{0.0,
                                            -0.0,
                                            std::numeric_limits<double>::infinity(),
                                            -std::numeric_limits<double>::infinity(),
                                            std::numeric_limits<double>::quiet_NaN(),
                                            std::numeric_limits<double>::denorm_min(),
                                            Largest,
                                            -Largest};
        const double choice = between(0, 20);
        return choice < Odd.size() ? Odd[static_cast<std::size_t>(choice)] : between(-2, 2);
    }

    std::vector<OrbitCurve> curves(std::size_t size, bool odd) {
        std::vector<OrbitCurve> result;
        for (int k = 0; k < 3; ++k) {
            OrbitCurve curve = curveOf(k == 1 ? OrbitKind::Reference : OrbitKind::Raw,
                                       static_cast<Color>(k), std::to_wstring(k));
            for (std::size_t i = 0; i < size; ++i) {
                curve.points.push_back(odd ? Point{anyNumber(), anyNumber()}
                                           : Point{between(-1.5, 1.5), between(-1.5, 1.5)});
            }
            result.push_back(curve);
        }
        return result;
    }

    void expectAgreement(LaidOutGraph& plot, const std::vector<OrbitCurve>& curves) {
        plot.graph.setPointer({between(-50, 350), between(-50, 350)});
        RecordingCanvas literal;
        const NearestSample expected = drawLiterally(literal.ref(), plot.graph.state(), curves);
        ASSERT_EQ(plot.traces(curves), literal.taken());
        const NearestSample& found = plot.graph.nearest();
        EXPECT_EQ(bits(found), bits(expected));
        EXPECT_EQ(found.info, expected.info);
        EXPECT_EQ(found.kind, expected.kind);
        EXPECT_EQ(found.found, expected.found);
    }

private:
    static std::array<std::uint64_t, 5> bits(const NearestSample& sample) {
        return {std::bit_cast<std::uint64_t>(sample.x), std::bit_cast<std::uint64_t>(sample.y),
                std::bit_cast<std::uint64_t>(sample.position.x),
                std::bit_cast<std::uint64_t>(sample.position.y),
                std::bit_cast<std::uint64_t>(sample.distance)};
    }

    std::mt19937_64 random_{20240229};
};

TEST_F(LiteralPolyline, AgreesInPlotsOfAnySizeAndShape) {
    for (int i = 0; i < 200; ++i) {
        LaidOutGraph plot(between(1, 2000), between(1, 2000));
        expectAgreement(plot, curves(200, false));
    }
}

TEST_F(LiteralPolyline, AgreesInPlotsThatAreTurnedOver) {
    for (int i = 0; i < 50; ++i) {
        LaidOutGraph plot(between(1, 119), between(1, 300));
        expectAgreement(plot, curves(200, false));
    }
}

TEST_F(LiteralPolyline, AgreesWithAnyLimits) {
    for (int i = 0; i < 200; ++i) {
        LaidOutGraph plot(300, 400);
        plot.setLimits({between(-2, 0.5), between(-0.5, 2), between(-2, 0.5), between(-0.5, 2)});
        expectAgreement(plot, curves(150, false));
    }
}

TEST_F(LiteralPolyline, AgreesWithHostileLimitsAndSamples) {
    for (int i = 0; i < 500; ++i) {
        LaidOutGraph plot;
        plot.setLimits({anyNumber(), anyNumber(), anyNumber(), anyNumber()});
        expectAgreement(plot, curves(100, true));
    }
}

TEST_F(LiteralPolyline, AgreesInAnyZoomAndBeyondTheGuard) {
    for (int i = 0; i < 50; ++i) {
        LaidOutGraph plot(between(10000, 90000), between(10000, 90000));
        plot.graph.setZoom(between(0.1, 10));
        expectAgreement(plot, curves(200, false));
    }
}

TEST_F(LiteralPolyline, AgreesWherePointsAreEquallyNear) {
    LaidOutGraph plot;
    std::vector<OrbitCurve> ties(2);
    for (OrbitCurve& curve : ties) {
        for (int degree = 0; degree < 3600; ++degree)
            curve.points.push_back(
                {std::cos(radians(degree)) * 0.5, std::sin(radians(degree)) * 0.5});
    }
    ties[1].info.name = L"second";
    plot.graph.setPointer({150, 150});
    RecordingCanvas literal;
    const NearestSample expected = drawLiterally(literal.ref(), plot.graph.state(), ties);
    EXPECT_EQ(plot.traces(ties), literal.taken());
    EXPECT_EQ(plot.graph.nearest().x, expected.x);
    EXPECT_EQ(plot.graph.nearest().y, expected.y);
    EXPECT_EQ(plot.graph.nearest().info, expected.info);
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
