#include "workbench/analysis/sub_synchronous.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>

#include "workbench/analysis/analysis_error.h"
#include "workbench/analysis/angle_steps.h"
#include "workbench/analysis/cubic_sampling.h"
#include "workbench/analysis/short_text.h"
#include "workbench/analysis/strongest_line.h"

namespace Rotavue::Workbench {
namespace {

constexpr const char* Purpose = "the sub-synchronous orbit";
constexpr double SecondsPerMinute = 60.0;
constexpr double LeastTurns = 4.0;
constexpr double LeastSamplesPerTurn = 4.0;
constexpr double MostStepsPerTurn = 64.0;
constexpr double StepsPerSample = 4.0;
constexpr double Gap = std::numeric_limits<double>::quiet_NaN();

[[noreturn]] void refuse(const std::string& reason) {
    throw AnalysisError(std::string(Purpose) + ' ' + reason);
}

void checkSampling(double samplesPerTurn) {
    if (samplesPerTurn >= LeastSamplesPerTurn) return;
    refuse("needs 4 samples a turn or more, and there are " + shortText(samplesPerTurn));
}

void checkBand(const OrderBand& band) {
    if (band.pass > 0.0 && band.pass < band.stop && band.stop <= 1.0) return;
    refuse(
        "lets orders pass up to one above 0 and stops them from a higher one on, 1 at most, not " +
        shortText(band.pass) + " and " + shortText(band.stop));
}

// 1X in Hz without keyphasor: from outside or from the spectrum.
double assumedFrequency(const Recording& recording, const SubSyncOptions& options,
                        std::vector<std::string>& notes, const ReadingProgress& progress) {
    if (options.speed) {
        if (!(*options.speed > 0.0))
            refuse("takes a speed above 0 rpm, not " + shortText(*options.speed));
        notes.push_back("no keyphasor: 1X is taken at " + shortText(*options.speed, 6) + " rpm");
        return *options.speed / SecondsPerMinute;
    }
    const std::optional<double> line = strongestLine(recording, progress);
    if (!line) refuse("needs the shaft's speed: there is no keyphasor, and no line stands out");
    notes.push_back("no keyphasor: 1X is taken at the strongest line, " + shortText(*line) +
                    " Hz (" + shortText(*line * SecondsPerMinute) + " rpm)");
    return *line;
}

// A shaft that turns evenly through the whole recording.
ShaftRun evenRun(const Recording& recording, double turnsPerSecond) {
    checkSampling(recording.sampleRate / turnsPerSecond);
    if (recording.duration() * turnsPerSecond < LeastTurns)
        refuse("needs 4 turns of the shaft, and at that speed there are fewer");
    const double turns = std::ceil(recording.duration() * turnsPerSecond);
    return ShaftRun({{0.0, 0}, {turns / turnsPerSecond, static_cast<std::int64_t>(turns)}});
}

// The samples of a run with the turn begun before and the turn begun behind it, unless these are
// another run's.
TimeSpan widened(const std::vector<ShaftRun>& runs, std::size_t place) {
    const ShaftRun& run = runs[place];
    const double firstTurn = run.timeOf(1.0) - run.begin();
    const double lastTurn = run.end() - run.timeOf(static_cast<double>(run.turnCount() - 1));
    const double before = place > 0 ? runs[place - 1].end() : 0.0;
    const double behind =
        place + 1 < runs.size() ? runs[place + 1].begin() : std::numeric_limits<double>::max();
    return {std::max(before, run.begin() - firstTurn), std::min(behind, run.end() + lastTurn)};
}

int stepsPerTurn(const TurnedSamples& samples) {
    const double turns = samples.turns.back() - samples.turns.front();
    const double samplesPerTurn = static_cast<double>(samples.count()) / turns;
    checkSampling(samplesPerTurn);
    const double most = std::min(MostStepsPerTurn, StepsPerSample * samplesPerTurn);
    return static_cast<int>(std::bit_floor(static_cast<unsigned>(most)));
}

// How much of all is done when the line is found, and of the rest when the samples have turns, when
// there are steps of the angle, and when these are filtered.
constexpr double PartOfLine = 0.2;
constexpr double PartOfTurns = 0.15;
constexpr double PartOfSteps = 0.4;
constexpr double PartOfFilter = 0.7;
constexpr std::size_t SamplesBetweenWords = 1U << 16U;

void filterSamples(const Recording& recording, const ShaftRun& run, const TimeSpan& span,
                   SubSyncOrbit& orbit, const ReadingProgress& progress) {
    const TurnedSamples samples =
        turnedSamples(recording, run, span, progress.between(0.0, PartOfTurns));
    const AngleSteps steps = averageBySteps(recording, samples, stepsPerTurn(samples),
                                            progress.between(PartOfTurns, PartOfSteps));
    if (steps.values.empty()) return;
    const auto low = lowOrders(steps.values, steps.perTurn, orbit.band,
                               progress.between(PartOfSteps, PartOfFilter));
    const ReadingProgress rest = progress.between(PartOfFilter, 1.0);
    std::vector<double> x;
    std::vector<double> y;
    x.reserve(low.size());
    y.reserve(low.size());
    for (const std::complex<double>& value : low) {
        x.push_back(value.real());
        y.push_back(value.imag());
    }
    for (std::size_t i = 0; i < samples.count(); ++i) {
        if (i % SamplesBetweenWords == 0)
            rest.reach(static_cast<double>(i) / static_cast<double>(samples.count()));
        const std::size_t k = samples.first + i;
        if (!std::isfinite(recording.x[k] + recording.y[k])) continue;
        const double place = steps.placeOf(samples.turns[i]);
        orbit.x[k] = cubicAt(x, place);
        orbit.y[k] = cubicAt(y, place);
    }
}

void filterRuns(const Recording& recording, const std::vector<ShaftRun>& runs, SubSyncOrbit& orbit,
                const ReadingProgress& progress) {
    std::size_t used = 0;
    for (std::size_t i = 0; i < runs.size(); ++i) {
        if (static_cast<double>(runs[i].turnCount()) < LeastTurns) continue;
        const TimeSpan span = widened(runs, i);
        const ReadingProgress part =
            progress.between(std::clamp(span.from / recording.duration(), 0.0, 1.0),
                             std::clamp(span.to / recording.duration(), 0.0, 1.0));
        filterSamples(recording, runs[i], span, orbit, part);
        ++used;
    }
    if (used == 0) refuse("needs 4 turns of the shaft in one go, and there are fewer");
}

}  // namespace

SubSyncOrbit subSynchronousOrbit(const Recording& recording, const ShaftTrack& track,
                                 const SubSyncOptions& options, const ReadingProgress& progress) {
    checkBand(options.band);
    SubSyncOrbit orbit;
    orbit.x.assign(recording.sampleCount(), Gap);
    orbit.y.assign(recording.sampleCount(), Gap);
    orbit.unit = recording.machine.unit;
    orbit.band = options.band;
    if (track.hasKeyphasor()) {
        filterRuns(recording, track.runs(), orbit, progress);
    } else {
        const double frequency =
            assumedFrequency(recording, options, orbit.notes, progress.between(0.0, PartOfLine));
        const ShaftRun run = evenRun(recording, frequency);
        filterSamples(recording, run, {}, orbit, progress.between(PartOfLine, 1.0));
    }
    return orbit;
}

}  // namespace Rotavue::Workbench
