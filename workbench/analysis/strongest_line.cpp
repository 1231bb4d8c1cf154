#include "workbench/analysis/strongest_line.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <complex>
#include <kissfft/kissfft.hh>
#include <numbers>
#include <vector>

#include "workbench/recording/gaps.h"

namespace Rotavue::Workbench {
namespace {

using Complex = std::complex<double>;

constexpr std::size_t LeastSamples = 64;
constexpr std::size_t LongestBlock = 65'536;
constexpr std::size_t LowestBin = 3;
constexpr double LeastOverMedian = 100.0;

std::vector<Complex> bridgedSignal(const Recording& recording) {
    std::vector<double> x(recording.x.begin(), recording.x.end());
    std::vector<double> y(recording.y.begin(), recording.y.end());
    holdGaps(x, y);
    std::vector<Complex> signal(x.size());
    for (std::size_t i = 0; i < x.size(); ++i)
        signal[i] = {x[i], y[i]};
    return signal;
}

// Averages the power of blocks; the bins at +f and -f of x + jy together hold the power that both
// probes have at f.
class PowerSpectrum {
public:
    explicit PowerSpectrum(std::size_t size)
        : transform_(size, false), block_(size), bins_(size), power_(size / 2) {}

    void add(const Complex* samples) {
        const std::size_t size = block_.size();
        Complex mean;
        for (std::size_t i = 0; i < size; ++i)
            mean += samples[i] / static_cast<double>(size);
        const double step = std::numbers::pi / static_cast<double>(size);
        for (std::size_t i = 0; i < size; ++i) {
            const double sine = std::sin(step * static_cast<double>(i));
            block_[i] = (samples[i] - mean) * sine * sine;
        }
        transform_.transform(block_.data(), bins_.data());
        for (std::size_t k = 1; k < power_.size(); ++k)
            power_[k] += std::norm(bins_[k]) + std::norm(bins_[size - k]);
    }

    const std::vector<double>& power() const { return power_; }

private:
    kissfft<double> transform_;
    std::vector<Complex> block_;
    std::vector<Complex> bins_;
    std::vector<double> power_;
};

// How far the top of the parabola through the logarithms of three powers at -1, 0, 1, the middle
// one the highest, lies from 0. A neighbour of next to no power counts as 120 dB below the top.
double topOffset(double before, double at, double behind) {
    const auto level = [at](double power) { return std::log(std::max(power / at, 1e-12)); };
    const double bend = level(before) + level(behind);
    return bend < 0.0 ? 0.5 * (level(before) - level(behind)) / bend : 0.0;
}

double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

}  // namespace

std::optional<double> strongestLine(const Recording& recording, const ReadingProgress& progress) {
    if (recording.sampleCount() < LeastSamples) return std::nullopt;
    const std::size_t size = std::min(LongestBlock, std::bit_floor(recording.sampleCount()));
    const std::vector<Complex> signal = bridgedSignal(recording);
    PowerSpectrum spectrum(size);
    for (std::size_t first = 0; first + size <= signal.size(); first += size / 2) {
        progress.reach(static_cast<double>(first) / static_cast<double>(signal.size()));
        spectrum.add(signal.data() + first);
    }
    const std::vector<double>& power = spectrum.power();
    const auto top = std::max_element(power.begin() + LowestBin, power.end() - 1);
    const double usual = median({power.begin() + LowestBin, power.end()});
    if (!(*top > LeastOverMedian * usual)) return std::nullopt;
    const auto bin = static_cast<double>(top - power.begin());
    const double offset = topOffset(top[-1], *top, top[1]);
    return (bin + offset) * recording.sampleRate / static_cast<double>(size);
}

}  // namespace Rotavue::Workbench
