#pragma once

#include "workbench/paint/text_line.h"

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <functional>

class QPainter;

namespace Rotavue::Workbench {

enum class PictureFormat : std::uint8_t { Png, Svg, Pdf };

/// Largest picture, in pixels of the file, each way.
inline constexpr int LargestSide = 8192;

struct PictureShape {
    int width = 800;     ///< pixels that the painter sees
    int height = 600;    ///< likewise
    int scale = 1;       ///< pixels of the file for each of those, each way; PNG only
    QString title = {};  ///< stands in an SVG or PDF file as its title
};

/// The form in which texts of that format are drawn: an SVG file carries no font.
TextForm textFormOf(PictureFormat format);

/// Paints a picture and gives the bytes of its file. The same painting gives the same bytes: no
/// file holds a date. A pixel is 1/96 inch in a PDF or SVG file.
///
/// Throws PaintError where the size is not from 1 to `LargestSide` or the file cannot be made.
QByteArray paintPicture(PictureFormat format, const PictureShape& shape,
                        const std::function<void(QPainter&)>& paint);

}  // namespace Rotavue::Workbench
