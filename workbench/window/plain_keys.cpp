#include "workbench/window/plain_keys.h"

#include "workbench/window/docks/time_plot.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QTextEdit>

#include <algorithm>
#include <array>

namespace Rotavue::Workbench {

namespace {

bool isPlain(const QKeyEvent& event) {
    return (event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == Qt::NoModifier;
}

template <class... Widgets>
bool isAnyOf(const QObject* object) {
    return (... || (qobject_cast<const Widgets*>(object) != nullptr));
}

/// What a plot over time does with its keys: marks, zooms and pages.
bool isOfPlots(int key) {
    constexpr std::array Keys{Qt::Key_BracketLeft, Qt::Key_BracketRight, Qt::Key_PageUp,
                              Qt::Key_PageDown};
    return std::find(Keys.begin(), Keys.end(), key) != Keys.end();
}

/// A button needs the space bar alone.
bool needsKey(const QObject* object, int key) {
    if (isAnyOf<TimePlot>(object)) return isOfPlots(key);
    if (isAnyOf<QAbstractButton>(object)) return key == Qt::Key_Space;
    return isAnyOf<QLineEdit, QAbstractSpinBox, QComboBox, QAbstractItemView, QTextEdit, QMenu>(
        object);
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
