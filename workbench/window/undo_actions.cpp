#include "workbench/window/undo_actions.h"

#include <QAction>
#include <QKeySequence>
#include <QMenu>

namespace Rotavue::Workbench {

namespace {

QAction* addAction(QMenu& menu, const char* name, QKeySequence::StandardKey key) {
    QAction* action = menu.addAction(QString());
    action->setObjectName(name);
    action->setShortcut(key);
    return action;
}

void name(QAction& action, const QString& verb, const QString& step, bool isThere) {
    action.setText(step.isEmpty() ? verb : verb + ' ' + step);
    action.setToolTip(action.text() + " (" + action.shortcut().toString(QKeySequence::NativeText) +
                      ')');
    action.setEnabled(isThere);
}

}  // namespace

void addUndoActions(QMenu& menu, UndoSteps& steps) {
    QAction* undo = addAction(menu, "undo", QKeySequence::Undo);
    QAction* redo = addAction(menu, "redo", QKeySequence::Redo);
    QObject::connect(undo, &QAction::triggered, &steps, &UndoSteps::undo);
    QObject::connect(redo, &QAction::triggered, &steps, &UndoSteps::redo);
    const auto tell = [undo, redo, &steps] {
        name(*undo, QMenu::tr("Undo"), steps.undoText(), steps.canUndo());
        name(*redo, QMenu::tr("Redo"), steps.redoText(), steps.canRedo());
    };
    QObject::connect(&steps, &UndoSteps::changed, &menu, tell);
    tell();
}

}  // namespace Rotavue::Workbench
