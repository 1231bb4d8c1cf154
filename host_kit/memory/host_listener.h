#pragma once

#include "host_kit/memory/description.h"

#include <cstdint>
#include <string>

namespace Rotavue::HostKit {

/// What a control asks of a host that has windows. A memory host without a listener lets all of it
/// pass and answers the editor from its description. Each comes from within a message, on the
/// thread that sent it.
class HostListener {
public:
    virtual ~HostListener() = default;

    /// The control wants to be drawn again. A good host draws once for any number of these, after
    /// the message is over.
    virtual void invalidated() {}

    /// The control has changed a setting by itself.
    virtual void setupRefreshed() {}

    /// The control wants a text edited in place, at a point of its area. Returns when the user has
    /// finished; until then other messages may be sent to the same control.
    virtual EditAnswer editText(std::int32_t x, std::int32_t y, const std::wstring& text) {
        static_cast<void>(x);
        static_cast<void>(y);
        return {.accepted = false, .text = text};
    }

    /// The control has something to tell to the user.
    virtual void messageShown(const std::wstring& text) { static_cast<void>(text); }
};

}  // namespace Rotavue::HostKit
