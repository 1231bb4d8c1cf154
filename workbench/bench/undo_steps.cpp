#include "workbench/bench/undo_steps.h"

#include "workbench/bench/bench.h"
#include "workbench/bench/bench_task.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <map>
#include <utility>

namespace Rotavue::Workbench {

namespace {

using Form = FormCommand::Form;

/// The form that each plane shows in the end, for those that show another one on the way.
class LastForms {
public:
    LastForms(const QUndoStack& stack, int place) {
        for (int i = stack.index(); i < place; ++i)
            stepOver(*stack.command(i), false);
        for (int i = stack.index(); i > place; --i)
            stepOver(*stack.command(i - 1), true);
    }

    const std::map<std::shared_ptr<Plane>, Form>& all() const { return forms_; }

private:
    void stepOver(const QUndoCommand& command, bool back) {
        const int parts = command.childCount();
        for (int i = 0; i < parts; ++i)
            stepOver(*command.child(back ? parts - 1 - i : i), back);
        if (const auto* form = dynamic_cast<const FormCommand*>(&command))
            forms_[form->plane()] = back ? form->before() : form->after();
    }

    std::map<std::shared_ptr<Plane>, Form> forms_;
};

bool isQuick(const KeptForms::Kept& form) {
    return form.original->recording.sampleCount() <= SlowCurves::QuickSamples;
}

/// What a form is made of, for another thread.
struct Recipe {
    std::shared_ptr<const PlaneSource> original;
    std::shared_ptr<const RunOut> runOut;
};

/// One after the other.
std::vector<std::shared_ptr<const PlaneSource>> allMadeAnew(const std::vector<Recipe>& recipes,
                                                            const ReadingWatch& watch) {
    std::vector<std::shared_ptr<const PlaneSource>> made;
    const auto count = static_cast<double>(recipes.size());
    for (const Recipe& recipe : recipes) {
        const auto before = static_cast<double>(made.size());
        made.push_back(madeAnew(recipe.original, *recipe.runOut,
                                [&](double part) { return watch((before + part) / count); }));
    }
    return made;
}

}  // namespace

UndoSteps::UndoSteps(Bench& bench, QUndoStack& stack, KeptForms& forms)
    : bench_(bench), stack_(stack), forms_(forms) {
    connect(&stack_, &QUndoStack::indexChanged, this, [this] {
        if (!isPassing_) drop();
        Q_EMIT changed();
    });
}

QString UndoSteps::undoText() const {
    return canUndo() ? stack_.text(place() - 1) : QString();
}

QString UndoSteps::redoText() const {
    return canRedo() ? stack_.text(place()) : QString();
}

void UndoSteps::cancel() {
    if (!wish_) return;
    drop();
    Q_EMIT changed();
}

void UndoSteps::drop() {
    if (!wish_) return;
    const int work = wish_->work;
    wish_.reset();
    bench_.endWork(work);
}

void UndoSteps::stepBy(int steps) {
    Wish wish = wishFor(std::clamp(place() + steps, 0, stack_.count()));
    if (wish_ && wish_->missing == wish.missing) {
        wish_->place = wish.place;
        wish_->there = std::move(wish.there);
    } else {
        drop();
        wish.missing.empty() ? stepTo(wish.place) : begin(std::move(wish));
    }
    Q_EMIT changed();
}

UndoSteps::Wish UndoSteps::wishFor(int place) {
    Wish wish{.place = place};
    const LastForms last(stack_, place);
    for (const auto& [plane, form] : last.all()) {
        auto there = isQuick(*form) ? forms_.formOf(form) : forms_.find(*form);
        if (there) {
            wish.there.push_back(std::move(there));
        } else {
            wish.missing.push_back(form);
        }
    }
    return wish;
}

void UndoSteps::begin(Wish wish) {
    const QString what = wish.place < stack_.index()
                             ? tr("undoing %1").arg(stack_.text(wish.place))
                             : tr("redoing %1").arg(stack_.text(wish.place - 1));
    std::vector<Recipe> recipes;
    for (const Form& form : wish.missing)
        recipes.push_back({form->original, form->runOut});
    wish.work = beginTask<Forms>(
        bench_, {.what = what,
                 .make = [recipes = std::move(recipes)](
                             const ReadingWatch& watch) { return allMadeAnew(recipes, watch); },
                 .done = [this](const Forms& made) { takeMade(made); },
                 .failed = [this, what](const std::string& why) { giveUp(what, why); },
                 .cancelled = [this] { cancel(); }});
    wish_ = std::move(wish);
}

void UndoSteps::takeMade(const Forms& made) {
    const Wish wish = *std::exchange(wish_, std::nullopt);
    for (std::size_t i = 0; i < made.size(); ++i)
        forms_.take(*wish.missing[i], made[i]);
    stepTo(wish.place);
    Q_EMIT changed();
}

void UndoSteps::giveUp(const QString& what, const std::string& why) {
    cancel();
    bench_.report(what + QStringLiteral(": ") + QString::fromStdString(why));
}

void UndoSteps::stepTo(int place) {
    const QScopedValueRollback passing(isPassing_, true);
    stack_.setIndex(place);
}

}  // namespace Rotavue::Workbench
