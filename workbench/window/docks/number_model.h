#pragma once

#include "workbench/window/docks/number_sheet.h"

#include <QAbstractTableModel>

namespace Rotavue::Workbench {

/// The number sheet for a table view. New numbers of the same planes change the cells alone, so
/// that what is selected stays selected.
class NumberModel final : public QAbstractTableModel {
public:
    using QAbstractTableModel::QAbstractTableModel;

    void setSheet(NumberSheet sheet);
    const NumberSheet& sheet() const { return sheet_; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// Whether the cell and the one to its right are one.
    bool isWholeOrbit(int row, int column) const;

private:
    NumberSheet sheet_;
};

}  // namespace Rotavue::Workbench
