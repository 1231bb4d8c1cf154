#pragma once

#include <stdexcept>

namespace Rotavue::Workbench {

/// An analysis that cannot be made. what() is one line that says what is missing or what stands in
/// the way, as in
///     the averaged orbit needs the shaft's angle, and the recording has no keyphasor
class AnalysisError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

}  // namespace Rotavue::Workbench
