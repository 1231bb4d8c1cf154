#pragma once

#include "workbench/bench/plane_source.h"
#include "workbench/recording/reading_watch.h"

#include <cstddef>
#include <deque>
#include <memory>

namespace Rotavue::Workbench {

/// Forms of recordings that steps of undo may show again: a recording itself, or what is left of it
/// without run-out. What is left has as many samples as the recording, so the newest few are held
/// alone, and of long recordings the very newest; an older one is made anew of its run-out when it
/// is asked for, which takes as long as the recording is.
class KeptForms {
public:
    /// Forms without run-out that are held, beside those that planes show.
    static constexpr std::size_t MostHeld = 3;

    /// Bytes of samples beyond which no more than the newest of them is held.
    static constexpr std::size_t MostMemory = 64'000'000;

    explicit KeptForms(std::size_t mostMemory = MostMemory) : mostMemory_(mostMemory) {}

    /// Enough to have a form again.
    struct Kept {
        std::shared_ptr<const PlaneSource> original;
        std::shared_ptr<const RunOut> runOut;        ///< null: the original itself
        std::weak_ptr<const PlaneSource> made = {};  ///< what is left, while anybody holds it
    };

    std::shared_ptr<Kept> keep(const std::shared_ptr<const PlaneSource>& form);

    /// The form, if anybody holds it; null where it has to be made anew.
    std::shared_ptr<const PlaneSource> find(const Kept& kept);

    /// Takes one that was made anew.
    void take(Kept& kept, const std::shared_ptr<const PlaneSource>& form);

    /// The form; makes it anew where that must be.
    std::shared_ptr<const PlaneSource> formOf(const std::shared_ptr<Kept>& kept);

    /// Holds none any more: no step of undo will ask for one.
    void letGo() { held_.clear(); }

private:
    void hold(std::shared_ptr<const PlaneSource> form);
    bool holdsTooMuch() const;

    std::size_t mostMemory_;
    std::deque<std::shared_ptr<const PlaneSource>> held_;  ///< the newest last
};

/// What is left of that recording without that run-out. Any thread may ask. Throws
/// ReadingCancelled.
std::shared_ptr<const PlaneSource> madeAnew(const std::shared_ptr<const PlaneSource>& original,
                                            const RunOut& runOut, const ReadingWatch& watch = {});

}  // namespace Rotavue::Workbench
