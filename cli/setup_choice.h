#pragma once

#include "cli/render_options.h"
#include "host_kit/control/driven_control.h"

#include <initializer_list>
#include <optional>
#include <string>

namespace Rotavue::Cli {

/// A setup file as what options start from: an option that is given goes before it.
class SetupChoice {
public:
    /// Reads the file and has a control load it. Raises `RecordingError`.
    SetupChoice(const std::string& file, const std::optional<std::string>& module);

    /// The setup has no say in these keys.
    void leave(std::initializer_list<const wchar_t*> keys);
    void leaveLimits();

    /// How much of the recordings is shown, unless that is given.
    void takeSpan(RenderOptions& options);

    /// The plot, as far as the setup has a say and `options` hold nothing that was given.
    void takePlot(RenderOptions& options);

private:
    bool isOn(const wchar_t* key) const;
    double number(const wchar_t* key) const;

    HostKit::DrivenControl::Settings texts_;
};

}  // namespace Rotavue::Cli
