#pragma once

#include "workbench/recording/reading_watch.h"

#include <QByteArray>
#include <QImage>

namespace Rotavue::Workbench {

/// The image, of `QImage::Format_RGB32`, as a PNG file with its size on paper. Qt's own writer
/// tries five filters on every row, which gains nothing where most pixels are those beside them:
/// without filters a picture of an orbit is as small and made in a third of the time. Raises
/// `PaintError` where memory runs out, and `ReadingCancelled`.
QByteArray toPngFile(const QImage& image, const ReadingProgress& progress = ReadingProgress());

}  // namespace Rotavue::Workbench
