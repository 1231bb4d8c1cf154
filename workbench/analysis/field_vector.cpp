#include "workbench/analysis/field_vector.h"

#include "workbench/recording/degrees.h"

namespace Rotavue::Workbench {

FieldVector fieldVector(double cosine, double sine) {
    return {std::hypot(cosine, sine), wrappedDegrees(std::atan2(sine, cosine) / RadiansPerDegree)};
}

}  // namespace Rotavue::Workbench
