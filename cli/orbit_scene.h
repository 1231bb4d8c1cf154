#pragma once

#include "cli/render_options.h"
#include "host_kit/memory/memory_host.h"
#include "workbench/recording/recording.h"

#include <cstddef>
#include <string>
#include <vector>

namespace Rotavue::Cli {

/// What of the recordings is on show.
struct ShownSpan {
    bool byTurns = false;
    int turns = 0;              ///< asked for
    int turnsThere = 0;         ///< whole ones in the first recording
    double milliseconds = 0.0;  ///< where not by turns
    double time = 0.0;          ///< s after the first sample, of the newest one
    double speed = 0.0;         ///< rpm, the mean over the span; 0: not known
};

/// Recordings as a host that analyses them shows them to one control: a group each.
class OrbitScene {
public:
    /// Reads the recordings. Raises `RecordingError`, and `std::runtime_error` where they cannot be
    /// shown as asked, or not in one picture.
    explicit OrbitScene(const RenderOptions& options);

    HostKit::MemoryHost& host() { return host_; }
    const Workbench::MachineFacts& machine() const { return machine_; }
    Workbench::Coupling coupling() const { return coupling_; }
    const ShownSpan& span() const { return span_; }

    /// The recordings' names, as in the legend.
    const std::vector<std::string>& names() const { return names_; }

    /// What a person should know of the recordings and of what is shown, one line each.
    const std::vector<std::string>& notes() const { return notes_; }

private:
    void checkAgreement(const std::vector<Workbench::Recording>& recordings) const;
    void chooseSpan(const std::vector<Workbench::Recording>& recordings,
                    const RenderOptions& options);
    void measureSpan(const Workbench::Recording& recording, std::size_t position);
    void assign(std::vector<Workbench::Recording> recordings, const RenderOptions& options);

    HostKit::MemoryHost host_;
    Workbench::MachineFacts machine_;
    Workbench::Coupling coupling_ = Workbench::Coupling::Dc;
    ShownSpan span_;
    std::vector<std::string> names_;
    std::vector<std::string> notes_;
};

}  // namespace Rotavue::Cli
