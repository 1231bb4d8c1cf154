#pragma once

#include "plugin/framework/message_call.h"

/// One handler for each served message; docs/contract.md has the arguments by position. The order
/// of the fetches is part of the contract: a list that is too short fails at the first element that
/// is missing, after the earlier ones had their effect.
namespace Meridax::VisualControls::Api {

std::int32_t ignore(const MessageCall& call);                ///< every code that is not served
std::int32_t answerInterfaceQuery(const MessageCall& call);  ///< 0
std::int32_t attach(const MessageCall& call);                ///< 2
std::int32_t checkChannel(const MessageCall& call);          ///< 3
std::int32_t requestDataWindow(const MessageCall& call);     ///< 6
std::int32_t refuseQuery(const MessageCall& call);           ///< 7
std::int32_t turnWheelForward(const MessageCall& call);      ///< 8
std::int32_t turnWheelBackward(const MessageCall& call);     ///< 9
std::int32_t releaseButton(const MessageCall& call);         ///< 10
std::int32_t pressButton(const MessageCall& call);           ///< 11
std::int32_t movePointer(const MessageCall& call);           ///< 12
std::int32_t notifyClose(const MessageCall& call);           ///< 18
std::int32_t checkGroup(const MessageCall& call);            ///< 24
std::int32_t enterPointer(const MessageCall& call);          ///< 25
std::int32_t leavePointer(const MessageCall& call);          ///< 26
std::int32_t notifyGroupChange(const MessageCall& call);     ///< 29
std::int32_t askCanCopy(const MessageCall& call);            ///< 30
std::int32_t copyText(const MessageCall& call);              ///< 31
std::int32_t transferSetup(const MessageCall& call);         ///< 33
std::int32_t buildProperties(const MessageCall& call);       ///< 34
std::int32_t fillProperties(const MessageCall& call);        ///< 35
std::int32_t readProperty(const MessageCall& call);          ///< 36
std::int32_t notifyPropertyEvent(const MessageCall& call);   ///< 37
std::int32_t draw(const MessageCall& call);                  ///< 42
std::int32_t notifyChannelsChange(const MessageCall& call);  ///< 45

}  // namespace Meridax::VisualControls::Api
