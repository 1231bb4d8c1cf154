#pragma once

#include "workbench/scene/curve_request.h"

#include <cstddef>
#include <vector>

namespace Rotavue::Workbench {

/// Which of the usual colours (curve_colors.h) each curve of a plane has. A curve that is shown
/// keeps the number that it has got, whatever else comes and goes: a person who ticks another curve
/// still knows this one. The number of a curve that has gone is free; it has it again when it comes
/// back, unless another one needed it meanwhile.
class ColorBook {
public:
    /// Gives each of these curves its number; of two with the same wish the earlier one gets it.
    /// Where a wish is not free, that which the fewest have.
    void show(const std::vector<CurveRequest>& curves);

    /// Curves and the numbers that they had when they were shown elsewhere, as if they were shown
    /// here; without as many numbers as curves, nothing happens.
    void restore(const std::vector<CurveRequest>& curves, const std::vector<std::size_t>& numbers);

    /// Of a curve that was never shown, the number of its kind.
    std::size_t numberOf(const CurveRequest& request) const;

private:
    struct Entry {
        CurveRequest request;
        std::size_t number = 0;
        bool isShown = true;
    };
    const Entry* entryOf(const CurveRequest& request) const;
    std::size_t shownWith(std::size_t number) const;
    std::size_t knownWith(std::size_t number) const;
    std::size_t freeNumber(std::size_t wanted) const;
    void give(const CurveRequest& request);

    std::vector<Entry> entries_;  ///< with those that have gone
};

}  // namespace Rotavue::Workbench
