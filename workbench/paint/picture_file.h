#pragma once

#include "workbench/paint/picture_studio.h"
#include "workbench/paint/text_line.h"

#include <QByteArray>
#include <QPainter>
#include <QString>

#include <memory>

namespace Rotavue::Workbench {

struct PictureShape {
    int width = 800;     ///< pixels that the painter sees
    int height = 600;    ///< likewise
    double scale = 1.0;  ///< pixels of the file for each of those, each way; PNG only
    int fileWidth = 0;   ///< pixels of a PNG file, with a part of one of those; 0: width * scale
    int fileHeight = 0;  ///< likewise
    QString title = {};  ///< stands in an SVG or PDF file as its title
};

/// The form in which texts of that format are drawn: an SVG file carries no font.
TextForm textFormOf(PictureFormat format);

/// A file of one picture, painted in memory. A pixel is 1/96 inch in a PDF or SVG file.
class PictureFile {
public:
    /// Raises `PaintError` where the size is not from 1 to `LargestSide`.
    static std::unique_ptr<PictureFile> begin(PictureFormat format, const PictureShape& shape);

    virtual ~PictureFile() = default;
    PictureFile(const PictureFile&) = delete;
    PictureFile& operator=(const PictureFile&) = delete;

    QPainter& painter() { return painter_; }

    /// Ends the painting and gives the bytes of the file. Called once. Throws `ReadingCancelled`.
    virtual QByteArray finish(const ReadingProgress& progress) = 0;
    QByteArray finish() { return finish(ReadingProgress()); }

protected:
    PictureFile() = default;

    void paintOn(QPaintDevice& device);

    /// To be called before the device goes; again is no fault.
    void endPainting() {
        if (painter_.isActive()) painter_.end();
    }

    QPainter painter_;
};

}  // namespace Rotavue::Workbench
