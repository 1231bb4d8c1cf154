#pragma once

#include "cli/render_options.h"
#include "host_kit/memory/channel_description.h"
#include "workbench/analysis/orbit_channels.h"
#include "workbench/analysis/shaft_track.h"
#include "workbench/recording/recording.h"
#include "workbench/scene/curve_request.h"
#include "workbench/scene/shown_span.h"

#include <string>
#include <vector>

namespace Rotavue::Workbench {

/// The curves that an analysis makes of one recording, as the channels in which a host offers them.
class DerivedCurves {
public:
    /// All four must outlive this object. The progress is that of each curve.
    DerivedCurves(const Recording& recording, const ShaftTrack& track, const ShownSpan& span,
                  const CurveOptions& options, ReadingProgress progress = ReadingProgress());

    /// The curve of a request that is not raw. Raises `AnalysisError` where the recording does not
    /// give it, `std::runtime_error`, with the name, for a reference that cannot be used, and
    /// `ReadingCancelled`.
    HostKit::ChannelDescription make(const CurveRequest& request, const ChannelStyle& style);

    /// What a person should know of the curves made so far, one line each.
    const std::vector<std::string>& notes() const { return notes_; }

private:
    HostKit::ChannelDescription byAngle(const ChannelStyle& style) const;
    HostKit::ChannelDescription notFirst(const ChannelStyle& style) const;
    HostKit::ChannelDescription average(const ChannelStyle& style) const;
    HostKit::ChannelDescription harmonic(const CurveRequest& request, const ChannelStyle& style);
    HostKit::ChannelDescription subSync(const ChannelStyle& style);
    HostKit::ChannelDescription reference(const CurveRequest& request,
                                          const ChannelStyle& style) const;
    HostKit::ChannelDescription shaftCenter(const ChannelStyle& style);
    void note(const std::vector<std::string>& notes);

    const Recording& recording_;
    const ShownSpan& span_;
    const CurveOptions& options_;
    const ShaftTrack& track_;
    ReadingProgress progress_;
    std::vector<std::string> notes_;
};

/// The interval of a shaft-centre position where none is asked for: a round part of the stretch,
/// which has about thirty of them, and two turns at least. In s.
double usualInterval(double length, double speed, double sampleRate);

}  // namespace Rotavue::Workbench
