#include "workbench/analysis/averaged_orbit.h"

#include <algorithm>
#include <bit>
#include <cmath>

#include "workbench/analysis/analysis_error.h"
#include "workbench/analysis/cubic_sampling.h"
#include "workbench/analysis/turned_samples.h"

namespace Rotavue::Workbench {
namespace {

constexpr int LeastPointsPerTurn = 8;
constexpr double PartOfTurns = 0.4;

void checkRange(const std::string& purpose, const std::string& thing, int value, int least,
                int most) {
    if (value >= least && value <= most) return;
    throw AnalysisError(purpose + " takes " + std::to_string(least) + " to " +
                        std::to_string(most) + ' ' + thing + ", not " + std::to_string(value));
}

void check(const AverageOptions& options) {
    checkRange(options.purpose, "revolutions", options.revolutions, 1, MostRevolutions);
    checkRange(options.purpose, "points a turn", options.pointsPerTurn, LeastPointsPerTurn,
               MostPointsPerTurn);
    if (!std::has_single_bit(static_cast<unsigned>(options.pointsPerTurn)))
        throw AnalysisError(options.purpose + " takes a power of two of points a turn, not " +
                            std::to_string(options.pointsPerTurn));
    if (options.averages < 0)
        throw AnalysisError(options.purpose + " takes a mean over 0 stretches (all) or more");
}

// The newest stretches of `revolutions` turns each.
WholeTurns stretches(WholeTurns turns, const AverageOptions& options) {
    const std::int64_t there = turns.count() / options.revolutions;
    if (there == 0)
        throw AnalysisError(options.purpose + " of " + std::to_string(options.revolutions) +
                            " turns needs as many, and there are " + std::to_string(turns.count()));
    const std::int64_t wanted = options.averages > 0 ? options.averages : there;
    turns.first = turns.end - std::min(there, wanted) * options.revolutions;
    return turns;
}

// Walks over the samples of a window by rising turns.
class AngleSampler {
public:
    AngleSampler(const Recording& recording, TurnedSamples samples)
        : recording_(recording), samples_(std::move(samples)) {}

    // Moves to where the shaft has made that many turns; never back.
    void moveTo(double turn) {
        const std::vector<double>& turns = samples_.turns;
        while (before_ + 2 < turns.size() && turns[before_ + 1] <= turn)
            ++before_;
        const double part = (turn - turns[before_]) / (turns[before_ + 1] - turns[before_]);
        place_ = static_cast<double>(samples_.first + before_) + part;
    }

    double x() const { return cubicAt(recording_.x, place_); }
    double y() const { return cubicAt(recording_.y, place_); }

private:
    const Recording& recording_;
    TurnedSamples samples_;
    std::size_t before_ = 0;  // the sample at or before the place
    double place_ = 0.0;      // in samples of the recording
};

class Averager {
public:
    explicit Averager(std::size_t points) : x_(points), y_(points), oneX_(points), oneY_(points) {}

    // Takes the stretch that begins at `turn`, unless it has a gap.
    void take(AngleSampler& sampler, double turn, int pointsPerTurn) {
        bool whole = true;
        for (std::size_t k = 0; k < x_.size(); ++k) {
            sampler.moveTo(turn + static_cast<double>(k) / pointsPerTurn);
            oneX_[k] = sampler.x();
            oneY_[k] = sampler.y();
            whole = whole && std::isfinite(oneX_[k] + oneY_[k]);
        }
        if (whole) addStretch();
    }

    int count() const { return count_; }

    void mean(AveragedOrbit& orbit) const {
        for (std::size_t k = 0; k < x_.size(); ++k) {
            orbit.x.push_back(x_[k] / count_);
            orbit.y.push_back(y_[k] / count_);
        }
    }

private:
    void addStretch() {
        std::transform(x_.begin(), x_.end(), oneX_.begin(), x_.begin(), std::plus<>());
        std::transform(y_.begin(), y_.end(), oneY_.begin(), y_.begin(), std::plus<>());
        ++count_;
    }

    std::vector<double> x_, y_;        // sums
    std::vector<double> oneX_, oneY_;  // the stretch at hand
    int count_ = 0;
};

}  // namespace

AveragedOrbit averageOrbit(const Recording& recording, const ShaftTrack& track,
                           const AverageOptions& options, const ReadingProgress& progress) {
    check(options);
    const WholeTurns turns = stretches(track.wholeTurns(options.span, options.purpose), options);
    AveragedOrbit orbit;
    orbit.span = turns.span();
    orbit.speed = turns.speed();
    orbit.unit = recording.machine.unit;
    orbit.revolutions = options.revolutions;
    orbit.pointsPerTurn = options.pointsPerTurn;
    Averager averager(static_cast<std::size_t>(options.revolutions * options.pointsPerTurn));
    AngleSampler sampler(recording, turnedSamples(recording, *turns.run, orbit.span,
                                                  progress.between(0.0, PartOfTurns)));
    const ReadingProgress rest = progress.between(PartOfTurns, 1.0);
    for (std::int64_t turn = turns.first; turn < turns.end; turn += options.revolutions) {
        rest.reach(static_cast<double>(turn - turns.first) / static_cast<double>(turns.count()));
        averager.take(sampler, static_cast<double>(turn), options.pointsPerTurn);
    }
    if (averager.count() == 0)
        throw AnalysisError(options.purpose + " finds a gap in every stretch of " +
                            std::to_string(options.revolutions) + " turns");
    orbit.averages = averager.count();
    averager.mean(orbit);
    return orbit;
}

}  // namespace Rotavue::Workbench
