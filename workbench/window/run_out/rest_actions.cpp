#include "workbench/window/run_out/rest_actions.h"

#include "workbench/analysis/analysis_error.h"
#include "workbench/analysis/shaft_center.h"
#include "workbench/bench/undo_macro.h"
#include "workbench/files/usable.h"

#include <QKeySequence>

#include <algorithm>
#include <utility>

namespace Rotavue::Workbench {

namespace {

void prepare(QAction& action, const char* name, const QString& text, const QString& help,
             const QKeySequence& key = {}) {
    action.setObjectName(name);
    action.setText(text);
    action.setShortcut(key);
    action.setToolTip(key.isEmpty() ? help
                                    : help + " (" + key.toString(QKeySequence::NativeText) + ')');
}

/// Why a recording has no such rest position; empty where it has one.
QString faultOf(const Plane& plane, RestPosition rest, const std::optional<TimeSpan>& span = {}) {
    try {
        checkRest(plane.shown().recording, rest, span);
    } catch (const AnalysisError& error) {
        return QString::fromUtf8(error.what());
    }
    return {};
}

std::vector<CurveRequest> withShaftCenter(std::vector<CurveRequest> curves) {
    const bool shown = std::any_of(curves.begin(), curves.end(), [](const CurveRequest& curve) {
        return curve.kind == CurveKind::ShaftCenter;
    });
    if (!shown) curves.push_back({.kind = CurveKind::ShaftCenter});
    return curves;
}

}  // namespace

RestActions::RestActions(Bench& bench, MarkedPlane marked, QObject* parent)
    : QObject(parent), bench_(bench), marked_(std::move(marked)) {
    prepare(atBottom, "restAtBottom", tr("Marked stretch is the &bottom of the clearance"),
            tr("The shaft of a horizontal machine stands in the marked stretch, or hardly turns"),
            Qt::CTRL | Qt::SHIFT | Qt::Key_B);
    prepare(atCentre, "restAtCentre", tr("Marked stretch is the &centre of the clearance"),
            tr("The shaft is in the middle of its clearance in the marked stretch"),
            Qt::CTRL | Qt::SHIFT | Qt::Key_M);
    prepare(forget, "forgetRest", tr("&Forget the rest position"),
            tr("The gaps count as the recording has them"));
    for (QAction* action : {&atBottom, &atCentre, &forget})
        action->setParent(this);
    connect(&atBottom, &QAction::triggered, this,
            [this] { take(RestPosition::BottomOfClearance); });
    connect(&atCentre, &QAction::triggered, this, [this] { take(RestPosition::Centre); });
    connect(&forget, &QAction::triggered, this, [this] { drop(); });
    connect(&bench_, &Bench::curvesChanged, this, [this] { refresh(); });
    connect(&bench_, &Bench::planesChanged, this, [this] { refresh(); });
    refresh();
}

void RestActions::refresh() {
    enable(atBottom, RestPosition::BottomOfClearance);
    enable(atCentre, RestPosition::Centre);
    const Plane* const plane = marked_.plane();
    setUsable(forget, plane != nullptr && plane->curveOptions().shaftCenter.restSpan.has_value(),
              plane != nullptr ? tr("no rest position of this plane has been taken")
                               : tr("nothing is open"));
}

void RestActions::enable(QAction& action, RestPosition rest) {
    const Plane* const plane = marked_.plane();
    QString fault;
    if (plane == nullptr) {
        fault = tr("nothing is open");
    } else if (fault = faultOf(*plane, rest); fault.isEmpty() && !marked_.stretch()) {
        fault = tr("no stretch is marked in the waveforms");
    }
    setUsable(action, fault.isEmpty(), fault);
}

void RestActions::take(RestPosition rest) {
    Plane* const plane = marked_.plane();
    const auto stretch = marked_.stretch();
    if (plane == nullptr || !stretch) return;
    if (const QString fault = faultOf(*plane, rest, stretch); !fault.isEmpty())
        return bench_.report(QString::fromStdString(bench_.titleOf(*plane).text()) + ": " + fault);
    CurveOptions options = plane->curveOptions();
    options.shaftCenter.rest = rest;
    options.shaftCenter.restSpan = stretch;
    const UndoMacro macro(bench_.undoStack(), tr("where the shaft rests"));
    bench_.setCurveOptions(*plane, std::move(options));
    const std::vector<CurveRequest> curves = withShaftCenter(plane->curves());
    if (curves != plane->curves()) bench_.setCurves(*plane, curves);
}

// Whether the bottom or the centre counts is a choice of its own, in the channel tree.
void RestActions::drop() {
    Plane* const plane = marked_.plane();
    if (plane == nullptr) return;
    CurveOptions options = plane->curveOptions();
    options.shaftCenter.restSpan.reset();
    bench_.setCurveOptions(*plane, std::move(options));
}

}  // namespace Rotavue::Workbench
