#include "workbench/scene/color_book.h"

#include "workbench/scene/curve_colors.h"

#include <algorithm>
#include <utility>

namespace Rotavue::Workbench {

namespace {

/// The curves that every plane offers have a colour each.
std::size_t usualNumber(const CurveRequest& request) {
    switch (request.kind) {
        case CurveKind::Raw:
            return 0;
        case CurveKind::ByAngle:
            return 6;
        case CurveKind::NotFirst:
            return 7;
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

const ColorBook::Entry* ColorBook::entryOf(const CurveRequest& request) const {
    const auto found = std::find_if(entries_.begin(), entries_.end(),
                                    [&](const Entry& entry) { return entry.request == request; });
    return found == entries_.end() ? nullptr : &*found;
}

std::size_t ColorBook::shownWith(std::size_t number) const {
    return static_cast<std::size_t>(std::count_if(
        entries_.begin(), entries_.end(),
        [number](const Entry& entry) { return entry.isShown && entry.number == number; }));
}

std::size_t ColorBook::knownWith(std::size_t number) const {
    return static_cast<std::size_t>(
        std::count_if(entries_.begin(), entries_.end(),
                      [number](const Entry& entry) { return entry.number == number; }));
}

// What no curve has ever had goes first, so that one that comes back finds its own.
std::size_t ColorBook::freeNumber(std::size_t wanted) const {
    if (shownWith(wanted) == 0) return wanted;
    const auto users = [this](std::size_t number) {
        return std::pair(shownWith(number), knownWith(number));
    };
    std::size_t best = 0;
    for (std::size_t number = 1; number < CurveColorsOnLight.size(); ++number)
        if (users(number) < users(best)) best = number;
    return best;
}

void ColorBook::give(const CurveRequest& request) {
    const Entry* const known = entryOf(request);
    if (known != nullptr && known->isShown) return;
    const std::size_t number = freeNumber(numberOf(request));
    std::erase_if(entries_, [&](const Entry& entry) { return entry.request == request; });
    entries_.push_back({request, number});
}

void ColorBook::show(const std::vector<CurveRequest>& curves) {
    for (Entry& entry : entries_)
        entry.isShown =
            entry.isShown && std::find(curves.begin(), curves.end(), entry.request) != curves.end();
    for (const CurveRequest& curve : curves)
        give(curve);
}

void ColorBook::restore(const std::vector<CurveRequest>& curves,
                        const std::vector<std::size_t>& numbers) {
    if (numbers.size() != curves.size()) return;
    for (std::size_t i = 0; i < curves.size(); ++i)
        entries_.push_back({curves[i], numbers[i] % CurveColorsOnLight.size()});
}

std::size_t ColorBook::numberOf(const CurveRequest& request) const {
    const Entry* const known = entryOf(request);
    return known == nullptr ? usualNumber(request) : known->number;
}

}  // namespace Rotavue::Workbench
