#pragma once

#include <QLabel>

namespace Rotavue::Workbench {

/// A name on one line that may be longer than there is room for: its middle is left out then, and
/// the tool tip has all of it. It asks for no more room than a usual name needs.
class ElidedLabel final : public QLabel {
public:
    using QLabel::QLabel;

    void setName(const QString& name);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QSize sizeFor(int letters) const;
};

}  // namespace Rotavue::Workbench
