#pragma once

#include <cstdint>
#include <string>

namespace Meridax::VisualControls::Api {

/// The static description of a kind of control, used when the module is registered. Texts are
/// UTF-8.
struct VisualControlInfo {
    std::string icon;                ///< an icon of the control's own, in text form
    std::string hostIconName;        ///< one of the host's icons, for a control without its own
    std::string groupName;           ///< where the host lists the control
    std::string description;         ///< one or two sentences for the user
    std::string keywords;            ///< search words, separated by commas
    std::int32_t maxParameters = 0;  ///< greatest number of parameters
    std::int32_t width = 0;          ///< default width in pixels
    std::int32_t height = 0;         ///< default height in pixels
    bool extendOnAdd = false;        ///< the host's to interpret
    bool hasUnifiedProps = false;    ///< the host's to interpret
};

}  // namespace Meridax::VisualControls::Api
