#pragma once

#include "plugin/orbit_graph/graph_state.h"

#include <limits>

namespace Meridax::VisualControls::Rotavue {

/// The search for the sample nearest to the pointer, over all curves of one frame. The caller
/// offers the samples inside the limits.
class NearestSearch {
public:
    NearestSearch(NearestSample& nearest, const Point& pointer);

    void beginCurve(const OrbitCurve& curve);

    /// Takes the sample over when it is nearer than every one before, and says whether it did.
    /// Squares are compared first, for most samples lose by them.
    bool offer(const Point& value, const Point& position) {
        const double dx = position.x - pointer_.x;
        const double dy = position.y - pointer_.y;
        const double squared = dx * dx + dy * dy;
        return squared < squaredDistance_ && takeIfNearer(value, position, squared);
    }

private:
    bool takeIfNearer(const Point& value, const Point& position, double squared);
    void tellInfo();

    NearestSample& nearest_;
    Point pointer_;
    double squaredDistance_ = std::numeric_limits<double>::infinity();
    const OrbitCurve* curve_ = nullptr;
    bool infoTold_ = false;  ///< of that curve
};

}  // namespace Meridax::VisualControls::Rotavue
