#include "workbench/scene/fact_words.h"

#include "workbench/recording/keyphasor.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace Rotavue::Workbench {

const char* roleText(ColumnRole role) {
    switch (role) {
        case ColumnRole::Time:
            return "time";
        case ColumnRole::X:
            return "x";
        case ColumnRole::Y:
            return "y";
        case ColumnRole::Keyphasor:
            return "keyphasor";
        case ColumnRole::Unused:
            break;
    }
    return "unused";
}

const char* sourceText(RateSource source) {
    switch (source) {
        case RateSource::TimeColumn:
            return "time column";
        case RateSource::FileHeader:
            return "file header";
        case RateSource::Option:
            break;
    }
    return "option";
}

double turnsIn(const Recording& recording) {
    return recording.hasTacho() ? std::abs(turnsOf(recording.angle)) : 0.0;
}

std::string placeText(double degreesClockwise) {
    const std::string degree = "\u00b0";
    if (degreesClockwise == 0.0) return "0" + degree;
    if (degreesClockwise <= 180.0) return shortNumber(degreesClockwise) + degree + " R";
    return shortNumber(360.0 - degreesClockwise) + degree + " L";
}

std::string timeText(double seconds) {
    constexpr int LongestText = 400;  // the largest number has 309 digits before its point
    char text[LongestText];
    std::snprintf(text, sizeof text, "%.4f", seconds);
    return text;
}

std::string shortNumber(double value, int digits) {
    const double magnitude = std::abs(value);
    const int before = magnitude >= 1.0 ? static_cast<int>(std::log10(magnitude)) + 1 : 1;
    char text[64];
    std::snprintf(text, sizeof text, "%.*g", std::max(digits, std::min(before, 15)), value);
    return text;
}

std::string restText(const ShaftCenterChoice& choice, const std::vector<CurveRequest>& drawn) {
    const bool shows = std::any_of(drawn.begin(), drawn.end(), [](const CurveRequest& curve) {
        return curve.kind == CurveKind::ShaftCenter;
    });
    if (!shows || !choice.restSpan) return {};
    const bool low = choice.rest == RestPosition::BottomOfClearance;
    return "rest " + shortNumber(choice.restSpan->from) + " to " +
           shortNumber(choice.restSpan->to) + " s " + (low ? "at the bottom" : "in the centre");
}

}  // namespace Rotavue::Workbench
