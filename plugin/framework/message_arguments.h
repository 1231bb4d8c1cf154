#pragma once

#include "plugin/framework/host/host_object.h"
#include "plugin/framework/host/ref.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

namespace Meridax::VisualControls::Api {

/// The bridge's own, locked copy of the argument list of one message. This is the narrow seam
/// behind which a platform keeps its list form; the bridge has tested a position against the bounds
/// before it asks for an element.
///
/// A list trusts the position: each operation reads the payload of the wanted kind and never looks
/// at what kind the element says it is. An element that holds no such payload reads as a null
/// object, an empty text or 0. Destroying the list unlocks and discards it.
class ArgumentList {
public:
    virtual ~ArgumentList() = default;

    /// The position of the first element. [during a message]
    virtual std::int32_t lowerBound() const = 0;

    /// The position of the last element; below `lowerBound` for an empty list. [during a message]
    virtual std::int32_t upperBound() const = 0;

    /// The shared object at that position, through whichever interface the host put there.
    /// [during a message | may be null]
    virtual Host::Ref<Host::IHostObject> objectAt(std::int32_t position) const = 0;

    /// The text at that position; a null text is empty. [during a message]
    virtual std::wstring textAt(std::int32_t position) const = 0;

    /// The low 32 bits of the number at that position. [during a message]
    virtual std::int32_t integerAt(std::int32_t position) const = 0;

    /// The low 16 bits of the number at that position. [during a message]
    virtual std::uint16_t wordAt(std::int32_t position) const = 0;

    /// The low 8 bits of the number at that position. [during a message]
    virtual std::uint8_t byteAt(std::int32_t position) const = 0;
};

/// [host implements] The argument list as the host hands it to `message`.
class MessageArguments {
public:
    virtual ~MessageArguments() = default;

    /// Makes the bridge's own copy and locks it. Raises `HostError` 0x80070057 for a list that is
    /// null or not of typed values, and the copying's own status where that fails.
    /// [during a message | the caller owns the copy]
    virtual std::unique_ptr<ArgumentList> copy() const = 0;
};

/// [host implements] The out value of `message`. Only the messages that say so write it.
class MessageResult {
public:
    virtual ~MessageResult() = default;

    /// A 16-bit integer: message 0. [during a message]
    virtual void putInteger16(std::int16_t value) = 0;

    /// A boolean, written as the number 1 or 0: messages 3, 24 and 30. [during a message]
    virtual void putBoolean(bool value) = 0;

    /// A list of four 32-bit integers, all 0 at first: message 6. [during a message]
    virtual void putFourIntegers() = 0;

    /// Sets one of the four integers, `index` from 0 to 3, after `putFourIntegers`.
    /// [during a message]
    virtual void setInteger(std::size_t index, std::int32_t value) = 0;
};

}  // namespace Meridax::VisualControls::Api
