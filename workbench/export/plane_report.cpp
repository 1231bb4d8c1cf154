#include "workbench/export/plane_report.h"

#include "workbench/export/plane_picture.h"
#include "workbench/scene/graph_scale.h"
#include "workbench/scene/shown_span.h"
#include "workbench/window/docks/number_sheet.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <memory>
#include <set>
#include <utility>

namespace Rotavue::Workbench {

namespace {

using Pictures = std::vector<std::unique_ptr<PlanePicture>>;

std::string listed(const std::vector<std::string>& texts) {
    std::string line;
    for (const std::string& text : texts)
        line += (line.empty() ? "" : ", ") + text;
    return line;
}

/// Those that have a name, each once.
std::vector<std::string> machinesOf(const Bench& bench) {
    std::vector<std::string> machines;
    for (const auto& plane : bench.planes()) {
        const std::string& machine = plane->shown().recording.machine.machine;
        const bool isNew = std::find(machines.begin(), machines.end(), machine) == machines.end();
        if (isNew && !machine.empty()) machines.push_back(machine);
    }
    return machines;
}

std::vector<std::string> filesOf(const Bench& bench) {
    std::vector<std::filesystem::path> files;
    for (const auto& plane : bench.planes())
        files.push_back(plane->shown().recording.file);
    return fileTitles(files);
}

std::string fileLine(const Bench& bench) {
    const std::vector<std::string> files = filesOf(bench);
    return (files.size() == 1 ? "Recording: " : "Recordings: ") + listed(files);
}

std::string runOutWords(const Plane& plane) {
    return plane.compensation().empty() ? "run-out not compensated" : plane.compensation();
}

/// Said once where it is the same for all planes.
std::string runOutLine(const Bench& bench) {
    std::set<std::string> kinds;
    std::string line;
    for (const auto& plane : bench.planes()) {
        kinds.insert(runOutWords(*plane));
        line +=
            (line.empty() ? "" : ", ") + bench.titleOf(*plane).text() + ": " + runOutWords(*plane);
    }
    const bool alike = bench.planes().size() > 1 && kinds.size() == 1;
    return alike ? "All planes: " + *kinds.begin() : line;
}

std::shared_ptr<const Recording> recordingOf(const Plane& plane) {
    const auto source = plane.sharedShown();
    return {source, &source->recording};
}

std::shared_ptr<const ShaftTrack> trackOf(const Plane& plane) {
    const auto source = plane.sharedShown();
    return {source, &source->track};
}

NumberSheet sheetOf(const Bench& bench) {
    std::vector<ShownTurns> turns;
    for (const auto& plane : bench.planes())
        turns.push_back({.plane = QString::fromStdString(bench.titleOf(*plane).text()),
                         .recording = recordingOf(*plane),
                         .track = trackOf(*plane),
                         .span = stretchOf(plane->span(), plane->shown().track),
                         .isAnyShown = isAnyShown(plane->span()),
                         .shaftCenter = plane->curveOptions().shaftCenter});
    return numberSheet(turns);
}

ReportTable tableOf(const NumberSheet& sheet) {
    ReportTable table{.head = {""}, .rows = {}, .groups = {}};
    for (std::size_t i = 0; i < sheet.columns.size(); ++i) {
        table.head.push_back(sheet.columns[i].probe.toStdString());
        if (i % 2 == 0) table.groups.push_back(sheet.columns[i].plane.toStdString());
    }
    for (const NumberRow& row : sheet.rows) {
        table.rows.push_back({row.name.toStdString()});
        for (const QString& cell : row.cells)
            table.rows.back().push_back(cell.toStdString());
    }
    return table;
}

void addNotes(const Bench& bench, const NumberSheet& sheet, ReportContent& content) {
    for (const auto& plane : bench.planes())
        for (const std::string& note : plane->notes())
            content.notes.push_back(bench.titleOf(*plane).text() + ": " + note);
    for (const QString& note : sheet.notes)
        content.notes.push_back(note.toStdString());
}

/// One scale for all planes of a unit, in round numbers.
void shareScale(const Bench& bench, Pictures& pictures) {
    std::map<std::string, double> extents;
    const auto unitOf = [&](std::size_t i) -> const std::string& {
        return bench.planes()[i]->shown().recording.machine.unit;
    };
    for (std::size_t i = 0; i < pictures.size(); ++i) {
        double& extent = extents[unitOf(i)];
        extent = std::max(extent, pictures[i]->extent());
    }
    constexpr std::int32_t Ticks = 5;
    for (std::size_t i = 0; i < pictures.size(); ++i) {
        const double extent = extents[unitOf(i)];
        if (extent > 0.0) pictures[i]->setLimit(roundScale(extent, Background::Grid, Ticks).limit);
    }
}

}  // namespace

// The point of one plane is no title for all of them.
std::string reportTitle(const Bench& bench) {
    if (bench.planes().empty()) return "No recording";
    const std::vector<std::string> machines = machinesOf(bench);
    if (!machines.empty()) return listed(machines);
    if (bench.planes().size() == 1) return bench.planes().front()->name();
    const std::string planes = std::to_string(bench.planes().size()) + " planes";
    const std::vector<std::string> files = filesOf(bench);
    return files.size() == 1 ? planes + " of " + files.front() : planes;
}

std::vector<std::string> reportFacts(const Bench& bench) {
    return {fileLine(bench), runOutLine(bench)};
}

ReportTable reportNumbers(const Bench& bench) {
    return tableOf(sheetOf(bench));
}

DrawnReport drawPlaneReport(Bench& bench, const PictureOrder& order, bool sameScale) {
    Pictures pictures;
    for (const auto& plane : bench.planes())
        pictures.push_back(std::make_unique<PlanePicture>(*plane, bench));
    if (sameScale) shareScale(bench, pictures);
    const NumberSheet sheet = sheetOf(bench);
    ReportContent content{
        .title = reportTitle(bench), .facts = reportFacts(bench), .numbers = tableOf(sheet)};
    for (const auto& picture : pictures) {
        PlanePicture* const plane = picture.get();
        content.orbits.push_back(
            {[plane](const PictureArea& area) {
                 plane->fit(area);
                 return plane->header();
             },
             [plane](auto canvas, const PictureArea& area) { plane->draw(canvas, area); }});
    }
    addNotes(bench, sheet, content);
    return drawReport(std::move(content), order);
}

}  // namespace Rotavue::Workbench
