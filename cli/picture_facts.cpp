#include "cli/picture_facts.h"

#include "workbench/scene/fact_words.h"

#include <algorithm>

namespace Rotavue::Cli {

namespace {

using namespace Workbench;

std::string titleOf(const OrbitScene& scene) {
    const MachineFacts& machine = scene.machine();
    std::string title = machine.machine;
    if (!machine.point.empty()) title += (title.empty() ? "" : ", ") + machine.point;
    return title.empty() ? scene.names().front() : title;
}

/// Which curves there are: "direct + average", as the field calls them.
std::string curvesText(const OrbitScene& scene) {
    std::string words;
    for (const CurveRequest& request : scene.show()) {
        if (!words.empty()) words += " + ";
        words += request.kind == CurveKind::Raw ? "direct" : wordsOf(request);
    }
    return scene.coupling() == Coupling::Ac ? words + ", AC" : words;
}

/// How much of the recording they show; empty where that is told by none of them.
std::string amountText(const OrbitScene& scene) {
    // What the plug-in shows of such a curve where the others are shown by turns.
    constexpr double SubSyncMilliseconds = 100.0;
    const ShownSpan& span = scene.span();
    const auto showsAny = [&](auto&& test) {
        return std::any_of(scene.show().begin(), scene.show().end(),
                           [&](const CurveRequest& request) { return test(request.kind); });
    };
    if (!showsAny(isOfShownTurns)) {
        if (!showsAny([](CurveKind kind) { return kind == CurveKind::SubSync; })) return {};
        return shortNumber(span.byTurns ? SubSyncMilliseconds : span.milliseconds) + " ms";
    }
    if (!span.byTurns) return shortNumber(span.milliseconds) + " ms";
    return std::to_string(span.turnsThere) + (span.turnsThere == 1 ? " turn" : " turns");
}

std::string modeText(const OrbitScene& scene) {
    const std::string amount = amountText(scene);
    return curvesText(scene) + (amount.empty() ? "" : ", ") + amount;
}

std::string rotationText(const MachineFacts& machine) {
    if (!machine.rotation) return "rotation not given";
    return std::string("rotation ") + std::string(toText(*machine.rotation));
}

std::string scaleText(const GraphScale& scale, const std::string& unit) {
    return shortNumber(scale.division) + ' ' + (unit.empty() ? "units" : unit) + "/div";
}

}  // namespace

PictureHeader pictureHeader(const OrbitScene& scene, const std::optional<GraphScale>& scale) {
    const MachineFacts& machine = scene.machine();
    const ShownSpan& span = scene.span();
    PictureHeader header{.title = titleOf(scene), .facts = {}};
    header.facts.push_back(modeText(scene));
    if (span.speed > 0.0) header.facts.push_back(shortNumber(span.speed) + " rpm");
    header.facts.push_back("X " + placeText(machine.xAngle) + ", Y " + placeText(machine.yAngle));
    header.facts.push_back(rotationText(machine));
    if (scale) header.facts.push_back(scaleText(*scale, machine.unit));
    if (scene.compensation()) header.facts.push_back(compensationText(*scene.compensation()));
    header.facts.push_back("at " + shortNumber(span.time) + " s");
    return header;
}

}  // namespace Rotavue::Cli
