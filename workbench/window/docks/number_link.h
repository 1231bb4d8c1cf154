#pragma once

#include "workbench/bench/bench.h"
#include "workbench/window/docks/number_table.h"

#include <QObject>

namespace Rotavue::Workbench {

/// Lets the number table follow the shown turns of all planes of a bench, and warn of pictures
/// whose axes have different spans. The current plane's columns come first.
class NumberLink final : public QObject {
public:
    /// Both must outlive this object.
    NumberLink(Bench& bench, NumberTable& table, QObject* parent = nullptr);

    void setCurrent(const Plane* plane);

private:
    void showTurns();
    void showWarnings();
    void makeEqual();

    Bench& bench_;
    NumberTable& table_;
    const Plane* current_ = nullptr;
};

}  // namespace Rotavue::Workbench
