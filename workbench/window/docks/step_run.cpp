#include "workbench/window/docks/step_run.h"

#include <QAbstractSpinBox>
#include <QApplication>

#include <utility>

namespace Rotavue::Workbench {

StepRun::StepRun(std::function<int()> begin, qint64 longestPause, QObject* parent)
    : QObject(parent), begin_(std::move(begin)), longestPause_(longestPause) {
    connect(qApp, &QApplication::focusChanged, this, [this] { end(); });
}

int StepRun::numberFor(const QWidget* editor) {
    const bool isNumber = qobject_cast<const QAbstractSpinBox*>(editor) != nullptr;
    const bool goesOn = isNumber && editor == editor_ && sinceChange_.elapsed() <= longestPause_;
    if (!goesOn) number_ = begin_();
    editor_ = isNumber ? editor : nullptr;
    sinceChange_.start();
    return number_;
}

}  // namespace Rotavue::Workbench
