#pragma once

#include <QElapsedTimer>

#include "workbench/files/progress_row.h"

namespace Rotavue::Workbench {

class Bench;

/// How far the curve, or what else a bench tells of, is that is being made, with a button that
/// cancels. As the bar of what is loaded, it leaves out what is quick.
class WorkBar : public ProgressRow {
    Q_OBJECT

public:
    static constexpr int Delay = 500;  ///< ms

    /// The bench must outlive it.
    explicit WorkBar(Bench& bench, QWidget* parent = nullptr);

private:
    QElapsedTimer clock_;
};

}  // namespace Rotavue::Workbench
