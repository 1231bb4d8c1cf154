#pragma once

#include "plugin/framework/message_arguments.h"
#include "plugin/framework/shift_state.h"

#include <cstdint>
#include <memory>
#include <string>

namespace Meridax::VisualControls::Api {

/// The arguments of one message: a copy of the host's list, made at construction and discarded with
/// the reader. Each element is fetched by its position, which is tested against the list's bounds
/// at that moment; a handler fetches in rising order, so that a list that is too short fails at the
/// first missing element.
///
/// Raises `HostError` 0x80070057 for a null list and for a position outside the bounds, 0x80004005
/// for an element of a copy that turned out null, 0x8007000E for a text that cannot be copied.
class ArgumentReader {
public:
    explicit ArgumentReader(const MessageArguments* arguments);

    /// The object at that position through the interface wanted; an object that does not offer it
    /// counts as null. The reference is the bridge's own for the time of the message.
    template <class Interface>
    Host::Ref<Interface> object(std::int32_t position) const {
        return anyObject(position).template offered<Interface>();
    }

    /// The object at that position as the host put it there; may be null.
    Host::Ref<Host::IHostObject> anyObject(std::int32_t position) const;

    std::wstring text(std::int32_t position) const;
    std::int32_t integer(std::int32_t position) const;
    std::uint16_t word(std::int32_t position) const;
    std::uint8_t byte(std::int32_t position) const;
    ShiftState shiftState(std::int32_t position) const;

private:
    const ArgumentList& listWith(std::int32_t position) const;

    std::unique_ptr<ArgumentList> copy_;
};

}  // namespace Meridax::VisualControls::Api
