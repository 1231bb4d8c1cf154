#include "workbench/files/work_bar.h"

#include "workbench/bench/bench.h"

namespace Rotavue::Workbench {

WorkBar::WorkBar(Bench& bench, QWidget* parent)
    : ProgressRow(QStringLiteral("work"), tr("Do without what is not made yet"), parent) {
    connect(this, &ProgressRow::cancelled, &bench, &Bench::cancelWork);
    connect(&bench, &Bench::worked, this, [this](const QString& what, double part) {
        if (!clock_.isValid()) clock_.start();
        tell(tr("Making %1").arg(what), part);
        if (clock_.elapsed() >= Delay) show();
    });
    connect(&bench, &Bench::workEnded, this, [this] {
        clock_.invalidate();
        hide();
    });
}

}  // namespace Rotavue::Workbench
