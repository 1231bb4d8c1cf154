#include "workbench/analysis/angle_steps.h"

#include <algorithm>
#include <cmath>

namespace Rotavue::Workbench {
namespace {

using Complex = std::complex<double>;

// How many samples or steps are taken between two looks whether it shall go on: a millisecond.
constexpr std::size_t BetweenWords = 1U << 16U;

// The signal's integral over the angle from the first valid sample on.
class AngleIntegral {
public:
    AngleIntegral(const Recording& recording, const TurnedSamples& samples,
                  const ReadingProgress& progress) {
        turns_.reserve(samples.count());
        values_.reserve(samples.count());
        sums_.reserve(samples.count());
        for (std::size_t i = 0; i < samples.count(); ++i) {
            if (i % BetweenWords == 0)
                progress.reach(static_cast<double>(i) / static_cast<double>(samples.count()));
            const Complex value(recording.x[samples.first + i], recording.y[samples.first + i]);
            if (std::isfinite(value.real() + value.imag())) add(samples.turns[i], value);
        }
    }

    bool empty() const { return turns_.empty(); }

    // The integral up to a place; places rise from call to call.
    Complex upTo(double turn) {
        while (at_ + 1 < turns_.size() && turns_[at_ + 1] <= turn)
            ++at_;
        const double way = turn - turns_[at_];
        if (way <= 0.0 || at_ + 1 == turns_.size()) return sums_[at_] + values_[at_] * way;
        const double part = way / (turns_[at_ + 1] - turns_[at_]);
        const Complex end = values_[at_] + part * (values_[at_ + 1] - values_[at_]);
        return sums_[at_] + 0.5 * (values_[at_] + end) * way;
    }

private:
    void add(double turn, Complex value) {
        const bool first = turns_.empty();
        const Complex piece =
            first ? Complex() : 0.5 * (values_.back() + value) * (turn - turns_.back());
        sums_.push_back(first ? Complex() : sums_.back() + piece);
        turns_.push_back(turn);
        values_.push_back(value);
    }

    std::vector<double> turns_;
    std::vector<Complex> values_;
    std::vector<Complex> sums_;
    std::size_t at_ = 0;
};

}  // namespace

AngleSteps averageBySteps(const Recording& recording, const TurnedSamples& samples, int perTurn,
                          const ReadingProgress& progress) {
    AngleSteps steps{samples.turns.front(), perTurn, {}};
    AngleIntegral integral(recording, samples, progress.between(0.0, 0.5));
    if (integral.empty()) return steps;
    const double width = 1.0 / perTurn;
    const double count = std::floor((samples.turns.back() - steps.firstTurn) * perTurn);
    steps.values.reserve(static_cast<std::size_t>(std::max(count, 0.0)));
    Complex before = integral.upTo(steps.firstTurn);
    const ReadingProgress rest = progress.between(0.5, 1.0);
    for (double k = 1.0; k <= count; k += 1.0) {
        if (steps.values.size() % BetweenWords == 0) rest.reach(k / count);
        const Complex behind = integral.upTo(steps.firstTurn + k * width);
        steps.values.push_back((behind - before) / width);
        before = behind;
    }
    return steps;
}

}  // namespace Rotavue::Workbench
