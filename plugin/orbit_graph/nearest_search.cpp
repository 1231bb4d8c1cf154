#include "plugin/orbit_graph/nearest_search.h"

#include <cmath>

namespace Meridax::VisualControls::Rotavue {

NearestSearch::NearestSearch(NearestSample& nearest, const Point& pointer)
    : nearest_(nearest), pointer_(pointer) {
    nearest_.distance = std::numeric_limits<double>::max();
    nearest_.found = false;
    nearest_.position = pointer;
}

void NearestSearch::beginCurve(const OrbitCurve& curve) {
    curve_ = &curve;
    infoTold_ = false;
}

/// Squares that differ can have the same root; the earlier sample then stays.
bool NearestSearch::takeIfNearer(const Point& value, const Point& position, double squared) {
    const double distance = std::sqrt(squared);
    if (!(distance < nearest_.distance)) return false;
    squaredDistance_ = squared;
    nearest_.position = position;
    nearest_.x = value.x;
    nearest_.y = value.y;
    tellInfo();
    nearest_.kind = curve_->kind;
    nearest_.distance = distance;
    nearest_.found = true;
    return true;
}

/// Once for a curve, for its name may be long and each of its samples nearer than the last.
void NearestSearch::tellInfo() {
    if (infoTold_ && nearest_.search == this) return;
    nearest_.info = curve_->info;
    nearest_.search = this;
    infoTold_ = true;
}

}  // namespace Meridax::VisualControls::Rotavue
