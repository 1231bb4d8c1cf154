#pragma once

#include <QLabel>

namespace Rotavue::Workbench {

/// A label whose text may change at each moment of playing: it takes more room when a text needs
/// that and gives none back, so that the window is laid out once and not each time.
class SteadyLabel final : public QLabel {
public:
    using QLabel::QLabel;

    void tell(const QString& text);

protected:
    void changeEvent(QEvent* event) override;

private:
    void grow();
};

}  // namespace Rotavue::Workbench
