#pragma once

#include <cstdint>

namespace Meridax::VisualControls::Api {

/// The seven flags of a pointer event, bit 0 to bit 6 of the message's word. The host sets all of
/// them; `flag2` is the one that this system reads.
struct ShiftState {
    bool flag0 = false;
    bool flag1 = false;
    bool flag2 = false;  ///< turns the wheel from zooming to rotating the view
    bool flag3 = false;
    bool flag4 = false;
    bool flag5 = false;
    bool flag6 = false;

    /// The flags of a message word; bits above 6 are dropped.
    static constexpr ShiftState fromWord(std::uint16_t word) {
        return {(word & 1U) != 0,  (word & 2U) != 0,  (word & 4U) != 0, (word & 8U) != 0,
                (word & 16U) != 0, (word & 32U) != 0, (word & 64U) != 0};
    }

    bool operator==(const ShiftState&) const = default;
};

}  // namespace Meridax::VisualControls::Api
