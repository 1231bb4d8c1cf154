#include "workbench/window/docks/number_header.h"

#include "workbench/window/docks/number_model.h"

#include <QPainter>

#include <algorithm>

namespace Rotavue::Workbench {

namespace {

constexpr int Padding = 5;  ///< on either side of a text

/// The left one of the two columns of a plane.
int firstOf(int section) {
    return section - section % 2;
}

}  // namespace

NumberHeader::NumberHeader(const NumberModel& model, QWidget* parent)
    : QHeaderView(Qt::Horizontal, parent), model_(model) {
    setObjectName("NumberHeader");
    setSectionResizeMode(QHeaderView::Fixed);
    setMinimumSectionSize(0);
    setSectionsClickable(true);
    setHighlightSections(false);
}

QSize NumberHeader::sectionSizeFromContents(int section) const {
    const QString& probe = model_.sheet().columns[static_cast<std::size_t>(section)].probe;
    const QFontMetrics metrics(font());
    return {metrics.horizontalAdvance(probe) + 2 * Padding, 2 * metrics.height() + Padding};
}

// A cell of both columns is as wide as the two together: each brings half of it.
int NumberHeader::neededWidth(int section) const {
    const QFontMetrics metrics(font());
    int widest = sectionSizeFromContents(section).width();
    for (int row = 0; row < model_.rowCount(); ++row) {
        const bool joined = model_.isWholeOrbit(row, firstOf(section));
        const int column = joined ? firstOf(section) : section;
        const QString text = model_.data(model_.index(row, column), Qt::DisplayRole).toString();
        const int width = metrics.horizontalAdvance(text) + 2 * Padding;
        widest = std::max(widest, joined ? (width + 1) / 2 : width);
    }
    return widest;
}

void NumberHeader::fit(bool anew) {
    for (int section = 0; section < model_.columnCount(); ++section) {
        const int kept = anew ? 0 : sectionSize(section);
        resizeSection(section, std::max(kept, neededWidth(section)));
    }
}

void NumberHeader::paintSection(QPainter* painter, const QRect& rect, int section) const {
    const NumberColumn& column = model_.sheet().columns[static_cast<std::size_t>(section)];
    const int half = rect.height() / 2;
    painter->fillRect(rect, palette().button());
    painter->setPen(palette().color(QPalette::ButtonText));
    painter->drawText(rect.adjusted(0, half, 0, 0), Qt::AlignCenter, column.probe);
    // Each of the two sections paints its part of the name over both.
    const int first = firstOf(section);
    const int left = sectionViewportPosition(first);
    const QRect both(left, rect.top(), sectionSize(first) + sectionSize(first + 1), half);
    painter->setClipRect(rect, Qt::IntersectClip);
    const QRect place = both.adjusted(Padding, 0, -Padding, 0);
    painter->drawText(place, Qt::AlignCenter,
                      fontMetrics().elidedText(column.plane, Qt::ElideMiddle, place.width()));
    painter->setPen(palette().color(QPalette::Mid));
    painter->drawLine(both.topRight(), both.bottomRight() + QPoint(0, half));
    painter->drawLine(rect.bottomLeft(), rect.bottomRight());
}

}  // namespace Rotavue::Workbench
