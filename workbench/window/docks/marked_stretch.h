#pragma once

#include "workbench/analysis/time_span.h"

#include <QObject>

#include <optional>

namespace Rotavue::Workbench {

/// The one stretch of time that the user has marked in a plot, in s after the first sample: what
/// slow roll is taken from, for one.
class MarkedStretch final : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    const std::optional<TimeSpan>& span() const { return span_; }

    void set(const std::optional<TimeSpan>& span);

Q_SIGNALS:
    void changed(const std::optional<Rotavue::Workbench::TimeSpan>& span);

private:
    std::optional<TimeSpan> span_;
};

}  // namespace Rotavue::Workbench
