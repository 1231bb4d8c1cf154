#pragma once

#include "workbench/paint/painter_canvas.h"

#include <QImage>
#include <QPainter>

#include <optional>
#include <string>

namespace Rotavue::Workbench {

/// A white image with a canvas on it, for tests that look at pixels.
class Sheet {
public:
    Sheet(int width, int height, const CanvasOptions& options = {}, int scale = 1)
        : image_(width * scale, height * scale, QImage::Format_RGB32) {
        image_.setDevicePixelRatio(scale);
        image_.fill(Qt::white);
        painter_.begin(&image_);
        canvas_.emplace(painter_, QSize(width, height), options);
    }

    ~Sheet() { finish(); }

    PainterCanvas& operator*() { return *canvas_; }
    PainterCanvas* operator->() { return &*canvas_; }
    QPainter& painter() { return painter_; }

    /// Ends the painting and gives the image.
    const QImage& finish() {
        canvas_.reset();
        if (painter_.isActive()) painter_.end();
        return image_;
    }

    /// The pixel of the file as 0xRRGGBB.
    unsigned at(int x, int y) { return finish().pixel(x, y) & 0xFFFFFFU; }

    /// The smallest box around all pixels that are not white.
    QRect inked() {
        QRect box;
        const QImage& image = finish();
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if ((image.pixel(x, y) & 0xFFFFFFU) != 0xFFFFFFU) box |= QRect(x, y, 1, 1);
            }
        }
        return box;
    }

private:
    QImage image_;
    QPainter painter_;
    std::optional<PainterCanvas> canvas_;
};

inline CanvasOptions withPixels() {
    CanvasOptions options;
    options.lines = LineQuality::Pixels;
    return options;
}

}  // namespace Rotavue::Workbench
