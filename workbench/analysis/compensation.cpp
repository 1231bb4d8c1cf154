#include "workbench/analysis/compensation.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <numbers>
#include <span>

#include "workbench/analysis/analysis_error.h"
#include "workbench/analysis/cubic_sampling.h"
#include "workbench/analysis/machine_frame.h"
#include "workbench/analysis/short_text.h"

namespace Rotavue::Workbench {
namespace {

constexpr double DegreesPerTurn = 360.0;
constexpr double TwoPi = 2.0 * std::numbers::pi;
// A word is told after each: well within a millisecond.
constexpr std::size_t BlockSize = 4096;

// The vectors of a slow roll as a signal by the turns of the shaft.
class VectorRunOut {
public:
    explicit VectorRunOut(const SlowRoll& slowRoll)
        : firstX_(slowRoll.first.x.phasor()),
          firstY_(slowRoll.first.y.phasor()),
          secondX_(slowRoll.second.x.phasor()),
          secondY_(slowRoll.second.y.phasor()) {}

    ProbeValues at(double turns) const {
        const std::complex<double> once = std::polar(1.0, TwoPi * turns);
        const std::complex<double> twice = once * once;
        return {(firstX_ * once + secondX_ * twice).real(),
                (firstY_ * once + secondY_ * twice).real()};
    }

private:
    std::complex<double> firstX_, firstY_, secondX_, secondY_;
};

// Its waveform likewise, with cubics between the points of the grid.
class WaveformRunOut {
public:
    explicit WaveformRunOut(const SlowRoll& slowRoll)
        : perTurn_(static_cast<double>(slowRoll.x.size())),
          x_(wrapped(slowRoll.x)),
          y_(wrapped(slowRoll.y)) {}

    ProbeValues at(double turns) const {
        const double place = (turns - std::floor(turns)) * perTurn_ + 1.0;
        return {cubicAt(x_, place), cubicAt(y_, place)};
    }

private:
    // With the neighbours that a cubic needs beyond both ends of the turn.
    static std::vector<double> wrapped(const std::vector<double>& turn) {
        std::vector<double> values{turn.back()};
        values.insert(values.end(), turn.begin(), turn.end());
        values.insert(values.end(), turn.begin(), turn.begin() + 2);
        return values;
    }

    double perTurn_;
    std::vector<double> x_, y_;
};

// Walks over the samples of a recording and takes the run-out away from each.
template <typename RunOut>
class Remover {
public:
    Remover(Recording& recording, const RunOut& runOut, const ReadingProgress& progress)
        : recording_(recording), runOut_(runOut), progress_(progress) {}

    void removeAll(const ShaftTrack& track) {
        std::size_t done = 0;
        for (const ShaftRun& run : track.runs()) {
            const std::size_t first = std::max(done, sampleFrom(run.begin()));
            const std::size_t end = std::max(first, sampleFrom(run.end()));
            byAngle(done, first);
            byRun(run, first, end);
            done = end;
        }
        byAngle(done, recording_.sampleCount());
    }

private:
    // The first sample at or behind a time.
    std::size_t sampleFrom(double time) const {
        const auto sample = static_cast<std::size_t>(std::ceil(time * recording_.sampleRate));
        return std::min(sample, recording_.sampleCount());
    }

    void byAngle(std::size_t first, std::size_t end) {
        inBlocks(first, end, [this](std::size_t block, std::size_t count) {
            for (std::size_t i = block; i < block + count; ++i)
                remove(i, recording_.angle[i] / DegreesPerTurn);
        });
    }

    void byRun(const ShaftRun& run, std::size_t first, std::size_t end) {
        inBlocks(first, end, [&](std::size_t block, std::size_t count) {
            const auto turns = run.turnsAt(block, count, recording_.sampleRate);
            for (std::size_t i = 0; i < count; ++i)
                remove(block + i, turns[i]);
        });
    }

    template <typename Work>
    void inBlocks(std::size_t first, std::size_t end, Work work) {
        for (std::size_t block = first; block < end; block += BlockSize) {
            work(block, std::min(BlockSize, end - block));
            progress_.reach(static_cast<double>(std::min(block + BlockSize, end)) /
                            static_cast<double>(recording_.sampleCount()));
        }
    }

    void remove(std::size_t sample, double turns) {
        const ProbeValues value = runOut_.at(turns);
        recording_.x.lowerOne(sample, value.x);
        recording_.y.lowerOne(sample, value.y);
    }

    Recording& recording_;
    const RunOut& runOut_;
    const ReadingProgress& progress_;
};

template <typename RunOut>
void removeFrom(Recording& recording, const ShaftTrack& track, const RunOut& runOut,
                const ReadingProgress& progress) {
    Remover<RunOut>(recording, runOut, progress).removeAll(track);
}

[[noreturn]] void refuse(const std::string& taken, const std::string& recorded) {
    throw AnalysisError("the run-out was taken " + taken + ", and the recording has " + recorded);
}

void checkNames(const std::string& what, const std::string& taken, const std::string& recorded) {
    if (taken.empty() || recorded.empty() || taken == recorded) return;
    refuse("with the " + what + ' ' + inQuotes(taken), inQuotes(recorded));
}

void checkPlaces(const MachineFacts& machine, const SlowRoll& slowRoll) {
    const auto check = [](const char* probe, double taken, double recorded) {
        if (taken == recorded) return;
        refuse("with the " + std::string(probe) + " at " + shortText(taken) + " degrees",
               "it at " + shortText(recorded));
    };
    check("X probe", slowRoll.xAngle, machine.xAngle);
    check("Y probe", slowRoll.yAngle, machine.yAngle);
    check("keyphasor", slowRoll.tachoAngle, machine.tachoAngle);
}

// Without a mark an angle means nothing outside of its own recording.
void checkMark(const Recording& recording, const SlowRoll& slowRoll) {
    if ((slowRoll.hasMark && recording.hasMark()) || slowRoll.file == recording.file) return;
    throw AnalysisError(
        "the run-out was taken from another recording, and without one pulse a turn (or a ramp) in "
        "both nobody knows at which angles it belongs");
}

}  // namespace

void checkCompensable(const Recording& recording, const SlowRoll& slowRoll) {
    if (!recording.hasTacho())
        throw AnalysisError(
            "run-out is taken away by the shaft's angle, and the recording has no keyphasor");
    checkMark(recording, slowRoll);
    const MachineFacts& machine = recording.machine;
    checkNames("unit", slowRoll.unit, machine.unit);
    checkNames("point", slowRoll.point, machine.point);
    checkPlaces(machine, slowRoll);
    if (slowRoll.rotation && machine.rotation && slowRoll.rotation != machine.rotation)
        refuse("with the rotation " + std::string(toText(*slowRoll.rotation)),
               std::string(toText(*machine.rotation)));
}

Recording compensated(Recording recording, const ShaftTrack& track, const SlowRoll& slowRoll,
                      CompensationForm form, const ReadingProgress& progress) {
    checkCompensable(recording, slowRoll);
    if (form == CompensationForm::Vector)
        removeFrom(recording, track, VectorRunOut(slowRoll), progress);
    else
        removeFrom(recording, track, WaveformRunOut(slowRoll), progress);
    return recording;
}

std::string_view toText(CompensationForm form) {
    return form == CompensationForm::Vector ? "1X, 2X vector" : "waveform";
}

std::string compensationText(CompensationForm form) {
    return "run-out compensated: " + std::string(toText(form));
}

}  // namespace Rotavue::Workbench
