#pragma once

#include "workbench/scene/curve_request.h"

#include <cstddef>
#include <vector>

namespace Rotavue::Workbench {

/// Which of the usual colours (curve_colors.h) each curve of a plane has. A curve keeps the number
/// that it has once got, whatever else is shown, and has it again when it comes back: a person who
/// ticks another curve still knows this one.
class ColorBook {
public:
    /// Gives the curve its number: that of its kind, or where another curve has got that the one
    /// which the fewest have. A known curve keeps its own.
    void add(const CurveRequest& request);

    /// Of a curve that was never added, the number of its kind.
    std::size_t numberOf(const CurveRequest& request) const;

private:
    struct Entry {
        CurveRequest request;
        std::size_t number = 0;
    };
    std::size_t usersOf(std::size_t number) const;
    std::size_t freeNumber(std::size_t wanted) const;

    std::vector<Entry> entries_;
};

}  // namespace Rotavue::Workbench
