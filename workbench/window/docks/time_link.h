#pragma once

#include "workbench/bench/bench.h"
#include "workbench/window/docks/latest_job.h"
#include "workbench/window/docks/marked_stretch.h"
#include "workbench/window/docks/time_lanes.h"
#include "workbench/window/docks/time_plot.h"

#include <QObject>

#include <memory>

namespace Rotavue::Workbench {

/// Lets two plots show the waveforms and the speed of one plane of a bench, with the bench's cursor
/// and with one marked stretch for both. Recordings that take long are read through on a worker.
class TimeLink final : public QObject {
public:
    /// All must outlive this object.
    TimeLink(Bench& bench, TimePlot& waveforms, TimePlot& speed, MarkedStretch& stretch,
             QObject* parent = nullptr);

    /// Shows that plane; null: none.
    void setCurrent(const Plane* plane);

    /// Samples from which on a worker reads.
    static constexpr std::size_t LongRecording = 1'000'000;

private:
    void link(TimePlot& plot);
    void show();
    void take(TimeLanes lanes);

    Bench& bench_;
    TimePlot& waveforms_;
    TimePlot& speed_;
    MarkedStretch& stretch_;
    const Plane* plane_ = nullptr;
    std::shared_ptr<const PlaneSource> shown_;
    LatestJob job_;
};

}  // namespace Rotavue::Workbench
