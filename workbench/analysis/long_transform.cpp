#include "workbench/analysis/long_transform.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <kissfft/kissfft.hh>
#include <map>
#include <numbers>

namespace Rotavue::Workbench {
namespace {

using Complex = std::complex<double>;

constexpr std::size_t LongestPiece = 1U << 16U;
constexpr std::size_t LargestRadix = 5;
constexpr std::size_t TurnsInARow = 64;  // before the rounding of one step would add up

std::size_t radixOf(std::size_t count) {
    for (const std::size_t radix : {2U, 3U})
        if (count % radix == 0) return radix;
    return LargestRadix;
}

// A transform of a long signal is one of every p-th value for each of p beginnings, turned and
// added: decimation in time, down to pieces that a library transforms at once.
class LongTransform {
public:
    LongTransform(std::size_t size, TransformWay way, const ReadingProgress& progress)
        : way_(way), progress_(progress) {
        std::size_t levels = 1;
        for (std::size_t count = size; count > LongestPiece; count /= radixOf(count))
            ++levels;
        work_ = static_cast<double>(levels) * static_cast<double>(size);
    }

    void run(const Complex* in, std::size_t stride, Complex* out, std::size_t count) {
        if (count <= LongestPiece) return runPiece(in, stride, out, count);
        const std::size_t radix = radixOf(count);
        const std::size_t part = count / radix;
        for (std::size_t r = 0; r < radix; ++r)
            run(in + r * stride, stride * radix, out + r * part, part);
        join(out, radix, part);
    }

private:
    using Turns = std::array<Complex, LargestRadix>;

    void runPiece(const Complex* in, std::size_t stride, Complex* out, std::size_t count) {
        piece_.resize(count);
        for (std::size_t i = 0; i < count; ++i)
            piece_[i] = in[i * stride];
        const auto plan = plans_.try_emplace(count, count, way_ == TransformWay::Inverse).first;
        plan->second.transform(piece_.data(), out);
        tell(count);
    }

    // Value k + q * part of the whole is the sum of the parts' values k, each turned by its
    // beginning.
    void join(Complex* out, std::size_t radix, std::size_t part) {
        const double whole = static_cast<double>(radix * part);
        Turns roots;
        for (std::size_t q = 0; q < radix; ++q)
            roots[q] = turnOf(static_cast<double>(q) / static_cast<double>(radix));
        const Complex step = turnOf(1.0 / whole);
        Complex turn;
        for (std::size_t k = 0; k < part; ++k) {
            if (k % LongestPiece == 0) tell(radix * std::min(LongestPiece, part - k));
            turn = k % TurnsInARow == 0 ? turnOf(static_cast<double>(k) / whole) : turn * step;
            joinAt(out + k, radix, part, turn, roots);
        }
    }

    static void joinAt(Complex* out, std::size_t radix, std::size_t part, Complex turn,
                       const Turns& roots) {
        Turns values;
        Complex turned = 1.0;
        for (std::size_t r = 0; r < radix; ++r, turned *= turn)
            values[r] = out[r * part] * turned;
        for (std::size_t q = 0; q < radix; ++q) {
            Complex sum;
            for (std::size_t r = 0; r < radix; ++r)
                sum += values[r] * roots[r * q % radix];
            out[q * part] = sum;
        }
    }

    Complex turnOf(double turns) const {
        const double sign = way_ == TransformWay::Inverse ? 1.0 : -1.0;
        return std::polar(1.0, sign * 2.0 * std::numbers::pi * turns);
    }

    void tell(std::size_t values) {
        done_ += static_cast<double>(values);
        progress_.reach(std::min(done_ / work_, 1.0));
    }

    TransformWay way_;
    const ReadingProgress& progress_;
    double work_ = 0.0;  // values, once for each level
    double done_ = 0.0;
    std::map<std::size_t, kissfft<double>> plans_;
    std::vector<Complex> piece_;
};

}  // namespace

std::vector<Complex> longTransform(const std::vector<Complex>& signal, TransformWay way,
                                   const ReadingProgress& progress) {
    std::vector<Complex> result(signal.size());
    if (signal.empty()) return result;
    LongTransform(signal.size(), way, progress).run(signal.data(), 1, result.data(), signal.size());
    return result;
}

}  // namespace Rotavue::Workbench
