#pragma once

#include <QString>
#include <QUndoCommand>

#include <functional>
#include <utility>

namespace Rotavue::Workbench {

/// A change that is two functions: one makes it, one takes it back. Each can be called any number
/// of times, in turn.
class ChangeCommand final : public QUndoCommand {
public:
    using Change = std::function<void()>;

    ChangeCommand(const QString& text, Change make, Change takeBack)
        : QUndoCommand(text), make_(std::move(make)), takeBack_(std::move(takeBack)) {}

    void redo() override { make_(); }
    void undo() override { takeBack_(); }

private:
    Change make_;
    Change takeBack_;
};

}  // namespace Rotavue::Workbench
