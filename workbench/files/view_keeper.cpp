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

ViewPlane viewOf(Plane& plane) {
    const PlaneSource& source = plane.original();
    ViewPlane view{source.recording.file,
                   source.options,
                   plane.curves(),
                   plane.curveOptions(),
                   setupOf(plane.acceptedSettings()),
                   std::nullopt,
                   plane.colorNumbers()};
    if (const auto& runOut = plane.shown().runOut) view.compensation = runOut->source;
    return view;
}

}  // namespace

View viewOf(Bench& bench) {
    View view;
    for (const auto& plane : bench.planes())
        view.planes.push_back(viewOf(*plane));
    view.cursor = bench.cursor();
    return view;
}

void showView(Bench& bench, const View& view,
              const std::vector<std::shared_ptr<const PlaneSource>>& sources) {
    std::vector<std::shared_ptr<Plane>> planes;
    for (std::size_t i = 0; i < view.planes.size(); ++i) {
        const ViewPlane& saved = view.planes[i];
        const PlaneSetup setup{saved.curves, settingsOf(saved.setup), saved.curveOptions,
                               saved.colors};
        planes.push_back(bench.makePlane(sources[i], setup));
    }
    bench.showPlanes(std::move(planes), view.cursor);
}

}  // namespace Rotavue::Workbench
