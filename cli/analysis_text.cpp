#include "cli/analysis_report.h"
#include "cli/text_table.h"
#include "workbench/analysis/machine_frame.h"
#include "workbench/analysis/order_ellipse.h"
#include "workbench/scene/fact_words.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace Rotavue::Cli {

namespace {

using namespace Workbench;

constexpr const char* Unknown = "-";
constexpr const char* TiltWords = "tilt: of the long axis, degrees clockwise from the top";
constexpr const char* LagWords = "lag: degrees from the pulse to the next positive peak";

std::string fixed(double value, int digits) {
    char text[400];
    std::snprintf(text, sizeof text, "%.*f", digits, value);
    return text;
}

/// Displacements with the digits of the largest of them: four that count in half of it, so that
/// what is noise beside it reads as 0.
class Lengths {
public:
    explicit Lengths(const AnalysisReport& report) {
        double largest = 0.0;
        for (const OrbitSummary& window : report.windows)
            largest = std::max({largest, window.direct.peakPeak.x, window.direct.peakPeak.y});
        if (largest > 0.0)
            digits_ = std::clamp(3 - static_cast<int>(std::floor(std::log10(largest / 2.0))), 0, 9);
    }

    std::string operator()(double value) const {
        return isZero(value) ? fixed(0.0, digits_) : fixed(value, digits_);
    }

    /// Whether it reads as 0.
    bool isZero(double value) const {
        return fixed(value, digits_).find_first_of("123456789") == std::string::npos;
    }

private:
    int digits_ = 3;
};

std::string speedText(const std::optional<double>& speed) {
    return speed ? fixed(*speed, 1) : Unknown;
}

std::string orderName(double order) {
    return shortNumber(order) + 'X';
}

std::string unitOf(const AnalysisReport& report) {
    return report.machine.unit.empty() ? "units" : report.machine.unit;
}

/// Facts of one window, a name and a text each.
class Block {
public:
    void add(const std::string& name, const std::string& text) {
        constexpr std::size_t Column = 13;
        text_ += name + std::string(Column - name.size(), ' ') + text + '\n';
    }

