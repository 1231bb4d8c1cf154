#include "workbench/bench/settings_command.h"

#include <algorithm>
#include <utility>

namespace Rotavue::Workbench {

namespace {

bool changesNothing(const SettingsStep& step) {
    return withoutFoundLimits(step.before) == withoutFoundLimits(step.after);
}

}  // namespace

SettingsCommand::SettingsCommand(const QString& text, std::vector<SettingsStep> steps, int run,
                                 Apply apply)
    : QUndoCommand(text), steps_(std::move(steps)), run_(run), apply_(std::move(apply)) {}

void SettingsCommand::redo() {
    for (const SettingsStep& step : steps_)
        apply_(*step.plane, step.after);
}

void SettingsCommand::undo() {
    for (const SettingsStep& step : steps_)
        apply_(*step.plane, step.before);
}

bool SettingsCommand::mergeWith(const QUndoCommand* later) {
    for (const SettingsStep& step : static_cast<const SettingsCommand*>(later)->steps_)
        take(step);
    setObsolete(std::all_of(steps_.begin(), steps_.end(), changesNothing));
    return true;
}

void SettingsCommand::take(const SettingsStep& later) {
    const auto own = std::find_if(steps_.begin(), steps_.end(), [&](const SettingsStep& step) {
        return step.plane == later.plane;
    });
    if (own == steps_.end()) {
        steps_.push_back(later);
    } else {
        own->after = later.after;
    }
}

}  // namespace Rotavue::Workbench
