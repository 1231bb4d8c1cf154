#pragma once

#include <QObject>

namespace Rotavue::Workbench {

/// Space, arrows, Home and the like move the time wherever the user is in the window, but for the
/// places that need these keys themselves: edits, lists, boxes and buttons keep them.
class PlainKeys : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace Rotavue::Workbench