    const std::string& text() const { return text_; }

private:
    std::string text_;
};

std::string spanText(const OrbitSummary& window) {
    return shortNumber(window.span.from, 6) + " to " + shortNumber(window.span.to, 6) + " s";
}

/// The speeds at the ends stand beside the mean where they differ by more than single turns do.
std::string blockSpeed(const OrbitSummary& window) {
    constexpr double Even = 0.005;
    if (!window.speed) return "not known";
    const std::string mean = fixed(*window.speed, 1) + " rpm";
    if (std::abs(*window.speedLast - *window.speedFirst) <= Even * *window.speed) return mean;
    return mean + ", from " + fixed(*window.speedFirst, 1) + " to " + fixed(*window.speedLast, 1);
}

std::string gapText(const AnalysisReport& report, const OrbitSummary& window) {
    if (!window.direct.gap) return "not known: AC coupling takes it away";
    const ProbeValues gap = *window.direct.gap;
    const MachinePoint place = MachineFrame(report.machine).point(gap);
    const std::string unit = ' ' + unitOf(report);
    const Lengths text(report);
    return "X " + text(gap.x) + unit + ", Y " + text(gap.y) + unit + "; centre " + text(place.x) +
           unit + " right, " + text(place.y) + unit + " up";
}

std::string eccentricityText(const OrbitSummary& window) {
    return window.position ? fixed(window.position->eccentricity, 2) : Unknown;
}

std::string attitudeText(const OrbitSummary& window) {
    const bool isKnown = window.position && window.position->attitude;
    return isKnown ? fixed(*window.position->attitude, 1) : Unknown;
}

std::string positionText(const OrbitSummary& window) {
    return "e/c " + eccentricityText(window) + ", attitude " + attitudeText(window) +
           " degrees from straight down in the direction of rotation";
}

std::string directText(const AnalysisReport& report, const OrbitSummary& window) {
    const DirectValues& direct = window.direct;
    const std::string unit = ' ' + unitOf(report);
    const Lengths text(report);
    return "X " + text(direct.peakPeak.x) + unit + " pp, Y " + text(direct.peakPeak.y) + unit +
           " pp, Smax " + text(direct.smax) + unit;
}

/// Amplitude and lag of one probe: the lag in degrees with one decimal, 0 to 359.9, and left out
/// where the amplitude reads as 0.
void addVector(TextTable::Line& line, const Lengths& text, const FieldVector& vector,
               double factor) {
    const double amplitude = vector.amplitude * factor;
    const double lag = std::fmod(std::round(vector.phaseLag * 10.0), 3600.0) / 10.0;
    line.push_back(text(amplitude));
    line.push_back(text.isZero(amplitude) ? Unknown : fixed(lag, 1));
}

/// What does not exist has no shape, and a circle leans no way.
void addEllipse(TextTable::Line& line, const Lengths& text, const OrderEllipse& ellipse) {
    const bool isNothing = text.isZero(ellipse.semiMajor);
    const bool isCircle = text.isZero(ellipse.semiMajor - ellipse.semiMinor);
    const double tilt = std::fmod(std::round(ellipse.tilt * 10.0), 1800.0) / 10.0;
    line.push_back(text(ellipse.semiMajor) + " x " + text(ellipse.semiMinor));
    line.push_back(isNothing ? Unknown : fixed(ellipse.ratio(), 2));
    line.push_back(isCircle ? Unknown : fixed(tilt, 1));
    line.emplace_back(isNothing ? Unknown : toText(ellipse.precession));
}

std::string orderTable(const AnalysisReport& report, const OrbitSummary& window) {
    const double factor = scaleFactor(report.order.amplitude);
    const std::string unit = amplitudeUnit(report);
    const Lengths text(report);
    TextTable table;
    table.add({"order", "X " + unit, "X lag", "Y " + unit, "Y lag", "half axes " + unitOf(report),
               "ratio", "tilt", "precession"});
    for (const auto& [vectors, ellipse] : window.orders) {
        TextTable::Line line{orderName(vectors.order)};
        addVector(line, text, vectors.x, factor);
        addVector(line, text, vectors.y, factor);
        addEllipse(line, text, ellipse);
        table.add(std::move(line));
    }
    return table.text();
}

std::string oneWindow(const AnalysisReport& report) {
    const OrbitSummary& window = report.windows.front();
    Block block;
    block.add("span", spanText(window));
    block.add("speed", blockSpeed(window));
    block.add("gap", gapText(report, window));
    if (report.order.tellsRest()) block.add("position", positionText(window));
    block.add("direct", directText(report, window));
    if (window.orders.empty()) return block.text();
    block.add("orders", LagWords);
    block.add("", TiltWords);
    return block.text() + '\n' + orderTable(report, window);
}

TextTable::Line windowHead(const AnalysisReport& report) {
    const std::string unit = unitOf(report);
    TextTable::Line line{"from s",        "to s",         "rpm",         "X gap " + unit,
                         "Y gap " + unit, "X pp " + unit, "Y pp " + unit};
    if (report.order.tellsRest()) line.insert(line.end(), {"e/c", "attitude"});
    for (const double order : report.order.orders) {
        const std::string name = ' ' + orderName(order) + ' ';
        for (const char* probe : {"X", "Y"}) {
            line.push_back(probe + name + amplitudeUnit(report));
            line.push_back("lag");
        }
    }
    return line;
}

TextTable::Line windowLine(const AnalysisReport& report, const Lengths& text,
                           const OrbitSummary& window) {
    const double factor = scaleFactor(report.order.amplitude);
    const DirectValues& direct = window.direct;
    TextTable::Line line{shortNumber(window.span.from, 6),
                         shortNumber(window.span.to, 6),
                         speedText(window.speed),
                         direct.gap ? text(direct.gap->x) : Unknown,
                         direct.gap ? text(direct.gap->y) : Unknown,
                         text(direct.peakPeak.x),
                         text(direct.peakPeak.y)};
    if (report.order.tellsRest())
        line.insert(line.end(), {eccentricityText(window), attitudeText(window)});
    for (const OrderSummary& order : window.orders)
        for (const FieldVector& vector : {order.vectors.x, order.vectors.y})
            addVector(line, text, vector, factor);
    if (window.orders.empty()) line.resize(line.size() + 4 * report.order.orders.size(), Unknown);
    return line;
}

std::string manyWindows(const AnalysisReport& report) {
    const Lengths text(report);
    TextTable table;
    table.add(windowHead(report));
    for (const OrbitSummary& window : report.windows)
        table.add(windowLine(report, text, window));
    return table.text();
}

}  // namespace

std::string analysisAsText(const AnalysisReport& report) {
    const MachineFacts& machine = report.machine;
    Block head;
    head.add("file", report.file);
    head.add("probes", "X " + placeText(machine.xAngle) + ", Y " + placeText(machine.yAngle));
    if (!report.compensation.empty()) head.add("run-out", "compensated: " + report.compensation);
    if (report.order.window) head.add("orders", LagWords);
    std::string text = head.text();
    text += report.order.window ? '\n' + manyWindows(report) : oneWindow(report);
    if (!report.notes.empty()) text += '\n';
    Block notes;
    for (const std::string& note : report.notes)
        notes.add("note", note);
    return text + notes.text();
}

}  // namespace Rotavue::Cli
