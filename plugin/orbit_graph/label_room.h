#pragma once

#include "plugin/orbit_graph/geometry.h"

#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

namespace Meridax::VisualControls::Rotavue {

/// More than can be read on any screen.
inline constexpr std::size_t MostPlacedLabels = 4096;

/// Ten for each place that a frame reads. A usual label has fewer neighbours; where a host's font
/// has no size, all labels can be neighbours of each other.
inline constexpr std::size_t MostLabelComparisons = 100'000'000;

/// Where the value labels of one frame still have room. A new label is compared with those of its
/// neighbourhood alone, so that a long history takes time in proportion to its length.
class LabelRoom {
public:
    /// `placed` holds none yet and gets the boxes in their order.
    explicit LabelRoom(std::vector<Rectangle>& placed) : placed_(placed) {}

    /// The box overlaps none of the placed ones, and neither `MostPlacedLabels` nor
    /// `MostLabelComparisons` is reached.
    bool hasRoom(const Rectangle& box);

    void place(const Rectangle& box);

private:
    struct Cells;

    static Cells cellsUnder(const Rectangle& box);
    static std::uint64_t keyOf(std::int64_t column, std::int64_t row);
    bool isFree(const std::vector<Rectangle>& placed, const Rectangle& box);
    bool isFreeAt(std::uint64_t key, const Rectangle& box);

    std::vector<Rectangle>& placed_;
    std::size_t comparisons_ = 0;  ///< with all that lie near, found or not
    std::vector<Rectangle> wide_;  ///< those that cover too many cells to be found there
    std::unordered_map<std::uint64_t, std::vector<Rectangle>> cells_;
};

}  // namespace Meridax::VisualControls::Rotavue
