#include "plugin/orbit_graph/label_room.h"

#include "plugin/orbit_graph/canvas_integer.h"

#include <algorithm>
#include <cmath>

namespace Meridax::VisualControls::Rotavue {
namespace {

/// Pixels; a cell then holds a few labels of a usual font.
constexpr double CellSize = 64;

/// A box over more cells is kept beside them. A label of 300 digits still covers fewer.
constexpr std::int64_t MostCells = 128;

/// Edges beyond it count as lying there, which is far outside of any canvas.
constexpr double FarthestEdge = 1e6;

std::int64_t cellOf(double edge) {
    return canvasInteger(std::floor(limitedTo(edge, -FarthestEdge, FarthestEdge) / CellSize));
}

}  // namespace

/// The cells from the first to the last column and row. Two boxes that overlap share one, also
/// where the edges of one of them stand the wrong way round.
struct LabelRoom::Cells {
    std::int64_t firstColumn;
    std::int64_t lastColumn;
    std::int64_t firstRow;
    std::int64_t lastRow;

    bool areFew() const {
        const std::int64_t columns = lastColumn - firstColumn + 1;
        const std::int64_t rows = lastRow - firstRow + 1;
        return columns <= MostCells && rows <= MostCells && columns * rows <= MostCells;
    }

    /// False as soon as `test` is false for one of the cells.
    template <class Test>
    bool all(Test test) const {
        for (std::int64_t row = firstRow; row <= lastRow; ++row) {
            for (std::int64_t column = firstColumn; column <= lastColumn; ++column) {
                if (!test(keyOf(column, row))) return false;
            }
        }
        return true;
    }
};

LabelRoom::Cells LabelRoom::cellsUnder(const Rectangle& box) {
    const auto [firstColumn, lastColumn] = std::minmax({cellOf(box.left), cellOf(box.right)});
    const auto [firstRow, lastRow] = std::minmax({cellOf(box.top), cellOf(box.bottom)});
    return {firstColumn, lastColumn, firstRow, lastRow};
}

std::uint64_t LabelRoom::keyOf(std::int64_t column, std::int64_t row) {
    return static_cast<std::uint64_t>(column) << 32 ^ static_cast<std::uint32_t>(row);
}

bool LabelRoom::isFree(const std::vector<Rectangle>& placed, const Rectangle& box) {
    comparisons_ += placed.size();
    return std::ranges::none_of(placed,
                                [&](const Rectangle& other) { return overlaps(box, other); });
}

bool LabelRoom::isFreeAt(std::uint64_t key, const Rectangle& box) {
    const auto cell = cells_.find(key);
    return cell == cells_.end() || isFree(cell->second, box);
}

bool LabelRoom::hasRoom(const Rectangle& box) {
    if (placed_.size() >= MostPlacedLabels || comparisons_ >= MostLabelComparisons) return false;
    const Cells cells = cellsUnder(box);
    if (!cells.areFew()) return isFree(placed_, box);
    return isFree(wide_, box) && cells.all([&](auto key) { return isFreeAt(key, box); });
}

void LabelRoom::place(const Rectangle& box) {
    placed_.push_back(box);
    const Cells cells = cellsUnder(box);
    if (!cells.areFew()) return wide_.push_back(box);
    cells.all([&](auto key) {
        cells_[key].push_back(box);
        return true;
    });
}

}  // namespace Meridax::VisualControls::Rotavue
