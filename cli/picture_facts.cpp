#include "cli/picture_facts.h"

#include "cli/fact_words.h"

namespace Rotavue::Cli {

namespace {

using namespace Workbench;

std::string titleOf(const OrbitScene& scene) {
    const MachineFacts& machine = scene.machine();
    std::string title = machine.machine;
    if (!machine.point.empty()) title += (title.empty() ? "" : ", ") + machine.point;
    return title.empty() ? scene.names().front() : title;
}

std::string modeText(const OrbitScene& scene) {
    const ShownSpan& span = scene.span();
    const std::string amount = span.byTurns ? std::to_string(span.turnsThere) : std::string();
    const std::string turns = span.turnsThere == 1 ? " turn" : " turns";
    const std::string shown =
        span.byTurns ? amount + turns : shortNumber(span.milliseconds) + " ms";
    return std::string(scene.coupling() == Coupling::Ac ? "direct, AC" : "direct") + ", " + shown;
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
    header.facts.push_back("at " + shortNumber(span.time) + " s");
    return header;
}

}  // namespace Rotavue::Cli
