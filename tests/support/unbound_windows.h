#pragma once

#include <QApplication>
#include <QEvent>
#include <QLayout>
#include <QWidget>

namespace Rotavue::Workbench {

/// Lets the windows of a test be as small as they like. The offscreen display knows no least size
/// of a window, and complains of each window whose layout sets one.
class UnboundWindows : public QObject {
public:
    explicit UnboundWindows(QApplication& application) : QObject(&application) {
        application.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::Polish || !watched->isWidgetType()) return false;
        const auto* widget = static_cast<QWidget*>(watched);
        if (widget->isWindow() && widget->layout() != nullptr)
            widget->layout()->setSizeConstraint(QLayout::SetNoConstraint);
        return false;
    }
};

}  // namespace Rotavue::Workbench
