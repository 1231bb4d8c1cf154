#pragma once

#include <QHeaderView>

namespace Rotavue::Workbench {

class NumberModel;

/// The headers of the number table: the plane's name once over its two columns, which are as wide
/// as their numbers and probes take.
class NumberHeader final : public QHeaderView {
public:
    explicit NumberHeader(const NumberModel& model, QWidget* parent = nullptr);

    /// Gives every column the room that its numbers need. Columns that have more keep it, unless
    /// they are `anew` those of other planes: numbers that change ten times a second move nothing.
    void fit(bool anew);

protected:
    QSize sectionSizeFromContents(int section) const override;
    void paintSection(QPainter* painter, const QRect& rect, int section) const override;

private:
    int neededWidth(int section) const;

    const NumberModel& model_;
};

}  // namespace Rotavue::Workbench
