#pragma once

#include "workbench/bench/form_command.h"
#include "workbench/bench/kept_forms.h"

#include <QObject>
#include <QString>
#include <QUndoStack>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Rotavue::Workbench {

class Bench;

/// Steps back and forth over what a user has done. A step that shows a form of a recording that has
/// to be made anew is taken when the form is made, as work of the bench; until then stack and
/// planes stay together where they are. Another wish meanwhile counts from where the last one leads
/// and takes its place; a cancel or a new change drops it.
class UndoSteps final : public QObject {
    Q_OBJECT

public:
    UndoSteps(Bench& bench, QUndoStack& stack, KeptForms& forms);

    void undo() { stepBy(-1); }
    void redo() { stepBy(1); }

    bool canUndo() const { return place() > 0; }
    bool canRedo() const { return place() < stack_.count(); }

    /// What the next step would take back or do again; empty for none.
    QString undoText() const;
    QString redoText() const;

    /// Whether a step waits for a form.
    bool isMaking() const { return wish_.has_value(); }

    /// Drops the step that waits.
    void cancel();

    /// Whether forms that aren't there are only passed now, on the way to others.
    bool isPassing() const { return isPassing_; }

Q_SIGNALS:
    void changed();  ///< of what can be undone and redone, and of how it is called

private:
    using Forms = std::vector<std::shared_ptr<const PlaneSource>>;

    /// A step, and what has to be there for it.
    struct Wish {
        int place = 0;                                               ///< of the stack
        std::vector<std::shared_ptr<KeptForms::Kept>> missing = {};  ///< to be made anew
        Forms there = {};                                            ///< must stay until then
        int work = 0;  ///< its number among the bench's work, while it waits
    };

    /// Where the stack stands, or will.
    int place() const { return wish_ ? wish_->place : stack_.index(); }

    void stepBy(int steps);
    void stepTo(int place);
    Wish wishFor(int place);
    void begin(Wish wish);
    void takeMade(const Forms& made);
    void giveUp(const QString& what, const std::string& why);
    void drop();

    Bench& bench_;
    QUndoStack& stack_;
    KeptForms& forms_;
    std::optional<Wish> wish_;
    bool isPassing_ = false;
};

}  // namespace Rotavue::Workbench
