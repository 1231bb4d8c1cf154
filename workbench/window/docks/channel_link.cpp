#include "workbench/window/docks/channel_link.h"

#include "workbench/paint/host_color.h"

#include <algorithm>

namespace Rotavue::Workbench {

namespace {

TreePlane treePlane(const Bench& bench, const std::shared_ptr<Plane>& shared) {
    const Plane& plane = *shared;
    const Recording& recording = plane.shown().recording;
    TreePlane shown{.name = QString::fromStdString(bench.titleOf(plane).text()),
                    .file = QString::fromStdString(recording.file.string()),
                    .hasTacho = recording.hasTacho(),
                    .hasMeanPosition = recording.coupling == Coupling::Dc,
                    .shown = {},
                    .rest = plane.curveOptions().shaftCenter.rest,
                    .identity = shared};
    for (std::size_t i = 0; i < plane.curves().size(); ++i)
        shown.shown.push_back({plane.curves()[i], fromHostColor(plane.colorOf(i))});
    return shown;
}

}  // namespace

ChannelLink::ChannelLink(Bench& bench, ChannelTree& tree, QObject* parent)
    : QObject(parent), bench_(bench), tree_(tree) {
    connect(&bench, &Bench::planesChanged, this, &ChannelLink::show);
    connect(&bench, &Bench::curvesChanged, this, &ChannelLink::show);
    connect(&bench, &Bench::schemeChanged, this, &ChannelLink::show);
    connect(&tree, &ChannelTree::failed, &bench, &Bench::report);
    connect(&tree, &ChannelTree::planeSelected, this, [this](std::size_t place) {
        if (Plane* plane = planeAt(place)) planeSelected(plane);
    });
    connect(&tree, &ChannelTree::curvesWanted, this,
            [this](std::size_t place, const std::vector<CurveRequest>& curves) {
                if (Plane* plane = planeAt(place)) bench_.setCurves(*plane, curves);
            });
    connect(&tree, &ChannelTree::restWanted, this, [this](std::size_t place, RestPosition rest) {
        Plane* plane = planeAt(place);
        if (plane == nullptr) return;
        CurveOptions options = plane->curveOptions();
        options.shaftCenter.rest = rest;
        bench_.setCurveOptions(*plane, std::move(options));
    });
    show();
}

Plane* ChannelLink::planeAt(std::size_t place) const {
    return place < bench_.planes().size() ? bench_.planes()[place].get() : nullptr;
}

void ChannelLink::setCurrent(const Plane* plane) {
    current_ = plane;
    const auto& planes = bench_.planes();
    const auto found = std::find_if(planes.begin(), planes.end(),
                                    [plane](const auto& one) { return one.get() == plane; });
    if (found != planes.end()) tree_.selectPlane(static_cast<std::size_t>(found - planes.begin()));
}

void ChannelLink::show() {
    std::vector<TreePlane> planes;
    for (const auto& plane : bench_.planes())
        planes.push_back(treePlane(bench_, plane));
    tree_.setPlanes(std::move(planes));
    setCurrent(current_);  // which may have come before its row
}

}  // namespace Rotavue::Workbench
