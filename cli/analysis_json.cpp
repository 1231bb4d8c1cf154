#include "cli/analysis_report.h"
#include "cli/json_values.h"
#include "workbench/analysis/machine_frame.h"
#include "workbench/analysis/order_ellipse.h"

namespace Rotavue::Cli {

namespace {

using namespace Workbench;

Json orNull(const std::optional<double>& value) {
    return value ? Json(*value) : Json();
}

Json probes(const ProbeValues& values) {
    return {{"x", values.x}, {"y", values.y}};
}

Json positionOf(const std::optional<ProbeValues>& gap, const MachineFacts& machine) {
    if (!gap) return {};
    const MachinePoint place = MachineFrame(machine).point(*gap);
    return {{"right", place.x}, {"up", place.y}};
}

Json bearingOf(const std::optional<ShaftPosition>& position) {
    if (!position) return {};
    return {{"eccentricity", position->eccentricity}, {"attitude", orNull(position->attitude)}};
}

Json vectorOf(const FieldVector& vector, double factor) {
    return {{"amplitude", vector.amplitude * factor}, {"lag", vector.phaseLag}};
}

Json orderOf(const OrderSummary& order, double factor) {
    const OrderEllipse& ellipse = order.ellipse;
    return {{"order", order.vectors.order},
            {"x", vectorOf(order.vectors.x, factor)},
            {"y", vectorOf(order.vectors.y, factor)},
            {"ellipse",
             {{"semiMajor", ellipse.semiMajor},
              {"semiMinor", ellipse.semiMinor},
              {"ratio", ellipse.semiMajor > 0.0 ? Json(ellipse.ratio()) : Json()},
              {"tilt", ellipse.tilt},
              {"precession", toText(ellipse.precession)}}}};
}

Json windowOf(const OrbitSummary& window, const AnalysisReport& report) {
    Json orders = Json::array();
    for (const OrderSummary& order : window.orders)
        orders.push_back(orderOf(order, scaleFactor(report.order.amplitude)));
    const DirectValues& direct = window.direct;
    return {{"from", window.span.from},
            {"to", window.span.to},
            {"speed", orNull(window.speed)},
            {"speedFirst", orNull(window.speedFirst)},
            {"speedLast", orNull(window.speedLast)},
            {"gap", direct.gap ? probes(*direct.gap) : Json()},
            {"position", positionOf(direct.gap, report.machine)},
            {"shaft", bearingOf(window.position)},
            {"peakPeak", probes(direct.peakPeak)},
            {"smax", direct.smax},
            {"orders", orders},
            {"notes", window.notes}};
}

Json unitsOf(const AnalysisReport& report) {
    return {{"displacement", textOrNull(report.machine.unit)},
            {"amplitude", amplitudeUnit(report)},
            {"lag", "degrees from the keyphasor's pulse to the next positive peak"},
            {"tilt", "degrees clockwise from the top"},
            {"eccentricity", "of the clearance in that direction"},
            {"attitude", "degrees from straight down in the direction of rotation"},
            {"speed", "rpm"},
            {"time", "s"}};
}

}  // namespace

std::string analysisAsJson(const AnalysisReport& report) {
    Json windows = Json::array();
    for (const OrbitSummary& window : report.windows)
        windows.push_back(windowOf(window, report));
    const MachineFacts& machine = report.machine;
    const Json facts{{"file", report.file},
                     {"machine", textOrNull(machine.machine)},
                     {"point", textOrNull(machine.point)},
                     {"xAngle", machine.xAngle},
                     {"yAngle", machine.yAngle},
                     {"rotation", machine.rotation ? Json(toText(*machine.rotation)) : Json()},
                     {"compensation", textOrNull(report.compensation)},
                     {"units", unitsOf(report)},
                     {"windows", windows},
                     {"notes", report.notes}};
    return facts.dump(2, ' ', false, Json::error_handler_t::replace) + '\n';
}

}  // namespace Rotavue::Cli
