#pragma once

#include "workbench/paint/picture_studio.h"

#include <QString>

#include <cstdint>

class QSettings;

namespace Rotavue::Workbench {

/// How the size of a picture is told.
enum class SizeUnit : std::uint8_t { Pixels, Millimetres };

/// What a picture is exported as. A picture is laid out in pixels of 1/96 inch; with more dots per
/// inch a PNG file has more pixels for each of them, and looks the same on paper.
struct ExportSettings {
    PictureFormat format = PictureFormat::Png;
    SizeUnit unit = SizeUnit::Pixels;
    double width = 1200.0;   ///< pixels of a PNG file, of 1/96 inch in the others; or millimetres
    double height = 900.0;   ///< likewise
    int dotsPerInch = 96;    ///< of a PNG file
    bool header = true;      ///< with the strip that tells what is shown
    bool sameScale = false;  ///< all planes of a report in one scale

    bool operator==(const ExportSettings&) const = default;
};

inline constexpr int LeastDotsPerInch = 48;
inline constexpr int MostDotsPerInch = 1200;

/// The smallest picture on which an orbit can be told, in pixels of the layout.
inline constexpr int LeastLayoutSide = 200;

/// The size of the file in whole pixels; for SVG and PDF, of 1/96 inch.
int pixelsOf(const ExportSettings& settings, double side);

/// The same size told in the other unit, for SVG and PDF at 96 pixels an inch.
double converted(double side, SizeUnit from, const ExportSettings& settings);

/// How the picture is to be painted.
PictureOrder orderOf(const ExportSettings& settings);

/// Why there can be no such picture, in one line; empty where there can.
QString faultOf(const ExportSettings& settings);

/// "png", "svg", "pdf".
QString endingOf(PictureFormat format);

/// Remembers, and gives what was remembered; what is missing or makes no sense is as in `usual`.
void store(const ExportSettings& settings, QSettings& place);
ExportSettings stored(QSettings& place, const ExportSettings& usual);

}  // namespace Rotavue::Workbench
