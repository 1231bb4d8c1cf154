#include "workbench/window/docks/number_model.h"

#include <QSize>

#include <utility>

namespace Rotavue::Workbench {

void NumberModel::setSheet(NumberSheet sheet) {
    const bool sameShape =
        sheet.columns == sheet_.columns && sheet.rows.size() == sheet_.rows.size();
    if (!sameShape) beginResetModel();
    sheet_ = std::move(sheet);
    if (!sameShape) return endResetModel();
    if (rowCount() == 0 || columnCount() == 0) return;
    dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

int NumberModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(sheet_.rows.size());
}

int NumberModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(sheet_.columns.size());
}

QVariant NumberModel::data(const QModelIndex& index, int role) const {
    const NumberRow& row = sheet_.rows[static_cast<std::size_t>(index.row())];
    const bool whole = isWholeOrbit(index.row(), index.column());
    if (role == Qt::DisplayRole) return row.cells[static_cast<std::size_t>(index.column())];
    if (role == Qt::ToolTipRole) return row.help;
    if (role == Qt::TextAlignmentRole)
        return QVariant(Qt::AlignVCenter | (whole ? Qt::AlignHCenter : Qt::AlignRight));
    return {};
}

QVariant NumberModel::headerData(int section, Qt::Orientation orientation, int role) const {
    const auto place = static_cast<std::size_t>(section);
    if (orientation == Qt::Vertical) {
        if (role == Qt::DisplayRole) return sheet_.rows[place].name;
        return role == Qt::ToolTipRole ? QVariant(sheet_.rows[place].help) : QVariant();
    }
    const NumberColumn& column = sheet_.columns[place];
    if (role == Qt::ToolTipRole) return column.plane + ", " + column.probe;
    return role == Qt::DisplayRole ? QVariant(column.plane + '\n' + column.probe) : QVariant();
}

bool NumberModel::isWholeOrbit(int row, int column) const {
    const auto& cells = sheet_.rows[static_cast<std::size_t>(row)].cells;
    return column % 2 == 0 && cells[static_cast<std::size_t>(column) + 1].isEmpty();
}

}  // namespace Rotavue::Workbench
