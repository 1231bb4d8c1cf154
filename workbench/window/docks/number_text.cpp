#include "workbench/window/docks/number_text.h"

#include "workbench/analysis/short_text.h"

#include <algorithm>
#include <cmath>

namespace Rotavue::Workbench {

namespace {

constexpr int OtherPlaces = 3;

constexpr struct {
    const char* unit;
    int places;
} UnitPlaces[] = {{"um", 2},  {"\u00B5m", 2}, {"\u03BCm", 2}, {"mm", 4},
                  {"mil", 3}, {"mils", 3},    {"in", 6},      {"nm", 0}};

/// A tenth of a degree, from 0 to below the period.
QString tenthsWithin(double degrees, double period) {
    constexpr double PerDegree = 10.0;
    const double tenths = std::round(degrees * PerDegree) / PerDegree;
    return placed(tenths - period * std::floor(tenths / period), 1);
}

}  // namespace

QString placed(double value, int places) {
    constexpr double Largest = 1e9;
    if (!(std::abs(value) < Largest)) return QString::fromStdString(shortText(value));
    const QString text = QString::number(value, 'f', places);
    return text.toDouble() == 0.0 ? QString::number(0.0, 'f', places) : text;
}

int placesForSpan(double span) {
    constexpr double Parts = 100.0;
    constexpr double MostPlaces = 12.0;
    if (!(span > 0.0)) return 0;
    return static_cast<int>(std::clamp(std::ceil(std::log10(Parts / span)), 0.0, MostPlaces));
}

int displacementPlaces(const std::string& unit) {
    for (const auto& known : UnitPlaces)
        if (unit == known.unit) return known.places;
    return OtherPlaces;
}

QString displacementText(double value, const std::string& unit) {
    return placed(value, displacementPlaces(unit));
}

QString lagText(double degrees) {
    constexpr double FullTurn = 360.0;
    return tenthsWithin(degrees, FullTurn);
}

QString tiltText(double degrees) {
    constexpr double HalfTurn = 180.0;
    return tenthsWithin(degrees, HalfTurn);
}

QString speedText(double rpm) {
    return placed(rpm, 0);
}

}  // namespace Rotavue::Workbench
