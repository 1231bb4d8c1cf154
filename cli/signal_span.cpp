#include "cli/signal_span.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Rotavue::Cli {

SignalSpan SignalSpan::of(Workbench::SampleView values) {
    constexpr double Infinity = std::numeric_limits<double>::infinity();
    SignalSpan span{.least = Infinity, .most = -Infinity};
    double sum = 0.0;
    values.forEach([&](double value) {
        if (std::isnan(value)) {
            ++span.gaps;
            return;
        }
        span.least = std::min(span.least, value);
        span.most = std::max(span.most, value);
        sum += value;
    });
    span.mean = sum / static_cast<double>(values.size() - span.gaps);
    return span;
}

}  // namespace Rotavue::Cli
