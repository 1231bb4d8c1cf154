#pragma once

#include "host_kit/control/driven_control.h"
#include "host_kit/memory/memory_host.h"
#include "workbench/bench/plane_source.h"
#include "workbench/scene/color_book.h"
#include "workbench/scene/curve_options.h"
#include "workbench/scene/curve_request.h"
#include "workbench/scene/shown_span.h"
#include "workbench/scene/slow_curves.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Rotavue::Workbench {

using Settings = HostKit::DrivenControl::Settings;

/// What a plane begins with.
struct PlaneSetup {
    std::vector<CurveRequest> curves{CurveRequest{}};
    std::optional<Settings> settings = {};  ///< unset: what suits the recording, `usualSettings`
    CurveOptions options = {};
    std::vector<std::size_t> colors = {};  ///< of each curve, `ColorBook`; empty: the usual ones
};

/// Whether the host of a plane is measuring or looks at stored data.
enum class HostState : std::uint8_t { Stored, Acquiring };

/// One bearing plane: a recording, the curves that are chosen of it, and the host with its one
/// control that shows them. The control is reached through messages alone; `control()` sends them.
///
/// Operations that change something tell nobody. Whoever wants a change to be seen, undone and
/// saved asks the `Bench` for it, which has an operation for each of them.
class Plane {
public:
    /// Makes the control, assigns the curves and loads the settings. A source that run-out is taken
    /// off is shown so at once. Raises `LoadError` or `std::runtime_error` where the plug-in cannot
    /// be had.
    Plane(std::shared_ptr<const PlaneSource> source, HostKit::Module& module,
          const PlaneSetup& setup, bool light);
    Plane(const Plane&) = delete;
    Plane& operator=(const Plane&) = delete;

    // What is shown.

    /// The recording as it was read.
    const PlaneSource& original() const { return *original_; }
    std::shared_ptr<const PlaneSource> sharedOriginal() const { return original_; }

    /// The recording that the control and all panels show: the original one, or what is left of it
    /// when run-out is taken off.
    const PlaneSource& shown() const { return *shown_; }
    std::shared_ptr<const PlaneSource> sharedShown() const { return shown_; }

    /// What was taken off, as the header of a picture says it; empty for the original recording.
    std::string compensation() const;

    /// Shows the original recording or what is left of it without run-out.
    void show(std::shared_ptr<const PlaneSource> form);

    const std::string& name() const { return name_; }

    // Curves.

    const std::vector<CurveRequest>& curves() const { return curves_; }
    void setCurves(std::vector<CurveRequest> curves);
    const CurveOptions& curveOptions() const { return options_; }
    void setCurveOptions(CurveOptions options);

    /// Those of them that the control can draw; `notes` tells why others are missing.
    std::vector<CurveRequest> drawnCurves() const;

    /// The colour of a curve by its place in `curves`, in the host's encoding. A curve keeps it,
    /// whatever else is shown.
    std::uint32_t colorOf(std::size_t curve) const;

    /// The numbers of the curves' colours, for `PlaneSetup`.
    std::vector<std::size_t> colorNumbers() const;

    /// The curves' colours suit a light or a dark background.
    void setLight(bool light);

    // Time.

    /// Moves the cursor, s after the first sample. A time behind the last sample shows that one.
    /// Curves of the shown turns are computed anew when other turns are shown. Costs no more than
    /// the shown turns do, however long the recording is.
    void showMoment(double seconds, HostState state);

    std::size_t position() const { return position_; }  ///< number of the newest sample
    double time() const;                                ///< of that sample, s after the first one
    HostState state() const { return state_; }

    /// Whether the cursor stands behind the last sample, which is the newest one then.
    bool hasEnded() const { return hasEnded_; }

    /// What the settings make of the moment: turns or milliseconds, how many, the mean speed.
    ShownSpan span() const;

    // Settings.

    /// What the control held when it was last asked, by setup key.
    const Settings& settings() const { return settings_; }

    /// Lets the control load them. What was tried out is over.
    void load(const Settings& settings);

    /// Lets the control load settings that nobody has accepted yet, in the place of those that it
    /// has.
    void tryOut(const Settings& settings);

    bool isTryingOut() const { return accepted_.has_value(); }

    /// Nothing of what was tried out was accepted: the settings of before are back.
    void endTrial();

    /// What is to be saved: what the control holds, limits that it has found included; while
    /// something is tried out, the settings of before.
    Settings acceptedSettings() const;

    /// Asks the control what it holds now. True if that is something else than before, but for
    /// limits that an automatic scale has found.
    bool readBack();

    // The control and its host.

    HostKit::DrivenControl& control() { return *control_; }
    HostKit::MemoryHost& host() { return host_; }

    // Curves that take long, scene/slow_curves.h: they are made on a thread of their own, and come
    // when they are there.

    const SlowCurves& slowCurves() const { return slow_; }

    /// Shows what has been made since the last look. True if there was any.
    bool showMadeCurves();

    /// Gives up what is not made yet; a note says so.
    void cancelCurves();

    /// Stops making curves for as long as nobody sees the plane, and goes on.
    void suspendCurves();
    void resumeCurves();

    /// What a person should know of the recording and its curves, one line each; a curve that
    /// cannot be had of this recording has a line that says why.
    std::vector<std::string> notes() const;

private:
    void takeRaw();
    void assign();

    /// Makes the curve of that place anew, or notes why it cannot be had.
    void make(std::size_t curve);

    void dropCurves();
    void listChannels();
    void recolor();
    void refreshShownTurns();
    void placeHost();
    void takeSlow(std::size_t curve);
    void useShown();
    std::string nameOf(const CurveRequest& request) const;

    std::shared_ptr<const PlaneSource> original_;
    std::shared_ptr<const PlaneSource> shown_;
    std::string name_;
    std::vector<CurveRequest> curves_;
    ColorBook colors_;
    std::size_t made_ = 0;  ///< curves that the host may have a channel of
    CurveOptions options_;
    bool light_;
    std::size_t position_;
    bool hasEnded_ = false;
    HostState state_ = HostState::Stored;
    TimeSpan stretch_{0.0, 0.0};  ///< that the curves of the shown turns are made of
    Settings settings_;
    std::optional<Settings> accepted_;                     ///< before what is tried out
    std::vector<std::vector<std::string>> notesOfCurves_;  ///< by place in `curves_`
    SlowCurves slow_;
    HostKit::MemoryHost host_;
    std::unique_ptr<HostKit::DrivenControl> control_;
};

/// The settings that a recording is first shown with: eight turns, or 100 ms without a keyphasor,
/// three ticks, and the clearance where it is known.
Settings usualSettings(const PlaneSource& source);

/// What of settings a user has set: limits that the automatic scale finds anew in every frame are
/// left out.
Settings withoutFoundLimits(Settings settings);

}  // namespace Rotavue::Workbench
