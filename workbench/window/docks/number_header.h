#pragma once

#include <QHeaderView>
#include <QStyledItemDelegate>

namespace Rotavue::Workbench {

class NumberModel;

/// The headers of the number table: the plane's name once over its two columns, which are then no
/// wider than their numbers.
class NumberHeader final : public QHeaderView {
public:
    explicit NumberHeader(const NumberModel& model, QWidget* parent = nullptr);

protected:
    QSize sectionSizeFromContents(int section) const override;
    void paintSection(QPainter* painter, const QRect& rect, int section) const override;

private:
    const NumberModel& model_;
};

/// A cell of both columns is as wide as the two together: each column brings half of it.
class NumberDelegate final : public QStyledItemDelegate {
public:
    explicit NumberDelegate(const NumberModel& model, QObject* parent = nullptr);

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    const NumberModel& model_;
};

}  // namespace Rotavue::Workbench
