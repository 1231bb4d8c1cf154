#include "workbench/scene/color_book.h"

#include "workbench/scene/curve_colors.h"

#include <algorithm>

namespace Rotavue::Workbench {

namespace {

/// The curves that every plane offers have six colours.
std::size_t usualNumber(const CurveRequest& request) {
    switch (request.kind) {
        case CurveKind::Raw:
            return 0;
        case CurveKind::Average:
            return 2;
        case CurveKind::Harmonic:
            return !request.orders.empty() && request.orders.front() == 1.0 ? 1 : 3;
        case CurveKind::SubSync:
            return 4;
        case CurveKind::Reference:
            return 3;
        case CurveKind::ShaftCenter:
            break;
    }
    return 5;
}

}  // namespace

std::size_t ColorBook::usersOf(std::size_t number) const {
    return static_cast<std::size_t>(
        std::count_if(entries_.begin(), entries_.end(),
                      [number](const Entry& entry) { return entry.number == number; }));
}

std::size_t ColorBook::freeNumber(std::size_t wanted) const {
    if (usersOf(wanted) == 0) return wanted;
    std::size_t best = 0;
    for (std::size_t number = 1; number < CurveColorsOnLight.size(); ++number)
        if (usersOf(number) < usersOf(best)) best = number;
    return best;
}

void ColorBook::add(const CurveRequest& request) {
    const auto isIt = [&](const Entry& entry) { return entry.request == request; };
    if (std::any_of(entries_.begin(), entries_.end(), isIt)) return;
    entries_.push_back({request, freeNumber(usualNumber(request))});
}

std::size_t ColorBook::numberOf(const CurveRequest& request) const {
    for (const Entry& entry : entries_)
        if (entry.request == request) return entry.number;
    return usualNumber(request);
}

}  // namespace Rotavue::Workbench
