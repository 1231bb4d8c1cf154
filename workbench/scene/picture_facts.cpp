#include "workbench/scene/picture_facts.h"

#include "workbench/scene/fact_words.h"

#include <algorithm>

namespace Rotavue::Workbench {

namespace {

std::string titleOf(const PictureSubject& subject) {
    const MachineFacts& machine = subject.machine;
    std::string title = machine.machine;
    if (!machine.point.empty()) title += (title.empty() ? "" : ", ") + machine.point;
    if (title.empty()) title = subject.name;
    return subject.detail.empty() ? title : title + " (" + subject.detail + ')';
}

/// Which curves there are: "direct + average", as the field calls them.
std::string curvesText(const PictureSubject& subject) {
    std::string words;
    for (const CurveRequest& request : subject.curves) {
        if (!words.empty()) words += " + ";
        words += request.kind == CurveKind::Raw ? "direct" : wordsOf(request);
    }
    return subject.coupling == Coupling::Ac ? words + ", AC" : words;
}

/// How much of the recording they show; empty where that is told by none of them.
std::string amountText(const PictureSubject& subject) {
    // What the plug-in shows of such a curve where the others are shown by turns.
    constexpr double SubSyncMilliseconds = 100.0;
    const ShownSpan& span = subject.span;
    const auto showsAny = [&](auto&& test) {
        return std::any_of(subject.curves.begin(), subject.curves.end(),
                           [&](const CurveRequest& request) { return test(request.kind); });
    };
    if (!showsAny(isOfShownTurns)) {
        if (!showsAny([](CurveKind kind) { return kind == CurveKind::SubSync; })) return {};
        return shortNumber(span.byTurns ? SubSyncMilliseconds : span.milliseconds) + " ms";
    }
    if (!span.byTurns) return shortNumber(span.milliseconds) + " ms";
    if (!isAnyShown(span)) return "no whole turn";
    return std::to_string(span.turnsThere) + (span.turnsThere == 1 ? " turn" : " turns");
}

std::string modeText(const PictureSubject& subject) {
    const std::string amount = amountText(subject);
    return curvesText(subject) + (amount.empty() ? "" : ", ") + amount;
}

std::string rotationText(const MachineFacts& machine) {
    if (!machine.rotation) return "rotation not given";
    return std::string("rotation ") + std::string(toText(*machine.rotation));
}

std::string scaleText(const GraphScale& scale, const std::string& unit) {
    return shortNumber(scale.division) + ' ' + (unit.empty() ? "units" : unit) + "/div";
}

}  // namespace

PictureHeader pictureHeader(const PictureSubject& subject, const std::optional<GraphScale>& scale) {
    const MachineFacts& machine = subject.machine;
    const ShownSpan& span = subject.span;
    PictureHeader header{.title = titleOf(subject), .facts = {}};
    header.facts.push_back(modeText(subject));
    if (span.speed > 0.0) header.facts.push_back(shortNumber(span.speed) + " rpm");
    header.facts.push_back("X " + placeText(machine.xAngle) + ", Y " + placeText(machine.yAngle));
    header.facts.push_back(rotationText(machine));
    if (scale) header.facts.push_back(scaleText(*scale, machine.unit));
    if (!subject.compensation.empty()) header.facts.push_back(subject.compensation);
    if (!subject.rest.empty()) header.facts.push_back(subject.rest);
    header.facts.push_back("at " + timeText(span.time) + " s");
    return header;
}

}  // namespace Rotavue::Workbench
