#include "workbench/files/view_keeper.h"

#include <QString>

#include <utility>

namespace Rotavue::Workbench {
namespace {

std::map<std::string, std::string> setupOf(const Settings& settings) {
    std::map<std::string, std::string> setup;
    for (const auto& [key, text] : settings)
        setup[QString::fromStdWString(key).toStdString()] =
            QString::fromStdWString(text).toStdString();
    return setup;
}

Settings settingsOf(const std::map<std::string, std::string>& setup) {
    Settings settings;
    for (const auto& [key, text] : setup)
        settings[QString::fromStdString(key).toStdWString()] =
            QString::fromStdString(text).toStdWString();
    return settings;
}

ViewPlane viewOf(Plane& plane, const CompensationKeeper& keeper) {
    const PlaneSource& source = plane.original();
    ViewPlane view{
        source.recording.file,           source.options, plane.curves(), plane.curveOptions(),
        setupOf(plane.control().save()), std::nullopt};
    if (keeper.taken) view.compensation = keeper.taken(plane);
    return view;
}

}  // namespace

View viewOf(Bench& bench, const CompensationKeeper& keeper) {
    View view;
    for (const auto& plane : bench.planes())
        view.planes.push_back(viewOf(*plane, keeper));
    view.cursor = bench.cursor();
    return view;
}

void showView(Bench& bench, const View& view,
              const std::vector<std::shared_ptr<const PlaneSource>>& planes,
              const CompensationKeeper& keeper) {
    bench.playback().pause();
    while (!bench.planes().empty())
        bench.removePlane(*bench.planes().back());
    for (std::size_t i = 0; i < view.planes.size(); ++i) {
        const ViewPlane& saved = view.planes[i];
        const PlaneSetup setup{saved.curves, settingsOf(saved.setup), saved.curveOptions};
        Plane& plane = bench.addPlane(planes[i], setup);
        if (saved.compensation && keeper.take) keeper.take(plane, *saved.compensation);
    }
    bench.setCursor(view.cursor);
    bench.undoStack().clear();
}

}  // namespace Rotavue::Workbench
