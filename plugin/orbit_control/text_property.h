#pragma once

#include "plugin/framework/host/data/host_properties.h"
#include "plugin/framework/host/ref.h"

#include <string>

namespace Meridax::VisualControls::Rotavue {

/// The text of the named property, empty when it is unset.
inline std::wstring readTextProperty(const Host::Ref<Host::IHostProperties>& properties,
                                     const std::wstring& name) {
    return properties->getValue(name);
}

}  // namespace Meridax::VisualControls::Rotavue
