#pragma once

#include <cstddef>

#include "workbench/recording/samples.h"

namespace Rotavue::Workbench {

/// The samples that the control shows of a raw orbit by revolutions: from the newest turn mark back
/// over so many turns.
struct TurnWindow {
    std::size_t first = 0;  ///< oldest sample shown
    std::size_t last = 0;   ///< newest sample shown
    int turns = 0;          ///< whole turns that are there, at most as many as were asked for
    double speed = 0.0;     ///< rpm, the mean over the window; 0 where none is known
};

/// The window before and with sample `position`, as many turns as there are but no more than
/// `revolutions`. `angle` is a recording's, not empty; neighbours that differ by more than 180
/// degrees mark a turn.
TurnWindow turnWindow(SampleView angle, double sampleRate, std::size_t position, int revolutions);

/// The mean speed in rpm from one sample to a later one; 0 for one sample alone.
double meanSpeed(SampleView angle, double sampleRate, std::size_t first, std::size_t last);

}  // namespace Rotavue::Workbench
