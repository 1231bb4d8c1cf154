#pragma once

#include "workbench/bench/kept_forms.h"
#include "workbench/bench/plane.h"

#include <QString>
#include <QUndoCommand>

#include <functional>
#include <memory>
#include <utility>

namespace Rotavue::Workbench {

/// One plane shows its recording in another form: as it was measured, or what is left of it without
/// run-out. Whoever steps over it can ask beforehand which form that will be.
class FormCommand final : public QUndoCommand {
public:
    using Form = std::shared_ptr<KeptForms::Kept>;

    /// Lets a plane show a form.
    using Show = std::function<void(Plane&, const Form&)>;

    FormCommand(const QString& text, std::shared_ptr<Plane> plane, Form before, Form after,
                Show show)
        : QUndoCommand(text),
          plane_(std::move(plane)),
          before_(std::move(before)),
          after_(std::move(after)),
          show_(std::move(show)) {}

    const std::shared_ptr<Plane>& plane() const { return plane_; }
    const Form& before() const { return before_; }
    const Form& after() const { return after_; }

    void redo() override { show_(*plane_, after_); }
    void undo() override { show_(*plane_, before_); }

private:
    std::shared_ptr<Plane> plane_;
    Form before_;
    Form after_;
    Show show_;
};

}  // namespace Rotavue::Workbench
