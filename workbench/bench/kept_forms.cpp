#include "workbench/bench/kept_forms.h"

#include "workbench/bench/run_out.h"

#include <algorithm>
#include <utility>

namespace Rotavue::Workbench {

std::shared_ptr<KeptForms::Kept> KeptForms::keep(const std::shared_ptr<const PlaneSource>& form) {
    if (!form->runOut) return std::make_shared<Kept>(Kept{form, nullptr});
    hold(form);
    // The run-out alone: with it, what is left of the recording would be held for ever.
    return std::make_shared<Kept>(Kept{form->runOut->original, form->runOut, form});
}

std::shared_ptr<const PlaneSource> KeptForms::find(const Kept& kept) {
    if (!kept.runOut) return kept.original;
    auto form = kept.made.lock();
    if (form) hold(form);
    return form;
}

void KeptForms::take(Kept& kept, const std::shared_ptr<const PlaneSource>& form) {
    kept.made = form;
    hold(form);
}

std::shared_ptr<const PlaneSource> KeptForms::formOf(const std::shared_ptr<Kept>& kept) {
    auto form = find(*kept);
    if (form) return form;
    form = madeAnew(kept->original, *kept->runOut);
    take(*kept, form);
    return form;
}

void KeptForms::hold(std::shared_ptr<const PlaneSource> form) {
    std::erase(held_, form);
    held_.push_back(std::move(form));
    while (held_.size() > 1 && holdsTooMuch())
        held_.pop_front();
}

bool KeptForms::holdsTooMuch() const {
    std::size_t memory = 0;
    for (const auto& form : held_)
        for (const Samples* samples :
             {&form->recording.x, &form->recording.y, &form->recording.angle})
            memory += samples->memoryUse();
    return held_.size() > MostHeld || memory > mostMemory_;
}

std::shared_ptr<const PlaneSource> madeAnew(const std::shared_ptr<const PlaneSource>& original,
                                            const RunOut& runOut, const ReadingWatch& watch) {
    return withoutRunOut(original, runOut.source, runOut.slowRoll, watch);
}

}  // namespace Rotavue::Workbench
