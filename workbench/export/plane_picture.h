#pragma once

#include "host_kit/control/driven_control.h"
#include "host_kit/loader/module.h"
#include "workbench/bench/bench.h"
#include "workbench/bench/plane.h"
#include "workbench/paint/picture_studio.h"
#include "workbench/paint/recorded_drawing.h"
#include "workbench/recording/reading_watch.h"
#include "workbench/scene/graph_scale.h"

#include <cstdint>
#include <optional>
#include <string>

namespace Rotavue::Workbench {

/// A picture as a control has drawn it, with nothing of the control: what is left is to paint it.
struct DrawnPicture {
    PictureOrder order;
    PictureHeader strip;
    RecordedDrawing drawing;
};

/// The bytes of its file. Any thread may ask. Raises `std::runtime_error` where there can be none,
/// and `ReadingCancelled`.
std::string paint(const DrawnPicture& picture, const ReadingProgress& progress = ReadingProgress());

/// A plane as it goes into a picture: dark on light, with the settings and the moment of the plane
/// on the screen, drawn by a control of its own. The one on the screen is not disturbed, and where
/// its user's pointer happens to be is in no picture.
///
/// While it lives, the host of the plane has light colours and tells no listener of anything.
class PlanePicture {
public:
    /// Raises `std::runtime_error` where the plug-in fails.
    PlanePicture(Plane& plane, Bench& bench);

    /// The axes' largest limit, as the plane has it or as its automatic scale finds it.
    double limit() const { return limit_; }

    /// How far what is drawn reaches; what the limits hold where the user has set them.
    double extent() const;

    /// Both axes run from -limit to limit.
    void setLimit(double limit);

    /// Takes as many ticks as the axes of an area have room for, at most those of the plane.
    void fit(const PictureArea& area);

    /// What stands in the strip: machine, point, curves, probes, rotation, speed, scale,
    /// compensation and time.
    PictureHeader header() const;

    void draw(const Meridax::Host::Ref<Meridax::Host::IHostCanvas>& canvas,
              const PictureArea& area);

    /// A picture of the plane alone, with or without the strip.
    DrawnPicture drawn(const PictureOrder& order, bool withHeader);

private:
    /// The plane's host in light colours and without its listener, for as long as this lives.
    class LentHost {
    public:
        LentHost(Plane& plane, bool wasLight);
        ~LentHost();
        LentHost(const LentHost&) = delete;
        LentHost& operator=(const LentHost&) = delete;

    private:
        Plane& plane_;
        bool wasLight_;
        HostKit::HostListener* listener_;
    };

    void findLimits();
    GraphScale scaleWith(std::int32_t ticks) const;

    Plane& plane_;
    PlaneTitle title_;
    LentHost host_;
    std::optional<HostKit::DrivenControl> control_;
    Settings settings_;
    double limit_ = 0.0;
    bool alike_ = true;
};

}  // namespace Rotavue::Workbench
