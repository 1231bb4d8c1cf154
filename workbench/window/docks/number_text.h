#pragma once

#include <QString>

#include <string>

/// Numbers with as many digits as stand still while the shaft turns, the same in every row: what is
/// finer than a probe resolves is noise.
namespace Rotavue::Workbench {

/// A displacement, to a hundredth of a micrometre and to what is near to that in other units; to
/// three places where the unit is not a known length.
QString displacementText(double value, const std::string& unit);

/// A phase lag to a tenth of a degree, 0.0 to 359.9.
QString lagText(double degrees);

/// A speed in whole rpm.
QString speedText(double rpm);

}  // namespace Rotavue::Workbench
