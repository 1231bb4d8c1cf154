#pragma once

#include "plugin/framework/host/data/host_channel.h"

#include <string>

namespace Meridax::VisualControls::Rotavue {

/// The machine's geometry as one channel tells it. Two are equal when all numbers are exactly equal
/// and the texts agree in every character.
struct BearingConfig {
    double xAngle = 0.0;            ///< "Orbit X Angle", degrees
    double yAngle = 0.0;            ///< "Orbit Y Angle", degrees
    double tachoAngle = 0.0;        ///< "Orbit Tacho Angle", degrees
    double clearanceRadiusY = 0.0;  ///< half of "Orbit Clearance Height", data units
    double clearanceRadiusX = 0.0;  ///< half of "Orbit Clearance Width", data units
    std::wstring directionText;     ///< "Orbit Rotation Direction"; "CCW" or anything else

    bool operator==(const BearingConfig&) const = default;
};

/// Reads the six properties. An empty one leaves its field at the default; a text without a number
/// raises `std::invalid_argument`, one beyond a 32-bit float `std::out_of_range`.
BearingConfig readBearingConfig(Host::IHostChannel& channel);

}  // namespace Meridax::VisualControls::Rotavue
