#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>

#include <functional>

class QWidget;

namespace Rotavue::Workbench {

/// Tells which changes a user makes in one go: those of one number box (an arrow that is held,
/// clicks of the wheel, digits), until another widget has the focus or the box has rested.
class StepRun final : public QObject {
public:
    static constexpr qint64 LongestPause = 1500;  ///< ms between two changes of one run

    /// `begin` gives the number of a new run.
    explicit StepRun(std::function<int()> begin, qint64 longestPause = LongestPause,
                     QObject* parent = nullptr);

    /// The number of the run that a change of this widget belongs to, which happens now.
    int numberFor(const QWidget* editor);

    /// The next change begins a run.
    void end() { editor_.clear(); }

private:
    std::function<int()> begin_;
    qint64 longestPause_;
    QPointer<const QWidget> editor_;
    QElapsedTimer sinceChange_;
    int number_ = 0;
};

}  // namespace Rotavue::Workbench
