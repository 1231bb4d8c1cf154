#pragma once

#include "workbench/bench/plane.h"

#include <QString>
#include <QUndoCommand>

#include <functional>
#include <memory>
#include <vector>

namespace Rotavue::Workbench {

/// What settings of one plane become others.
struct SettingsStep {
    std::shared_ptr<Plane> plane;
    Settings before;
    Settings after;
};

/// A change of settings, of one plane or of several together. Commands of one run become one
/// command: of a number that is held to climb, a user takes back the climb and not its last step.
class SettingsCommand final : public QUndoCommand {
public:
    using Apply = std::function<void(Plane&, const Settings&)>;

    /// A run below 0 is none. `apply` lets a plane have settings.
    SettingsCommand(const QString& text, std::vector<SettingsStep> steps, int run, Apply apply);

    int id() const override { return run_; }
    void redo() override;
    void undo() override;

    /// Takes the later command of the same run in. Where that ends where this began, nothing
    /// remains to be undone.
    bool mergeWith(const QUndoCommand* later) override;

private:
    void take(const SettingsStep& later);

    std::vector<SettingsStep> steps_;
    int run_;
    Apply apply_;
};

}  // namespace Rotavue::Workbench
