#include "workbench/window/docks/time_link.h"

#include <utility>

namespace Rotavue::Workbench {

TimeLink::TimeLink(Bench& bench, TimePlot& waveforms, TimePlot& speed, MarkedStretch& stretch,
                   QObject* parent)
    : QObject(parent), bench_(bench), waveforms_(waveforms), speed_(speed), stretch_(stretch) {
    link(waveforms_);
    link(speed_);
    connect(&bench, &Bench::curvesChanged, this, [this](const Plane* plane) {
        if (plane == plane_) show();
    });
    take({});
}

void TimeLink::link(TimePlot& plot) {
    connect(&plot, &TimePlot::cursorMoved, &bench_, &Bench::setCursor);
    connect(&bench_, &Bench::cursorMoved, &plot, &TimePlot::setCursor);
    connect(&plot, &TimePlot::markChanged, &stretch_, &MarkedStretch::set);
    connect(&stretch_, &MarkedStretch::changed, &plot, &TimePlot::setMark);
}

void TimeLink::setCurrent(const Plane* plane) {
    plane_ = plane;
    show();
}

void TimeLink::show() {
    const auto source = plane_ != nullptr ? plane_->sharedShown() : nullptr;
    if (source == shown_) return;
    shown_ = source;
    job_.forget();
    if (source == nullptr) return take({});
    if (source->recording.sampleCount() < LongRecording) return take(timeLanes(source));
    take({});
    waveforms_.setEmptyText(tr("Reading through the samples"));
    job_.start([this, source]() -> LatestJob::Deliver {
        auto lanes = std::make_shared<TimeLanes>(timeLanes(source));
        return [this, lanes] { take(std::move(*lanes)); };
    });
}

void TimeLink::take(TimeLanes lanes) {
    const bool isOpen = plane_ != nullptr;
    waveforms_.setEmptyText(tr("Nothing is open"));
    speed_.setEmptyText(isOpen ? tr("Without a keyphasor the speed is not known")
                               : tr("Nothing is open"));
    waveforms_.setLanes(std::move(lanes.probes));
    speed_.setLanes(std::move(lanes.speed));
    waveforms_.setDots(std::move(lanes.passings));
    for (TimePlot* plot : {&waveforms_, &speed_})
        plot->setCursor(bench_.cursor());
}

}  // namespace Rotavue::Workbench
