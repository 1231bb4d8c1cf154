#pragma once

#include <QString>
#include <QUndoStack>

namespace Rotavue::Workbench {

/// For as long as it lives, what is pushed becomes one step of undo. A step that fails on the way
/// leaves the stack as usable as before: what was done until then is the step.
class UndoMacro {
public:
    UndoMacro(QUndoStack& stack, const QString& text) : stack_(stack) { stack_.beginMacro(text); }
    ~UndoMacro() { stack_.endMacro(); }
    UndoMacro(const UndoMacro&) = delete;
    UndoMacro& operator=(const UndoMacro&) = delete;

private:
    QUndoStack& stack_;
};

}  // namespace Rotavue::Workbench
