#include "plugin/framework/message_table.h"

#include "plugin/framework/message_codes.h"
#include "plugin/framework/message_handlers.h"

#include <array>

namespace Meridax::VisualControls::Api {

namespace {

using enum MessageCode;

struct MessageRow {
    MessageCode code;
    MessageHandler handler;
};

constexpr std::array<MessageRow, LastMessageCode + 1> MessageTable{{
    {InterfaceQuery, answerInterfaceQuery},
    {MessageCode{1}, ignore},
    {Attach, attach},
    {ChannelCheck, checkChannel},
    {MessageCode{4}, ignore},
    {MessageCode{5}, ignore},
    {DataWindow, requestDataWindow},
    {RefusedQuery, refuseQuery},
    {WheelForward, turnWheelForward},
    {WheelBackward, turnWheelBackward},
    {ButtonReleased, releaseButton},
    {ButtonPressed, pressButton},
    {PointerMoved, movePointer},
    {MessageCode{13}, ignore},
    {MessageCode{14}, ignore},
    {MessageCode{15}, ignore},
    {MessageCode{16}, ignore},
    {MessageCode{17}, ignore},
    {Close, notifyClose},
    {MessageCode{19}, ignore},
    {MessageCode{20}, ignore},
    {MessageCode{21}, ignore},
    {MessageCode{22}, ignore},
    {MessageCode{23}, ignore},
    {GroupCheck, checkGroup},
    {PointerEntered, enterPointer},
    {PointerLeft, leavePointer},
    {MessageCode{27}, ignore},
    {MessageCode{28}, ignore},
    {GroupChanged, notifyGroupChange},
    {CanCopy, askCanCopy},
    {Copy, copyText},
    {MessageCode{32}, ignore},
    {Setup, transferSetup},
    {BuildProperties, buildProperties},
    {FillProperties, fillProperties},
    {ReadProperty, readProperty},
    {PropertyEvent, notifyPropertyEvent},
    {MessageCode{38}, ignore},
    {MessageCode{39}, ignore},
    {MessageCode{40}, ignore},
    {MessageCode{41}, ignore},
    {Draw, draw},
    {MessageCode{43}, ignore},
    {MessageCode{44}, ignore},
    {ChannelsChanged, notifyChannelsChange},
}};

consteval bool everyRowStandsAtItsCode() {
    for (std::uint32_t code = 0; code <= LastMessageCode; ++code)
        if (MessageTable[code].code != MessageCode{code}) return false;
    return true;
}

static_assert(everyRowStandsAtItsCode());

}  // namespace

MessageHandler handlerOf(std::uint32_t code) {
    return code <= LastMessageCode ? MessageTable[code].handler : ignore;
}

}  // namespace Meridax::VisualControls::Api
