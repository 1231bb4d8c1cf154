#include "workbench/scene/graph_scale.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace Rotavue::Workbench {

namespace {

/// What stays free between the orbit and the frame.
constexpr double Headroom = 1.05;

constexpr std::int32_t MostDecimals = 9;

/// The smallest number of 1, 1.5, 2, 2.5, 3, 4, 5, 6 or 8 times a power of ten that is not below.
double roundUp(double value) {
    constexpr std::array Steps{1.0, 1.5, 2.0, 2.5, 3.0, 4.0, 5.0, 6.0, 8.0, 10.0};
    constexpr double Slack = 1.0 - 1e-12;  // of a value that is round already
    const int exponent = static_cast<int>(std::floor(std::log10(value)));
    const double power = std::pow(10.0, std::abs(exponent));
    for (const double step : Steps) {
        const double candidate = exponent < 0 ? step / power : step * power;
        if (candidate >= value * Slack) return candidate;
    }
    return value;
}

/// The digits behind the point that the value has.
std::int32_t decimalsOf(double value) {
    double scaled = std::abs(value);
    for (std::int32_t digits = 0; digits < MostDecimals; ++digits, scaled *= 10.0) {
        if (std::abs(scaled - std::round(scaled)) < 1e-9 * std::max(1.0, scaled)) return digits;
    }
    return MostDecimals;
}

/// The digits behind the point of three that count.
std::int32_t decimalsOfThree(double value) {
    const int before = static_cast<int>(std::floor(std::log10(value))) + 1;
    return std::clamp(3 - before, 0, MostDecimals);
}

}  // namespace

double divisionsEachWay(Background background, std::int32_t ticks) {
    const double divisions = ticks + 1.0;
    return background == Background::Circle ? divisions : divisions / 2.0;
}

GraphScale roundScale(double extent, Background background, std::int32_t ticks) {
    const double each = divisionsEachWay(background, ticks);
    const double division = roundUp(extent * Headroom / each);
    const double limit = division * each;
    return {.limit = limit,
            .division = division,
            .ticks = ticks,
            .decimals = std::max(decimalsOf(limit), decimalsOf(division))};
}

GraphScale plainScale(double limit, Background background, std::int32_t ticks) {
    return {.limit = limit,
            .division = limit / divisionsEachWay(background, ticks),
            .ticks = ticks,
            .decimals = decimalsOfThree(limit)};
}

bool fits(const GraphScale& scale, const ScaleRoom& room) {
    constexpr double DigitWidth = 0.64;     // of the text height
    constexpr double TickTextHeight = 0.8;  // of that of the limits
    const int characters = std::snprintf(nullptr, 0, "%.*f", scale.decimals, -scale.limit);
    const double limitText = characters * DigitWidth * room.textHeight;
    // A limit's number stands at the corner; the next one is centred on its tick.
    const double needed = limitText * (1.0 + TickTextHeight / 2.0) + room.textHeight / 2.0;
    const double each = divisionsEachWay(room.background, scale.ticks);
    return room.plotSide / (2.0 * each) >= needed;
}

}  // namespace Rotavue::Workbench
