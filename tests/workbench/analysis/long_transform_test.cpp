#include "workbench/analysis/long_transform.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace Rotavue::Workbench {
namespace {

using Complex = std::complex<double>;
using Signal = std::vector<Complex>;

// Longer than one piece, with each of the factors and with two of them above it.
constexpr std::size_t Lengths[] = {1, 60, 1U << 17U, 3U << 16U, 5U << 15U, 15U << 15U};

Signal lineAt(std::size_t bin, std::size_t count) {
    Signal signal;
    for (std::size_t i = 0; i < count; ++i)
        signal.push_back(
            std::polar(1.0, 2.0 * std::numbers::pi * static_cast<double>(i * bin % count) /
                                static_cast<double>(count)));
    return signal;
}

double largest(const Signal& signal) {
    double most = 0.0;
    for (const Complex& value : signal)
        most = std::max(most, std::abs(value));
    return most;
}

TEST(LongTransformTest, ALineHasAllOfItselfInItsBin) {
    for (const std::size_t count : Lengths) {
        const std::size_t bin = count / 3 + count % 2;
        Signal bins =
            longTransform(lineAt(bin % count, count), TransformWay::Forward, ReadingProgress());
        const auto size = static_cast<double>(count);
        EXPECT_LT(std::abs(bins[bin % count] - size), 1e-9 * size) << count;
        bins[bin % count] = 0.0;
        EXPECT_LT(largest(bins), 1e-9 * size) << count;
    }
}

TEST(LongTransformTest, AnImpulseIsInAllBinsTurnedByItsPlace) {
    for (const std::size_t count : Lengths) {
        Signal signal(count);
        signal[count / 2] = 2.0;
        const Signal bins = longTransform(signal, TransformWay::Forward, ReadingProgress());
        Signal differences = lineAt((count - count / 2) % count, count);
        for (std::size_t i = 0; i < count; ++i)
            differences[i] = 2.0 * differences[i] - bins[i];
        EXPECT_LT(largest(differences), 1e-9) << count;
    }
}

TEST(LongTransformTest, TheInverseGivesTheSignalTimesItsLength) {
    for (const std::size_t count : Lengths) {
        Signal signal;
        for (std::size_t i = 0; i < count; ++i)
            signal.emplace_back(static_cast<double>(i * i % 101), static_cast<double>(i % 7));
        Signal back = longTransform(longTransform(signal, TransformWay::Forward, ReadingProgress()),
                                    TransformWay::Inverse, ReadingProgress());
        for (std::size_t i = 0; i < count; ++i)
            back[i] -= signal[i] * static_cast<double>(count);
        EXPECT_LT(largest(back), 1e-9 * static_cast<double>(count)) << count;
    }
}

TEST(LongTransformTest, TellsHowFarItIsToTheEnd) {
    std::vector<double> parts;
    longTransform(Signal(1U << 18U), TransformWay::Forward, ReadingProgress([&](double part) {
                      parts.push_back(part);
                      return true;
                  }));
    // Four pieces, and on two levels four stretches of as many values.
    EXPECT_EQ(parts.size(), 8U);
    EXPECT_TRUE(std::is_sorted(parts.begin(), parts.end()));
    EXPECT_EQ(parts.back(), 1.0);
}

TEST(LongTransformTest, EndsAtTheNextPieceWhenItIsCancelled) {
    int pieces = 0;
    const ReadingProgress cancelled([&](double) { return ++pieces < 3; });
    EXPECT_THROW(longTransform(Signal(1U << 18U), TransformWay::Forward, cancelled),
                 ReadingCancelled);
    EXPECT_EQ(pieces, 3);
}

}  // namespace
}  // namespace Rotavue::Workbench
