#include "workbench/window/steady_label.h"

#include <QEvent>

namespace Rotavue::Workbench {

void SteadyLabel::tell(const QString& text) {
    if (text == this->text()) return;
    setText(text);
    grow();
}

// Of what has a fixed size, Qt asks no new layout when its text changes.
void SteadyLabel::grow() {
    const QSize needed = sizeHint().expandedTo(minimumSize());
    if (needed != maximumSize()) setFixedSize(needed);
}

void SteadyLabel::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    if (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange) return;
    setMinimumSize(0, 0);
    grow();
}

}  // namespace Rotavue::Workbench
