#include "workbench/files/recording_questions.h"

#include <QMenu>

#include <algorithm>
#include <exception>
#include <utility>

#include "workbench/files/usable.h"

namespace Rotavue::Workbench {
namespace {

QAction* firstSeparator(const QMenu& menu) {
    const QList<QAction*> actions = menu.actions();
    const auto found = std::find_if(actions.begin(), actions.end(),
                                    [](const QAction* action) { return action->isSeparator(); });
    return found != actions.end() ? *found : nullptr;
}

}  // namespace

RecordingQuestions::RecordingQuestions(Bench& bench, RecordingOpener& opener,
                                       std::function<Plane*()> current, QMenu& menu,
                                       QObject& parent)
    : QObject(&parent), bench_(bench), opener_(opener), current_(std::move(current)) {
    QAction* const before = firstSeparator(menu);
    correct_ = addAction(menu, before, "correctRecording", tr("What this recording &holds..."),
                         tr("Columns, units, probes, rotation and clearance of the current plane"),
                         Qt::CTRL | Qt::Key_I);
    further_ = addAction(menu, before, "openFurtherPlane", tr("Another &plane of this file..."),
                         tr("Opens other columns of the current plane's file beside it"));
    forget_ = addAction(menu, before, "forgetAnswers", tr("&Forget remembered answers"),
                        tr("What was told of recordings is not used again for others"));
    connect(correct_, &QAction::triggered, this, &RecordingQuestions::correct);
    connect(further_, &QAction::triggered, this, &RecordingQuestions::openFurtherPlane);
    connect(forget_, &QAction::triggered, this, [this] { opener_.forgetAnswers(); });
    connect(&menu, &QMenu::aboutToShow, this, &RecordingQuestions::enable);
    connect(&bench, &Bench::planesChanged, this, &RecordingQuestions::enable);
    connect(&opener.loader(), &RecordingLoader::loaded, this, &RecordingQuestions::show);
    enable();
}

QAction* RecordingQuestions::addAction(QMenu& menu, QAction* before, const QString& name,
                                       const QString& text, const QString& help,
                                       const QKeySequence& key) {
    auto* action = new QAction(text, this);
    action->setObjectName(name);
    action->setShortcut(key);
    action->setToolTip(key.isEmpty() ? help
                                     : help + " (" + key.toString(QKeySequence::NativeText) + ')');
    menu.insertAction(before, action);
    return action;
}

void RecordingQuestions::enable() {
    const bool any = !bench_.planes().empty();
    setUsable(*correct_, any, tr("nothing is open"));
    setUsable(*further_, any, tr("nothing is open"));
    setUsable(*forget_, opener_.hasAnswers(), tr("nothing is remembered"));
}

void RecordingQuestions::correct() {
    if (const Plane* plane = current_()) opener_.correct(plane->sharedOriginal());
}

void RecordingQuestions::openFurtherPlane() {
    if (const Plane* plane = current_()) opener_.openFurtherPlane(plane->original());
}

// Nothing is shown in place of a plane that was closed meanwhile.
void RecordingQuestions::show(const LoadRequest& request,
                              const std::shared_ptr<const PlaneSource>& source) {
    if (!request.instead) return;
    const auto& planes = bench_.planes();
    const auto found = std::find_if(planes.begin(), planes.end(), [&](const auto& plane) {
        return plane->sharedOriginal() == request.instead;
    });
    if (found == planes.end()) return;
    const std::shared_ptr<Plane> plane = *found;
    try {
        bench_.replacePlane(*plane, source);
    } catch (const std::exception& error) {
        return bench_.report(QString::fromUtf8(error.what()));
    }
    if (plane->compensation().empty()) return;
    bench_.report(tr("%1 was read again: run-out has to be taken anew")
                      .arg(QString::fromStdString(bench_.titleOf(*plane).text())));
}

}  // namespace Rotavue::Workbench
