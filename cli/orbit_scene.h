#pragma once

#include "cli/render_options.h"
#include "host_kit/memory/memory_host.h"
#include "workbench/recording/recording.h"
#include "workbench/scene/picture_facts.h"
#include "workbench/scene/shown_span.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace Rotavue::Cli {

/// Recordings as a host that analyses them shows them to one control: a group for each raw orbit, a
/// channel for each derived curve.
class OrbitScene {
public:
    /// Reads the recordings. Raises `RecordingError`, and `std::runtime_error` where they cannot be
    /// shown as asked, or not in one picture.
    explicit OrbitScene(const RenderOptions& options);

    HostKit::MemoryHost& host() { return host_; }
    const Workbench::MachineFacts& machine() const { return machine_; }
    const Workbench::ShownSpan& span() const { return span_; }

    /// What a picture of the scene must tell.
    Workbench::PictureSubject subject() const;

    /// Whether the first recording tells the shaft's speed.
    bool hasSpeed() const { return hasSpeed_; }

    /// What is shown of each recording.
    const std::vector<Workbench::CurveRequest>& show() const { return show_; }

    /// The curves, as in the legend.
    const std::vector<std::string>& curveNames() const { return curveNames_; }

    /// The recordings' names.
    const std::vector<std::string>& names() const { return names_; }

    /// What a person should know of the recordings and of what is shown, one line each.
    const std::vector<std::string>& notes() const { return notes_; }

private:
    std::vector<Workbench::Recording> readAll(const RenderOptions& options);
    void checkAgreement(const std::vector<Workbench::Recording>& recordings) const;
    void chooseSpan(const std::vector<Workbench::Recording>& recordings,
                    const RenderOptions& options);
    void measureSpan(const Workbench::Recording& recording, std::size_t position);

    /// Raises `std::runtime_error` for samples to be drawn that are all gaps: a gap holds the
    /// values before it, and would show a shaft that stands.
    void refuseGap(const Workbench::Recording& recording, std::size_t first,
                   std::size_t last) const;

    void note(const Workbench::Recording& recording, const std::vector<std::string>& notes);
    void addDerived(const std::vector<Workbench::Recording>& recordings,
                    const RenderOptions& options);
    void addRaw(std::vector<Workbench::Recording> recordings, const RenderOptions& options);
    std::string curveName(std::size_t recording, const Workbench::CurveRequest& request) const;

    HostKit::MemoryHost host_;
    Workbench::MachineFacts machine_;
    Workbench::Coupling coupling_ = Workbench::Coupling::Dc;
    Workbench::ShownSpan span_;
    std::optional<Workbench::CompensationForm> compensation_;
    std::string rest_;  ///< as pictures say it
    bool hasSpeed_ = false;
    std::vector<Workbench::CurveRequest> show_;
    std::vector<std::string> names_;
    std::vector<std::string> curveNames_;
    std::vector<std::string> notes_;
};

}  // namespace Rotavue::Cli
