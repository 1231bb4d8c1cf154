#include "workbench/recording/ranked_value.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <vector>

namespace Rotavue::Workbench {
namespace {

constexpr int KeyBits = 64;
constexpr int DigitBits = 16;
constexpr std::size_t SampleSize = 4096;
constexpr std::uint64_t SignBit = std::uint64_t{1} << (KeyBits - 1);

// Whole numbers in the order of the values: the bits of a positive number grow with it, those of a
// negative one fall.
std::uint64_t keyOf(double value) {
    const auto bits = std::bit_cast<std::uint64_t>(value);
    return (bits & SignBit) != 0 ? ~bits : bits | SignBit;
}

double valueOf(std::uint64_t key) {
    return std::bit_cast<double>((key & SignBit) != 0 ? key & ~SignBit : ~key);
}

// How many keys that begin as `key` does have each of the digits that end at bit `shift`.
std::vector<std::size_t> countDigits(SampleView values, std::uint64_t key, int shift) {
    std::vector<std::size_t> counts(std::size_t{1} << DigitBits);
    const std::uint64_t known =
        shift + DigitBits < KeyBits ? ~std::uint64_t{0} << (shift + DigitBits) : 0;
    values.forEach([&](double value) {
        const std::uint64_t other = keyOf(value);
        if (((other ^ key) & known) == 0) ++counts[(other >> shift) % counts.size()];
    });
    return counts;
}

double valueByDigits(SampleView values, std::size_t rank) {
    std::uint64_t key = 0;
    for (int shift = KeyBits - DigitBits; shift >= 0; shift -= DigitBits) {
        const std::vector<std::size_t> counts = countDigits(values, key, shift);
        std::uint64_t digit = 0;
        for (; rank >= counts[digit]; ++digit)
            rank -= counts[digit];
        key |= digit << shift;
    }
    return valueOf(key);
}

// What has that place among a few of the values.
double guess(SampleView values, std::size_t rank) {
    const std::size_t step = values.size() / SampleSize + 1;
    std::vector<double> sample;
    for (std::size_t i = 0; i < values.size(); i += step)
        sample.push_back(values[i]);
    const auto place = static_cast<std::ptrdiff_t>(rank / step);
    std::nth_element(sample.begin(), sample.begin() + place, sample.end());
    return sample[static_cast<std::size_t>(place)];
}

bool hasRank(SampleView values, double value, std::size_t rank) {
    std::size_t less = 0;
    std::size_t same = 0;
    values.forEach([&](double other) {
        less += other < value ? 1U : 0U;
        same += other == value ? 1U : 0U;
    });
    return less <= rank && rank < less + same;
}

}  // namespace

// A converter has few levels, and pulses rest at one or two of them: mostly the guess is right.
double valueOfRank(SampleView values, std::size_t rank) {
    const double guessed = guess(values, rank);
    return hasRank(values, guessed, rank) ? guessed : valueByDigits(values, rank);
}

}  // namespace Rotavue::Workbench
