#include "plugin/orbit_control/bearing_config.h"

#include "plugin/framework/host/leading_float.h"
#include "plugin/orbit_control/number_text.h"
#include "plugin/orbit_control/text_property.h"

namespace Meridax::VisualControls::Rotavue {
namespace {

double numberOrZero(const std::wstring& text) {
    return text.empty() ? 0.0 : double{Host::leadingFloat(text)};
}

}  // namespace

BearingConfig readBearingConfig(Host::IHostChannel& channel) {
    const auto properties = channel.getProperties();
    // A decimal comma ends an angle and is a decimal point in a clearance: machines are set up so.
    const auto angle = [&](const wchar_t* name) {
        return numberOrZero(readTextProperty(properties, name));
    };
    const auto radius = [&](const wchar_t* name) {
        return numberOrZero(commasToPoints(readTextProperty(properties, name))) * 0.5;
    };
    BearingConfig config;
    config.xAngle = angle(L"Orbit X Angle");
    config.yAngle = angle(L"Orbit Y Angle");
    config.tachoAngle = angle(L"Orbit Tacho Angle");
    config.clearanceRadiusX = radius(L"Orbit Clearance Width");
    config.clearanceRadiusY = radius(L"Orbit Clearance Height");
    config.directionText = readTextProperty(properties, L"Orbit Rotation Direction");
    return config;
}

}  // namespace Meridax::VisualControls::Rotavue
