#include "workbench/export/report_layout.h"

#include <algorithm>

namespace Rotavue::Workbench {

namespace {

struct Grid {
    int columns = 1;
    int rows = 1;
    QSize cell;

    int side() const { return std::min(cell.width(), cell.height()); }
};

Grid gridOf(const QRect& area, int count, int columns, int between) {
    const int rows = (count + columns - 1) / columns;
    return {columns,
            rows,
            {(area.width() - (columns - 1) * between) / columns,
             (area.height() - (rows - 1) * between) / rows}};
}

}  // namespace

std::vector<QRect> orbitPlaces(const QRect& area, int count, int between) {
    if (count < 1) return {};
    Grid best = gridOf(area, count, 1, between);
    for (int columns = 2; columns <= count; ++columns) {
        const Grid grid = gridOf(area, count, columns, between);
        if (grid.side() > best.side()) best = grid;
    }
    std::vector<QRect> places;
    for (int i = 0; i < count; ++i) {
        const QPoint corner(area.x() + i % best.columns * (best.cell.width() + between),
                            area.y() + i / best.columns * (best.cell.height() + between));
        places.emplace_back(corner, best.cell);
    }
    return places;
}

}  // namespace Rotavue::Workbench
