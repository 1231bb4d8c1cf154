#pragma once

#include <QString>

#include <string>

/// Numbers with as many digits as stand still while the shaft turns, the same in every row: what is
/// finer than a probe resolves is noise.
namespace Rotavue::Workbench {

/// A number with that many digits behind the point. What is too large to be one keeps its exponent,
/// and nothing is minus zero.
QString placed(double value, int places);

/// The digits behind the point that a hundredth of a span needs; 0 for no span.
int placesForSpan(double span);

/// The digits behind the point of a displacement: to a hundredth of a micrometre and to what is
/// near to that in other units; three where the unit is not a known length.
int displacementPlaces(const std::string& unit);
QString displacementText(double value, const std::string& unit);

/// A phase lag to a tenth of a degree, 0.0 to 359.9.
QString lagText(double degrees);

/// The tilt of an axis to a tenth of a degree, 0.0 to 179.9.
QString tiltText(double degrees);

/// A speed in whole rpm.
QString speedText(double rpm);

}  // namespace Rotavue::Workbench
