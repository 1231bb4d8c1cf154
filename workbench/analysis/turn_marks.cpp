#include "workbench/analysis/turn_marks.h"

#include <algorithm>
#include <cmath>

namespace Rotavue::Workbench {
namespace {

constexpr double DegreesPerTurn = 360.0;
constexpr std::size_t LeastNeighbours = 3;
constexpr std::size_t MostNeighbours = 8;
constexpr double ShortestInterval = 0.6;
constexpr double LongestInterval = 1.75;
constexpr double MissingTolerance = 0.25;
constexpr double MostTurnsBridged = 8.0;

std::vector<double> intervalsOf(const std::vector<double>& times) {
    std::vector<double> intervals;
    for (std::size_t i = 1; i < times.size(); ++i)
        intervals.push_back(times[i] - times[i - 1]);
    return intervals;
}

// The median of the intervals around that place without the one at it; 0 where they are too few.
double medianAround(const std::vector<double>& intervals, std::size_t place) {
    const std::size_t count = std::min(intervals.size(), MostNeighbours + 1);
    if (count < LeastNeighbours + 1) return 0.0;
    const std::size_t wanted = place > count / 2 ? place - count / 2 : 0;
    const std::size_t first = std::min(wanted, intervals.size() - count);
    std::vector<double> around;
    for (std::size_t i = first; i < first + count; ++i) {
        if (i != place) around.push_back(intervals[i]);
    }
    const auto middle = around.begin() + static_cast<std::ptrdiff_t>(around.size() / 2);
    std::nth_element(around.begin(), middle, around.end());
    return *middle;
}

// Whether, of the two marks around a short interval, the earlier one is false: without it the
// interval before would come nearer to `usual` than the interval behind without the later one.
bool isEarlierFalse(const std::vector<double>& kept, const std::vector<double>& times,
                    std::size_t later, double usual) {
    if (kept.size() < 2) return false;
    if (later + 1 == times.size()) return false;
    const double withoutEarlier = times[later] - kept[kept.size() - 2];
    const double withoutLater = times[later + 1] - kept.back();
    return std::abs(withoutEarlier - usual) < std::abs(withoutLater - usual);
}

std::vector<double> withoutFalseMarks(const std::vector<double>& times) {
    const std::vector<double> intervals = intervalsOf(times);
    std::vector<double> kept;
    for (std::size_t i = 0; i < times.size(); ++i) {
        const double usual = i > 0 ? medianAround(intervals, i - 1) : 0.0;
        if (i > 0 && times[i] - kept.back() < ShortestInterval * usual) {
            if (!isEarlierFalse(kept, times, i, usual)) continue;
            kept.pop_back();
        }
        kept.push_back(times[i]);
    }
    return kept;
}

// The turns that an interval stands for; 0 where no number of turns explains it.
std::int64_t turnsIn(const std::vector<double>& intervals, std::size_t place) {
    const double usual = medianAround(intervals, place);
    if (usual == 0.0 || intervals[place] <= LongestInterval * usual) return 1;
    const bool inside = place > 0 && place + 1 < intervals.size();
    const double turns = intervals[place] / usual;
    const double whole = std::round(turns);
    const bool explained = whole <= MostTurnsBridged && std::abs(turns - whole) <= MissingTolerance;
    return inside && explained ? static_cast<std::int64_t>(whole) : 0;
}

// Takes marks one after the other; a run of a single mark holds no turn and is left out.
class RunBuilder {
public:
    void add(double time, std::int64_t turns) {
        if (turns == 0) endRun();
        const std::int64_t before = run_.empty() ? 0 : run_.back().turn;
        run_.push_back({time, before + turns});
        if (turns > 1) marks_.bridgedPulses += static_cast<std::size_t>(turns - 1);
    }

    MendedMarks take() {
        endRun();
        return std::move(marks_);
    }

private:
    void endRun() {
        if (run_.size() > 1) marks_.runs.push_back(std::move(run_));
        run_.clear();
    }

    std::vector<TurnMark> run_;
    MendedMarks marks_;
};

// Takes the angles of the samples one after the other.
class PassageFinder {
public:
    explicit PassageFinder(double degrees)
        : degrees_(degrees),
          begin_(degrees / DegreesPerTurn),
          position_(begin_),
          next_(std::ceil(begin_)) {
        if (position_ != next_) return;
        places_.push_back(0.0);
        next_ += 1.0;
    }

    void add(double degrees) {
        const double step = degrees - degrees_;
        if (std::abs(step) >= 0.5 * DegreesPerTurn) falls_ -= std::round(step / DegreesPerTurn);
        const double position = falls_ + degrees / DegreesPerTurn;
        if (position >= next_) {
            places_.push_back(sample_ + (next_ - position_) / (position - position_));
            next_ += 1.0;
        }
        degrees_ = degrees;
        position_ = position;
        sample_ += 1.0;
    }

    /// The times counted in samples.
    TurnTimes take() { return {std::move(places_), position_ - begin_}; }

private:
    double degrees_;   ///< of the sample before
    double begin_;     ///< the first one in turns
    double position_;  ///< that of the sample before, which does not fall back
    double next_;      ///< the turn whose begin is awaited
    double falls_ = 0.0;
    double sample_ = 0.0;  ///< the number of the sample before
    std::vector<double> places_;
};

}  // namespace

TurnTimes findTurnTimes(SampleView angle, double sampleRate) {
    if (angle.empty()) return {};
    PassageFinder finder(angle[0]);
    angle.part(1, angle.size() - 1).forEach([&](double degrees) { finder.add(degrees); });
    TurnTimes turns = finder.take();
    for (double& time : turns.times)
        time /= sampleRate;
    return turns;
}

MendedMarks mendMarks(std::vector<double> times) {
    const std::size_t found = times.size();
    times = withoutFalseMarks(times);
    const std::vector<double> intervals = intervalsOf(times);
    RunBuilder builder;
    for (std::size_t i = 0; i < times.size(); ++i)
        builder.add(times[i], i == 0 ? 0 : turnsIn(intervals, i - 1));
    MendedMarks marks = builder.take();
    marks.droppedPulses = found - times.size();
    return marks;
}

}  // namespace Rotavue::Workbench
