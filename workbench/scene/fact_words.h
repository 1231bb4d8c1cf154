#pragma once

#include "workbench/recording/recording.h"
#include "workbench/scene/curve_options.h"
#include "workbench/scene/curve_request.h"

#include <string>
#include <vector>

/// The words for the facts of a recording, the same in every output.
namespace Rotavue::Workbench {

const char* roleText(ColumnRole role);
const char* sourceText(RateSource source);

/// Turns of the shaft from the first sample to the last, whichever way; 0 without a keyphasor.
double turnsIn(const Recording& recording);

/// A probe's place as the field says it: "45\u00b0 R" is right of the top, "45\u00b0 L" left of it.
std::string placeText(double degreesClockwise);

/// A time in s, to a tenth of a millisecond wherever it is told.
std::string timeText(double seconds);

/// A number with at most that many significant digits, but no fewer than stand before its point.
std::string shortNumber(double value, int digits = 4);

/// From which stretch and for which point of the clearance the rest position of a shaft centre was
/// taken: "rest 0 to 0.5 s at the bottom". Empty where none was, or no such curve is drawn.
std::string restText(const ShaftCenterChoice& choice, const std::vector<CurveRequest>& drawn);

}  // namespace Rotavue::Workbench
