#pragma once

#include <exception>
#include <functional>
#include <utility>

namespace Rotavue::Workbench {

/// Is told how much of a reading is done, 0 to 1 and never less than before, and answers whether it
/// shall go on. Called by the thread that reads, often: up to some thousand times a second.
using ReadingWatch = std::function<bool(double part)>;

/// What ends a reading that its watch did not let go on.
class ReadingCancelled : public std::exception {
public:
    const char* what() const noexcept override { return "the reading was cancelled"; }
};

/// A stretch of a watched reading, for whoever does this stretch and knows of no other.
class ReadingProgress {
public:
    /// Without a watch nobody is told, and nothing is cancelled.
    explicit ReadingProgress(ReadingWatch watch = {}) : watch_(std::move(watch)) {}

    /// That part of this stretch is done. Throws ReadingCancelled if the watch does not let it go
    /// on.
    void reach(double part) const {
        if (watch_ && !watch_(from_ + part * (to_ - from_))) throw ReadingCancelled();
    }

    /// The stretch of this one between two of its parts.
    ReadingProgress between(double from, double to) const {
        ReadingProgress inner = *this;
        inner.from_ = from_ + from * (to_ - from_);
        inner.to_ = from_ + to * (to_ - from_);
        return inner;
    }

private:
    ReadingWatch watch_;
    double from_ = 0.0;
    double to_ = 1.0;
};

}  // namespace Rotavue::Workbench
