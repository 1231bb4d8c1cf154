#include "workbench/window/docks/marked_stretch.h"

namespace Rotavue::Workbench {

namespace {

bool isSame(const std::optional<TimeSpan>& a, const std::optional<TimeSpan>& b) {
    if (!a || !b) return a.has_value() == b.has_value();
    return a->from == b->from && a->to == b->to;
}

}  // namespace

void MarkedStretch::set(const std::optional<TimeSpan>& span) {
    if (isSame(span, span_)) return;
    span_ = span;
    changed(span_);
}

}  // namespace Rotavue::Workbench
