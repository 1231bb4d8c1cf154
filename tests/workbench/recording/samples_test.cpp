#include "workbench/recording/samples.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace Rotavue::Workbench {
namespace {

using Values = std::vector<double>;

constexpr double Gap = std::numeric_limits<double>::quiet_NaN();

Samples narrow(std::vector<float> values) {
    return Samples(std::move(values));
}

/// Each form with the numbers 0, 90, 180, 270, 0, 90: a turn of four samples.
std::vector<Samples> forms() {
    std::vector<Samples> all;
    all.emplace_back(Values{0, 90, 180, 270, 0, 90});
    all.push_back(narrow({0, 90, 180, 270, 0, 90}));
    all.emplace_back(PulseAngle({0.0, 4.0}, 1, 6));
    return all;
}

TEST(Samples, GiveTheSameNumbersInEachForm) {
    for (const Samples& samples : forms()) {
        EXPECT_EQ(samples.size(), 6U);
        EXPECT_EQ(samples.front(), 0.0);
        EXPECT_EQ(samples[3], 270.0);
        EXPECT_EQ(samples.back(), 90.0);
        EXPECT_EQ(Values(samples.begin(), samples.end()), (Values{0, 90, 180, 270, 0, 90}));
        EXPECT_EQ(samples, forms().front());
    }
    EXPECT_TRUE(Samples().empty());
    EXPECT_FALSE(forms()[1] == Samples({0.0, 90.0}));
}

TEST(Samples, AreCopiedFromAnyPlaceOn) {
    for (const Samples& samples : forms()) {
        Values part(3);
        samples.copyTo(2, part);
        EXPECT_EQ(part, (Values{180, 270, 0}));
    }
}

// 16 bits: 12345 / 32768 and so on; single precision holds them, and so a calibrated one is that of
// a double to the last bit.
TEST(Samples, ACalibrationOfNarrowOnesRoundsAsThatOfDoubles) {
    Values raw;
    for (int i = -32768; i < 32768; i += 7)
        raw.push_back(i / 32768.0);
    Samples wide(raw);
    Samples narrow(std::vector<float>(raw.begin(), raw.end()));
    for (Samples* samples : {&wide, &narrow}) {
        samples->calibrate(-0.3137, 0.00787);
        samples->lower(11.7);
    }
    for (std::size_t i = 0; i < raw.size(); ++i) {
        ASSERT_EQ(wide[i], (raw[i] - -0.3137) / 0.00787 - 11.7) << i;
        ASSERT_EQ(narrow[i], wide[i]) << i;
    }
    EXPECT_EQ(narrow.wide(), nullptr);
}

TEST(Samples, AreCalibratedAsOftenAsOneLikes) {
    for (Samples samples : {Samples({1.0, 3.0}), narrow({1.0F, 3.0F})}) {
        samples.calibrate(1.0, 2.0);  // 0, 1
        samples.calibrate(3.0, 0.5);  // -6, -4
        samples.lower(-1.0);
        samples.lower(-2.0);
        EXPECT_EQ(samples, Samples({-3.0, -1.0}));
    }
}

TEST(Samples, KeepTheirGaps) {
    Samples samples = narrow({1.0F, std::numeric_limits<float>::quiet_NaN()});
    samples.calibrate(0.5, 2.0);
    EXPECT_EQ(samples[0], 0.25);
    EXPECT_TRUE(std::isnan(samples[1]));
}

// A narrow sample of 3 stands for (3 - 1) / 0.25 = 8 and, 2 lower, is 6; that is 2.5: a number that
// single precision holds. What it does not hold is rounded by less than 2^-24 of it.
TEST(Samples, OneIsLoweredInTheUnitOfAll) {
    for (Samples samples : {Samples({3.0, 5.0}), narrow({3.0F, 5.0F})}) {
        samples.calibrate(1.0, 0.25);
        samples.lowerOne(0, 2.0);
        EXPECT_EQ(samples, Samples({6.0, 16.0}));
    }
    Samples rounded = narrow({1.0F});
    rounded.lowerOne(0, 0.1);
    EXPECT_NEAR(rounded[0], 0.9, 0.9 / (1 << 24));
    EXPECT_EQ(rounded.wide(), nullptr);
}

TEST(Samples, BecomeDoublesToBeChanged) {
    for (Samples samples : forms()) {
        samples.edit()[1] = 91.5;
        samples.edit().push_back(180.0);
        EXPECT_EQ(samples, Samples({0, 91.5, 180, 270, 0, 90, 180}));
    }
}

TEST(SampleView, ShowsAPartOfEachForm) {
    for (const Samples& samples : forms()) {
        const SampleView part = SampleView(samples).part(1, 4).part(1, 3);
        EXPECT_EQ(Values(part.begin(), part.end()), (Values{180, 270, 0}));
        EXPECT_EQ(part.front(), 180.0);
        EXPECT_EQ(part.back(), 0.0);
        EXPECT_EQ(SampleView(samples).part(6, 0).size(), 0U);
    }
}

// More than two blocks, and a part of one.
TEST(SampleView, HandsOutEachSampleInOrder) {
    std::vector<float> values(2 * SampleView::BlockLength + 100);
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] = static_cast<float>(i);
    const Samples samples = narrow(values);
    double next = 10.0;
    SampleView(samples).part(10, values.size() - 20).forEach([&next](double value) {
        ASSERT_EQ(value, next);
        next += 1.0;
    });
    EXPECT_EQ(next, static_cast<double>(values.size()) - 10.0);
    SampleView().forEach([](double) { FAIL(); });
}

TEST(SampleView, IsOfAnyListOfDoubles) {
    const Values list{1.0, Gap};
    EXPECT_EQ(SampleView(list)[0], 1.0);
    EXPECT_EQ(SampleView(std::span(list).first(1)).size(), 1U);
    EXPECT_TRUE(std::isnan(SampleView(list).back()));
}

}  // namespace
}  // namespace Rotavue::Workbench
