#include "workbench/window/plain_keys.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QTabBar>
#include <QTextEdit>

namespace Rotavue::Workbench {

namespace {

bool isPlain(const QKeyEvent& event) {
    return (event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == Qt::NoModifier;
}

template <class... Widgets>
bool isAnyOf(const QObject* object) {
    return (... || (qobject_cast<const Widgets*>(object) != nullptr));
}

/// Lists and tables move about, tick, and look for what is typed. Other keys are their actions'.
bool isOfViews(int key) {
    const bool moves = key >= Qt::Key_Home && key <= Qt::Key_PageDown;
    const bool digit = key >= Qt::Key_0 && key <= Qt::Key_9;
    const bool letter = key >= Qt::Key_A && key <= Qt::Key_Z;
    return moves || digit || letter || key == Qt::Key_Space;
}

/// A button needs the space bar alone, and a row of tabs the arrows.
bool needsKey(const QObject* object, int key) {
    if (isAnyOf<QAbstractButton>(object)) return key == Qt::Key_Space;
    if (isAnyOf<QTabBar>(object)) return key == Qt::Key_Left || key == Qt::Key_Right;
    if (isAnyOf<QAbstractItemView>(object)) return isOfViews(key);
    return isAnyOf<QLineEdit, QAbstractSpinBox, QComboBox, QTextEdit, QMenu>(object);
}

}  // namespace

bool PlainKeys::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::ShortcutOverride) return false;
    const auto* key = static_cast<const QKeyEvent*>(event);
    if (!isPlain(*key) || !needsKey(watched, key->key())) return false;
    // An accepted override arrives as a key that is pressed, and no action sees it.
    event->accept();
    return true;
}

}  // namespace Rotavue::Workbench
