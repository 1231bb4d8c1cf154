#pragma once

#include "host_kit/memory/channel_description.h"
#include "workbench/analysis/shaft_track.h"
#include "workbench/recording/background_task.h"
#include "workbench/recording/recording.h"
#include "workbench/scene/curve_options.h"
#include "workbench/scene/curve_request.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Rotavue::Workbench {

/// A curve as it was made; without a channel the notes say why there is none.
struct MadeCurve {
    std::optional<HostKit::ChannelDescription> channel;
    std::vector<std::string> notes;  ///< one line each
};

/// What curves are made of that take as long as the recording is. All of it stays as it is.
struct CurveMaterial {
    std::shared_ptr<const Recording> recording;
    std::shared_ptr<const ShaftTrack> track;
    CurveOptions options;
};

/// The curves of one recording that do not follow the cursor, each made once, on a thread of its
/// own, one after the other. What takes no time to speak of is made at once. Nothing is called
/// back: the one thread that uses this looks from time to time.
class SlowCurves {
public:
    /// Up to so many samples, curves are made at once.
    static constexpr std::size_t QuickSamples = 50'000;
    /// And a reference, from a recording of up to so many bytes.
    static constexpr std::uintmax_t QuickFile = 1'000'000;

    /// From now on curves are made of this; what was made before goes, and what is being made is
    /// dropped.
    void use(CurveMaterial material);

    /// The curve of a request that is not `isOfShownTurns`. Null where it isn't made yet; its
    /// making begins with the first call.
    const MadeCurve* find(const CurveRequest& request);

    /// Drops all curves but these.
    void keepOnly(const std::vector<CurveRequest>& requests);

    /// Takes what has been made since the last look. True if there was any.
    bool look();

    /// The curve that is being made; null where all are made.
    const CurveRequest* current() const;
    double part() const;  ///< of that curve, 0 to 1

    /// Gives up those that are not made yet; each has a note that says so.
    void cancel();

    /// Gives up those that are not made yet as if nobody had asked for them.
    void forgetUnmade();

private:
    using Task = BackgroundTask<MadeCurve>;

    struct Entry {
        CurveRequest request;
        std::optional<MadeCurve> made;
    };

    bool isQuick(const CurveRequest& request) const;
    void beginNext();
    void drop();

    CurveMaterial material_;
    std::vector<Entry> entries_;
    CurveRequest currentRequest_;
    std::unique_ptr<Task> current_;
};

}  // namespace Rotavue::Workbench
