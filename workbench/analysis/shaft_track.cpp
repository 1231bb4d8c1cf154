#include "workbench/analysis/shaft_track.h"

#include <Eigen/Dense>
#include <algorithm>
#include <cmath>
#include <utility>

#include "workbench/analysis/analysis_error.h"
#include "workbench/analysis/short_text.h"

namespace Rotavue::Workbench {
namespace {

constexpr double SecondsPerMinute = 60.0;
constexpr std::size_t SpeedMarks = 7;
constexpr int BisectionSteps = 60;

MonotoneCubic throughMarks(const std::vector<TurnMark>& marks) {
    std::vector<double> times;
    std::vector<double> turns;
    for (const TurnMark& mark : marks) {
        times.push_back(mark.time);
        turns.push_back(static_cast<double>(mark.turn));
    }
    return {std::move(times), std::move(turns)};
}

// The slope at `time` of the parabola (the straight line for two marks) closest to the marks.
double slopeThrough(std::span<const TurnMark> marks, double time) {
    const auto rows = static_cast<Eigen::Index>(marks.size());
    const Eigen::Index columns = std::min<Eigen::Index>(rows, 3);
    const double width = marks.back().time - marks.front().time;
    Eigen::MatrixXd powers(rows, columns);
    Eigen::VectorXd turns(rows);
    for (Eigen::Index row = 0; row < rows; ++row) {
        const TurnMark& mark = marks[static_cast<std::size_t>(row)];
        const double t = (mark.time - time) / width;
        for (Eigen::Index column = 0; column < columns; ++column)
            powers(row, column) = std::pow(t, static_cast<double>(column));
        turns(row) = static_cast<double>(mark.turn - marks.front().turn);
    }
    return powers.colPivHouseholderQr().solve(turns)(1) / width;
}

std::string plural(std::size_t count, const std::string& thing) {
    return std::to_string(count) + ' ' + thing + (count == 1 ? "" : "s");
}

std::string spanText(const TimeSpan& span) {
    const std::string from = shortText(span.from) + " s";
    return std::isinf(span.to) ? "behind " + from
                               : "between " + from + " and " + shortText(span.to) + " s";
}

}  // namespace

ShaftRun::ShaftRun(std::vector<TurnMark> marks)
    : marks_(std::move(marks)), turns_(throughMarks(marks_)) {}

std::vector<double> ShaftRun::turnsAt(std::size_t first, std::size_t count,
                                      double sampleRate) const {
    return turns_.sweep(static_cast<double>(first) / sampleRate, 1.0 / sampleRate, count);
}

double ShaftRun::timeOf(double turn) const {
    double low = begin();
    double high = end();
    for (int i = 0; i < BisectionSteps; ++i) {
        const double middle = 0.5 * (low + high);
        (turnAt(middle) < turn ? low : high) = middle;
    }
    return high;
}

double ShaftRun::speedAt(double time) const {
    const auto above =
        std::lower_bound(marks_.begin(), marks_.end(), time,
                         [](const TurnMark& mark, double t) { return mark.time < t; });
    const std::size_t count = std::min(SpeedMarks, marks_.size());
    const auto place = static_cast<std::size_t>(above - marks_.begin());
    const std::size_t wanted = place > count / 2 ? place - count / 2 : 0;
    const std::size_t first = std::min(wanted, marks_.size() - count);
    return slopeThrough(std::span(marks_).subspan(first, count), time) * SecondsPerMinute;
}

TimeSpan WholeTurns::span() const {
    return {run->timeOf(static_cast<double>(first)), run->timeOf(static_cast<double>(end))};
}

double WholeTurns::speed() const {
    return static_cast<double>(count()) / span().length() * SecondsPerMinute;
}

ShaftTrack::ShaftTrack(const Recording& recording) : hasKeyphasor_(recording.hasTacho()) {
    if (!hasKeyphasor_) return;
    TurnTimes turns = findTurnTimes(recording.angle, recording.sampleRate);
    netTurns_ = turns.netTurns;
    MendedMarks marks = mendMarks(std::move(turns.times));
    noteMended(marks);
    for (std::vector<TurnMark>& run : marks.runs)
        runs_.emplace_back(std::move(run));
}

void ShaftTrack::noteMended(const MendedMarks& marks) {
    if (marks.droppedPulses > 0)
        notes_.push_back("keyphasor: " + plural(marks.droppedPulses, "false pulse") + " left out");
    if (marks.bridgedPulses > 0)
        notes_.push_back("keyphasor: " + plural(marks.bridgedPulses, "missing pulse") + " bridged");
    if (marks.runs.size() > 1)
        notes_.push_back("keyphasor: no turn is seen between the " +
                         std::to_string(marks.runs.size()) + " stretches in which the shaft turns");
}

double ShaftTrack::speedAt(double time) const {
    const auto run = firstRunBehind(time);
    return run != runs_.end() && time >= run->begin() ? run->speedAt(time) : 0.0;
}

std::vector<ShaftRun>::const_iterator ShaftTrack::firstRunBehind(double time) const {
    return std::lower_bound(runs_.begin(), runs_.end(), time,
                            [](const ShaftRun& run, double t) { return run.end() < t; });
}

WholeTurns ShaftTrack::mostTurns(const TimeSpan& span) const {
    WholeTurns most;
    for (auto run = firstRunBehind(span.from); run != runs_.end() && run->begin() < span.to;
         ++run) {
        const double from = std::max(run->begin(), span.from);
        const double to = std::min(run->end(), span.to);
        const auto first = static_cast<std::int64_t>(std::ceil(run->turnAt(from)));
        const auto end = static_cast<std::int64_t>(std::floor(run->turnAt(to)));
        if (end - first > most.count()) most = {&*run, first, end};
    }
    return most;
}

WholeTurns ShaftTrack::wholeTurns(const TimeSpan& span, std::string_view purpose) const {
    const WholeTurns turns = mostTurns(span);
    if (turns.count() == 0) refuse(span, purpose);
    return turns;
}

void ShaftTrack::refuse(const TimeSpan& span, std::string_view purpose) const {
    const std::string text(purpose);
    if (!hasKeyphasor_)
        throw AnalysisError(text + " needs the shaft's angle, and the recording has no keyphasor");
    if (netTurns_ <= -1.0)
        throw AnalysisError(text + " needs an angle that grows with time, and the shaft's falls");
    if (runs_.empty())
        throw AnalysisError(text + " needs a whole turn of the shaft, and it stands still");
    throw AnalysisError(text + " needs a whole turn of the shaft, and there is none " +
                        spanText(span));
}

}  // namespace Rotavue::Workbench
