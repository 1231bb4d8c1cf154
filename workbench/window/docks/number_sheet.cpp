#include "workbench/window/docks/number_sheet.h"

#include "workbench/analysis/analysis_error.h"
#include "workbench/analysis/orbit_summary.h"
#include "workbench/analysis/shaft_position.h"
#include "workbench/window/docks/number_text.h"

#include <QCoreApplication>

#include <array>
#include <optional>
#include <string>

namespace Rotavue::Workbench {

namespace {

constexpr std::array Orders{1.0, 2.0};

QString tr(const char* text) {
    return QCoreApplication::translate("NumberSheet", text);
}

struct CellPair {
    QString x = QStringLiteral("-");
    QString y;
};

CellPair nothingEach() {
    return {QStringLiteral("-"), QStringLiteral("-")};
}

/// What is told of one plane; nothing where its stretch holds no sample.
using PlaneSummary = std::optional<OrbitSummary>;

CellPair displacements(const PlaneSummary& summary, double x, double y) {
    return {displacementText(x, summary->unit), displacementText(y, summary->unit)};
}

const OrderSummary* orderOf(const PlaneSummary& summary, double order) {
    if (!summary) return nullptr;
    for (const OrderSummary& found : summary->orders)
        if (found.vectors.order == order) return &found;
    return nullptr;
}

CellPair peakPeak(const PlaneSummary& summary) {
    if (!summary) return nothingEach();
    return displacements(summary, summary->direct.peakPeak.x, summary->direct.peakPeak.y);
}

CellPair gap(const PlaneSummary& summary) {
    if (!summary || !summary->direct.gap) return nothingEach();
    return displacements(summary, summary->direct.gap->x, summary->direct.gap->y);
}

CellPair amplitude(const PlaneSummary& summary, double order) {
    const OrderSummary* found = orderOf(summary, order);
    if (found == nullptr) return nothingEach();
    const double factor = scaleFactor(AmplitudeScale::PeakPeak);
    return displacements(summary, found->vectors.x.amplitude * factor,
                         found->vectors.y.amplitude * factor);
}

/// Whether an amplitude is nothing to the digits in which it is shown.
bool isNothing(const PlaneSummary& summary, double amplitude) {
    const double peakPeak = amplitude * scaleFactor(AmplitudeScale::PeakPeak);
    return displacementText(peakPeak, summary->unit).toDouble() == 0.0;
}

/// What is not there has no lag; the fit gives that of its rounding.
QString lagOf(const PlaneSummary& summary, const FieldVector& vector) {
    if (isNothing(summary, vector.amplitude)) return QStringLiteral("-");
    return lagText(vector.phaseLag);
}

CellPair lag(const PlaneSummary& summary, double order) {
    const OrderSummary* found = orderOf(summary, order);
    if (found == nullptr) return nothingEach();
    return {lagOf(summary, found->vectors.x), lagOf(summary, found->vectors.y)};
}

CellPair sense(const PlaneSummary& summary, double order) {
    const OrderSummary* found = orderOf(summary, order);
    if (found == nullptr || isNothing(summary, found->ellipse.semiMajor)) return {};
    Precession precession = found->ellipse.precession;
    const bool isLine = isNothing(summary, found->ellipse.semiMinor);
    if (isLine && precession != Precession::Unknown) precession = Precession::Straight;
    const std::string text(toText(precession));
    return {tr(text.c_str()), {}};
}

QString ratioText(double ratio) {
    constexpr int Places = 2;
    return placed(ratio, Places);
}

CellPair axesRatio(const PlaneSummary& summary, double order) {
    const OrderSummary* found = orderOf(summary, order);
    if (found == nullptr || isNothing(summary, found->ellipse.semiMajor)) return {};
    return {ratioText(found->ellipse.ratio()), {}};
}

/// A circle leans no way.
CellPair tilt(const PlaneSummary& summary, double order) {
    const OrderSummary* found = orderOf(summary, order);
    if (found == nullptr) return {};
    const OrderEllipse& ellipse = found->ellipse;
    if (isNothing(summary, ellipse.semiMajor - ellipse.semiMinor)) return {};
    return {tiltText(ellipse.tilt), {}};
}

CellPair eccentricity(const PlaneSummary& summary) {
    if (!summary || !summary->position) return {};
    return {ratioText(summary->position->eccentricity), {}};
}

CellPair attitude(const PlaneSummary& summary) {
    if (!summary || !summary->position || !summary->position->attitude) return {};
    return {placed(*summary->position->attitude, 1), {}};
}

CellPair smax(const PlaneSummary& summary) {
    if (!summary) return {};
    return {displacementText(summary->direct.smax, summary->unit), {}};
}

CellPair speed(const PlaneSummary& summary) {
    if (!summary || !summary->speed) return {};
    return {speedText(*summary->speed), {}};
}

CellPair stretch(const PlaneSummary& summary) {
    if (!summary) return {};
    constexpr int Places = 4;
    return {tr("%1 to %2")
                .arg(summary->span.from, 0, 'f', Places)
                .arg(summary->span.to, 0, 'f', Places),
            {}};
}

/// Whether somebody has told how the shaft rests: in the centre is what is taken otherwise.
bool tellsRest(const ShaftCenterChoice& choice) {
    return choice.restSpan || choice.rest != RestPosition::Centre;
}

/// What makes displacements count from the middle of the clearance, where that is told.
template <typename Note>
std::optional<ProbeValues> toCentre(const ShownTurns& plane, const Note& note) {
    const bool hasMean = plane.recording->coupling == Coupling::Dc;
    if (!hasMean || !tellsRest(plane.shaftCenter)) return {};
    try {
        return shiftToCentre(*plane.recording, plane.shaftCenter.rest, plane.shaftCenter.restSpan);
    } catch (const AnalysisError& error) {
        note(error.what());
        return {};
    }
}

PlaneSummary summaryOf(const ShownTurns& plane, std::vector<QString>& notes) {
    const auto note = [&](const std::string& text) {
        notes.push_back(plane.plane + ": " + QString::fromStdString(text));
    };
    if (!plane.isAnyShown) {
        note("no whole turn of the shaft before the cursor, the orbit shows nothing");
        return {};
    }
    try {
        OrbitSummary summary =
            summarize(*plane.recording, *plane.track, Orders, plane.span, toCentre(plane, note));
        for (const std::string& text : summary.notes)
            note(text);
        return summary;
    } catch (const AnalysisError& error) {
        note(error.what());
        return {};
    }
}

/// One row of the sheet and how a plane fills it.
struct RowKind {
    const char* name;
    const char* help;
    CellPair (*cells)(const PlaneSummary& summary);
};

constexpr RowKind RowKinds[] = {
    {"Peak-to-peak",
     "Direct (unfiltered): largest less smallest value. ISO 20816-1 judges the "
     "larger of the two by method B.",
     peakPeak},
    {"Smax (ISO C)",
     "The largest distance of the orbit from its mean point: method C of ISO 20816-1.", smax},
    {"Gap", "Mean position of the shaft toward the probe.", gap},
    {"Position e/c",
     "The shaft's distance from the middle of its bearing by the clearance in that direction: 0 in "
     "the middle, 1 at the wall. It needs the clearance (Ctrl+I) and the shaft's rest (Edit menu).",
     eccentricity},
    {"Attitude (deg)",
     "The shaft's direction from the middle of its bearing: from straight down, in the direction "
     "of "
     "rotation.",
     attitude},
    {"1X, pp", "Amplitude at the shaft's speed, peak to peak.",
     [](const PlaneSummary& summary) { return amplitude(summary, 1.0); }},
    {"1X lag (deg)", "From the keyphasor's pulse to the next positive peak.",
     [](const PlaneSummary& summary) { return lag(summary, 1.0); }},
    {"1X precession", "The sense of 1X against that of the shaft.",
     [](const PlaneSummary& summary) { return sense(summary, 1.0); }},
    {"1X axes ratio", "The short axis of the 1X ellipse by its long one: 0 a line, 1 a circle.",
     [](const PlaneSummary& summary) { return axesRatio(summary, 1.0); }},
    {"1X tilt (deg)",
     "Of the long axis, clockwise from the top of the picture, as the probes' angles are.",
     [](const PlaneSummary& summary) { return tilt(summary, 1.0); }},
    {"2X, pp", "Amplitude at twice the shaft's speed, peak to peak.",
     [](const PlaneSummary& summary) { return amplitude(summary, 2.0); }},
    {"2X lag (deg)", "From the keyphasor's pulse to the next positive peak, in degrees of 2X.",
     [](const PlaneSummary& summary) { return lag(summary, 2.0); }},
    {"2X precession", "The sense of 2X against that of the shaft.",
     [](const PlaneSummary& summary) { return sense(summary, 2.0); }},
    {"2X axes ratio", "The short axis of the 2X ellipse by its long one: 0 a line, 1 a circle.",
     [](const PlaneSummary& summary) { return axesRatio(summary, 2.0); }},
    {"2X tilt (deg)",
     "Of the long axis, clockwise from the top of the picture, as the probes' angles are.",
     [](const PlaneSummary& summary) { return tilt(summary, 2.0); }},
    {"Speed (rpm)", "Mean over the whole turns of the stretch.", speed},
    {"Stretch (s)", "What these are the numbers of: the turns that the orbit shows.", stretch},
};

}  // namespace

NumberSheet numberSheet(const std::vector<ShownTurns>& planes) {
    NumberSheet sheet;
    std::vector<PlaneSummary> summaries;
    for (const ShownTurns& plane : planes) {
        summaries.push_back(summaryOf(plane, sheet.notes));
        const QString unit = QString::fromStdString(plane.recording->machine.unit);
        const QString suffix = unit.isEmpty() ? QString() : " (" + unit + ')';
        sheet.columns.push_back({plane.plane, "X" + suffix});
        sheet.columns.push_back({plane.plane, "Y" + suffix});
    }
    for (const RowKind& kind : RowKinds) {
        NumberRow row{tr(kind.name), tr(kind.help), {}};
        for (const PlaneSummary& summary : summaries) {
            const CellPair cells = kind.cells(summary);
            row.cells.insert(row.cells.end(), {cells.x, cells.y});
        }
        sheet.rows.push_back(std::move(row));
    }
    return sheet;
}

}  // namespace Rotavue::Workbench
