#pragma once

#include <cstdint>

namespace Meridax::VisualControls::Api {

/// The messages that a control answers to. The comment names the arguments by position and the
/// result; docs/contract.md tells the rest. Every other code answers 0 and does nothing.
enum class MessageCode : std::uint32_t {
    InterfaceQuery = 0,    ///< gives the number 1
    Attach = 2,            ///< IHostApp, IHostVisualControl; status 0x80004004 refuses an old host
    ChannelCheck = 3,      ///< channel; gives a boolean
    DataWindow = 6,        ///< gives four integers: block, offset, block, offset
    RefusedQuery = 7,      ///< status 1
    WheelForward = 8,      ///< word shift state, x, y; direction true
    WheelBackward = 9,     ///< word shift state, x, y; direction false
    ButtonReleased = 10,   ///< byte button, word shift state, x, y
    ButtonPressed = 11,    ///< byte button, word shift state, x, y
    PointerMoved = 12,     ///< word shift state, x, y
    Close = 18,            ///< no arguments
    GroupCheck = 24,       ///< group; gives a boolean
    PointerEntered = 25,   ///< no arguments
    PointerLeft = 26,      ///< no arguments
    GroupChanged = 29,     ///< object
    CanCopy = 30,          ///< gives a boolean
    Copy = 31,             ///< no arguments
    Setup = 33,            ///< IHostXmlDocument, IHostXmlNode, word 0xFFFF for writing
    BuildProperties = 34,  ///< panel
    FillProperties = 35,   ///< panel
    ReadProperty = 36,     ///< text, IHostPropertyControl
    PropertyEvent = 37,    ///< text, object, integer
    Draw = 42,             ///< IHostCanvas, left, top, right, bottom; at 7 the scheme number
    ChannelsChanged = 45,  ///< slot index
};

/// The greatest code of the message table.
inline constexpr std::uint32_t LastMessageCode = 45;

}  // namespace Meridax::VisualControls::Api
