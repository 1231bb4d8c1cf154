#include "workbench/recording/recording_builder.h"

#include <algorithm>
#include <cmath>
#include <future>
#include <numbers>
#include <utility>

#include "workbench/recording/column_roles.h"
#include "workbench/recording/degrees.h"
#include "workbench/recording/gaps.h"
#include "workbench/recording/keyphasor.h"
#include "workbench/recording/number_field.h"
#include "workbench/recording/option_items.h"
#include "workbench/recording/time_column.h"

namespace Rotavue::Workbench {
namespace {

constexpr double LeastRate = 1e-3;
constexpr double LargestRate = 1e9;
constexpr double LargestSpeed = 1e9;      // rpm
constexpr double LargestTimeStray = 3.0;  // steps, before it is worth a note
constexpr double SecondsPerMinute = 60.0;

// How much of all is done when the file is read, and when there are displacements.
constexpr double PartOfReading = 0.8;
constexpr double PartOfDisplacements = 0.9;

// The mean over what is no gap.
double meanOf(SampleView values) {
    double sum = 0.0;
    std::size_t count = 0;
    values.forEach([&](double value) {
        if (std::isnan(value)) return;
        sum += value;
        ++count;
    });
    return count > 0 ? sum / static_cast<double>(count) : 0.0;
}

bool isGap(double x, double y) {
    return std::isnan(x) || std::isnan(y);
}

}  // namespace

RecordingBuilder::RecordingBuilder(const std::filesystem::path& file, SampleSource& source,
                                   RecordingOptions options)
    : source_(source), options_(std::move(options)) {
    recording_.file = file;
}

Recording RecordingBuilder::build(const ReadingProgress& progress) {
    recording_.columns = assignRoles(recording_.file, source_.head(), options_);
    noteFurtherPlanes();
    readColumns(progress.between(0.0, PartOfReading));
    takeRate();
    takeDisplacements();
    progress.reach(PartOfDisplacements);
    // Of a large recording each look at all samples takes time, and these wait for nothing.
    auto farMeans = std::async(std::launch::async | std::launch::deferred, [this] {
        return std::pair(farMeanOf(recording_.x, options_.x), farMeanOf(recording_.y, options_.y));
    });
    takeKeyphasor();
    takeFacts();
    const auto [xFar, yFar] = farMeans.get();
    noteFarProbe("X", xFar);
    noteFarProbe("Y", yFar);
    progress.reach(1.0);
    return std::move(recording_);
}

// Which plane was taken is told where nobody named it.
void RecordingBuilder::noteFurtherPlanes() {
    if (!source_.head().namesGiven || (options_.x.column && options_.y.column)) return;
    const std::vector<std::string> further = furtherProbes(recording_.columns);
    if (further.empty()) return;
    recording_.notes.push_back(
        "taken are " + inQuotes(columnOf(ColumnRole::X)->name) + " and " +
        inQuotes(columnOf(ColumnRole::Y)->name) + "; " + std::to_string(further.size()) +
        " further columns have names of probes, such as " + inQuotes(further.front()));
}

// A time column that a given rate replaces isn't read: it may be what is wrong with the file.
void RecordingBuilder::readColumns(const ReadingProgress& progress) {
    for (std::size_t i = 0; i < recording_.columns.size(); ++i) {
        const ColumnRole role = recording_.columns[i].role;
        const bool replaced = role == ColumnRole::Time && options_.rate;
        if (role != ColumnRole::Unused && !replaced) wanted_.push_back({i, role});
    }
    values_ = source_.read(wanted_, progress);
}

// The values of the column with this role, handed over; empty if there is none.
Samples RecordingBuilder::taken(ColumnRole role) {
    for (std::size_t i = 0; i < wanted_.size(); ++i) {
        if (wanted_[i].role == role) return std::move(values_[i]);
    }
    return {};
}

const RecordingColumn* RecordingBuilder::columnOf(ColumnRole role) const {
    const auto found =
        std::find_if(recording_.columns.begin(), recording_.columns.end(),
                     [&](const RecordingColumn& column) { return column.role == role; });
    return found != recording_.columns.end() ? &*found : nullptr;
}

void RecordingBuilder::takeRate() {
    const Samples time = taken(ColumnRole::Time);
    if (options_.rate) {
        recording_.sampleRate = *options_.rate;
        recording_.rateSource = RateSource::Option;
    } else if (!time.empty()) {
        takeTime(time);
    } else if (source_.head().rate) {
        recording_.sampleRate = *source_.head().rate;
        recording_.rateSource = RateSource::FileHeader;
    } else {
        throw RecordingError({recording_.file}, "neither a time column nor a sample rate",
                             "a column named t or time, or the rate as an option");
    }
}

void RecordingBuilder::takeTime(const Samples& time) {
    const auto steps = readTimeSteps(time, secondsPerUnit(columnOf(ColumnRole::Time)->unit));
    if (!steps) {
        throw RecordingError({recording_.file},
                             time.size() == 1 ? "one row of samples" : "a time that stands still",
                             "two or more rows of rising time, or the rate as an option");
    }
    if (!(steps->rate >= LeastRate && steps->rate <= LargestRate)) {
        throw RecordingError({recording_.file},
                             "a time column of " + numberText(steps->rate) + " samples per second",
                             "a rate from 0.001 to 1e+09");
    }
    recording_.sampleRate = steps->rate;
    recording_.rateSource = RateSource::TimeColumn;
    recording_.startTime = steps->start;
    if (steps->largestStray * steps->rate > LargestTimeStray) {
        recording_.notes.push_back("the time strays from equal steps by up to " +
                                   numberText(steps->largestStray) +
                                   " s; the samples are taken as equally spaced");
    }
}

void RecordingBuilder::takeDisplacements() {
    recording_.coupling = options_.coupling.value_or(Coupling::Dc);
    recording_.x = displacement(ColumnRole::X, options_.x);
    recording_.y = displacement(ColumnRole::Y, options_.y);
    noteTurnedProbe("X", options_.x);
    noteTurnedProbe("Y", options_.y);
    checkPairs();
    noteGaps();
}

// Mostly it was copied from a data sheet, whose volts count the gap and not the shaft's coming.
void RecordingBuilder::noteTurnedProbe(const char* name, const ProbeOptions& probe) {
    if (probe.sensitivity.value_or(1.0) > 0.0) return;
    recording_.notes.push_back(std::string("the ") + name +
                               " probe is turned round by its negative sensitivity");
}

Samples RecordingBuilder::displacement(ColumnRole role, const ProbeOptions& probe) {
    Samples values = taken(role);
    if (probe.rest || probe.sensitivity)
        values.calibrate(probe.rest.value_or(0.0), probe.sensitivity.value_or(1.0));
    if (recording_.coupling == Coupling::Ac) values.lower(meanOf(values));
    return values;
}

void RecordingBuilder::checkPairs() const {
    for (std::size_t i = 0; i < recording_.x.size(); ++i) {
        if (!isGap(recording_.x[i], recording_.y[i])) return;
    }
    throw RecordingError({recording_.file}, "gaps alone in x or y",
                         "at least one sample in which both have a value");
}

void RecordingBuilder::noteGaps() {
    const std::size_t count = countGaps(recording_.x, recording_.y);
    if (count == 0) return;
    recording_.notes.push_back(std::to_string(count) + " of " +
                               std::to_string(recording_.x.size()) + " samples are gaps");
}

void RecordingBuilder::takeKeyphasor() {
    const RecordingColumn* column = columnOf(ColumnRole::Keyphasor);
    if (!column) return;
    Samples values = taken(ColumnRole::Keyphasor);
    const auto fromName = options_.keyphasor.kind ? options_.keyphasor.kind : kindFromName(*column);
    recording_.keyphasorKind = fromName.value_or(kindFromValues(values));
    switch (recording_.keyphasorKind) {
        case KeyphasorKind::Ramp:
            takeRamp(std::move(values));
            break;
        case KeyphasorKind::Speed:
            takeSpeed(std::move(values));
            break;
        case KeyphasorKind::Volts:
        case KeyphasorKind::None:
            takePulses(std::move(values));
            break;
    }
    noteFastTurns();
    noteMissingMark();
}

void RecordingBuilder::takePulses(Samples volts) {
    const PulseRule rule = pulseRuleFor(volts, options_.keyphasor);
    std::vector<double> pulses = findPulses(volts, rule);
    if (pulses.size() < 2) {
        recording_.keyphasorKind = KeyphasorKind::None;
        recording_.notes.push_back("the keyphasor has " + std::to_string(pulses.size()) +
                                   " pulses at level " + numberText(rule.level) +
                                   ", two are needed: there is no shaft angle");
        return;
    }
    const int pulsesPerTurn = options_.keyphasor.pulsesPerTurn.value_or(1);
    recording_.pulsesPerTurn = pulsesPerTurn;
    recording_.meanSpeed = speedFromPulses(pulses, recording_.sampleRate, pulsesPerTurn);
    for (const double pulse : pulses) {
        recording_.pulseTimes.push_back(pulse / recording_.sampleRate);
    }
    recording_.angle = Samples(PulseAngle(std::move(pulses), pulsesPerTurn, volts.size()));
}

void RecordingBuilder::takeRamp(Samples column) {
    std::vector<double>& degrees = column.edit();
    const bool radians = columnOf(ColumnRole::Keyphasor)->unit == "rad";
    const double unit = radians ? 180.0 / std::numbers::pi : 1.0;
    for (double& angle : degrees)
        angle = wrappedDegrees(angle * unit);
    double turns = turnsOf(degrees);
    if (turns < 0.0) {
        for (double& angle : degrees)
            angle = wrappedDegrees(-angle);
        turns = -turns;
        recording_.notes.emplace_back("the shaft angle falls in the file; it was turned over");
    }
    const double steps = static_cast<double>(degrees.size()) - 1.0;
    if (steps > 0.0) {
        recording_.meanSpeed = turns / steps * recording_.sampleRate * SecondsPerMinute;
    }
    recording_.angle = std::move(column);
}

void RecordingBuilder::takeSpeed(Samples column) {
    std::vector<double>& rpm = column.edit();
    const bool hertz = columnOf(ColumnRole::Keyphasor)->unit == "Hz";
    for (double& speed : rpm) {
        speed *= hertz ? SecondsPerMinute : 1.0;
        if (speed >= 0.0 && speed <= LargestSpeed) continue;
        throw RecordingError({recording_.file}, "a speed of " + numberText(speed) + " rpm",
                             "0 to 1e+09 rpm");
    }
    recording_.meanSpeed = meanOf(rpm);
    recording_.angle = angleFromSpeed(rpm, recording_.sampleRate);
}

void RecordingBuilder::noteMissingMark() {
    if (!recording_.hasTacho() || recording_.hasMark()) return;
    const std::string why =
        recording_.keyphasorKind == KeyphasorKind::Speed
            ? "the keyphasor column is a speed, and the angle counts from the first sample"
            : "the keyphasor has " + std::to_string(recording_.pulsesPerTurn) +
                  " pulses a turn, and the angle counts from the first of the recording";
    recording_.notes.push_back(why + ": lags hold within this recording alone");
}

// From half a turn per sample on, a step forward and a fall-back look alike.
void RecordingBuilder::noteFastTurns() {
    const double turnsPerSample = recording_.meanSpeed / SecondsPerMinute / recording_.sampleRate;
    if (turnsPerSample < 0.5) return;
    recording_.notes.push_back(
        "the shaft makes half a turn or more from sample to sample: "
        "turns cannot be told apart");
}

void RecordingBuilder::takeFacts() {
    const SourceHead& head = source_.head();
    MachineFacts& facts = recording_.machine;
    facts.machine = options_.machine.value_or(head.machine);
    facts.point = options_.point.value_or(head.point);
    facts.unit = unit();
    facts.xAngle = wrappedDegrees(options_.x.angle.value_or(facts.xAngle));
    facts.yAngle = wrappedDegrees(options_.y.angle.value_or(facts.yAngle));
    facts.tachoAngle = wrappedDegrees(options_.keyphasor.angle.value_or(facts.tachoAngle));
    facts.rotation = options_.rotation;
    facts.clearanceWidth = options_.clearanceWidth.value_or(0.0);
    facts.clearanceHeight = options_.clearanceHeight.value_or(0.0);
}

std::optional<FarMean> RecordingBuilder::farMeanOf(const Samples& values,
                                                   const ProbeOptions& probe) const {
    if (probe.rest || recording_.coupling == Coupling::Ac) return std::nullopt;
    return farMean(values);
}

// The volts of a gap, or a displacement that counts from far away: of the orbit a dot is left.
void RecordingBuilder::noteFarProbe(const char* name, const std::optional<FarMean>& far) {
    if (!far) return;
    const std::string& unit = recording_.machine.unit;
    const bool isVolts = unit == "V" || unit == "mV";
    recording_.notes.push_back(
        std::string("the ") + name + " probe stands at " + numberText(inThreeDigits(far->mean)) +
        (unit.empty() ? "" : ' ' + unit) + ", " + numberText(inThreeDigits(far->times)) +
        " times its peak-to-peak: tell its rest position" +
        (isVolts ? " and " + unit + "/um" : "") + ", or AC (in the window with Ctrl+I)");
}

// The header's unit is that of the file's values: with a sensitivity it says nothing.
std::string RecordingBuilder::unit() const {
    if (options_.unit) return *options_.unit;
    const bool scaled = options_.x.sensitivity || options_.y.sensitivity;
    if (scaled) return "";
    const std::string& x = columnOf(ColumnRole::X)->unit;
    const std::string& y = columnOf(ColumnRole::Y)->unit;
    if (x != y) {
        throw RecordingError({recording_.file}, "x in " + inQuotes(x) + " and y in " + inQuotes(y),
                             "one unit for both, or sensitivities and the unit as options");
    }
    return x.empty() ? source_.head().unit : x;
}

}  // namespace Rotavue::Workbench
