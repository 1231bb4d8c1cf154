#include "workbench/paint/picture.h"

#include "workbench/paint/offscreen_gui.h"

#include <QBuffer>
#include <QImage>
#include <QImageWriter>
#include <QMarginsF>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

#include <cmath>

namespace Rotavue::Workbench {

namespace {

using Paint = std::function<void(QPainter&)>;

constexpr int DotsPerInch = 96;

void paintOn(QPaintDevice& device, const Paint& paint) {
    QPainter painter;
    if (!painter.begin(&device)) throw PaintError("the picture cannot be painted");
    paint(painter);
    painter.end();
}

QByteArray paintPng(const PictureShape& shape, const Paint& paint) {
    QImage image(shape.width * shape.scale, shape.height * shape.scale, QImage::Format_RGB32);
    if (image.isNull()) throw PaintError("not enough memory for the picture");
    const int dotsPerMetre = static_cast<int>(std::lround(DotsPerInch * shape.scale / 0.0254));
    image.setDevicePixelRatio(shape.scale);
    image.setDotsPerMeterX(dotsPerMetre);
    image.setDotsPerMeterY(dotsPerMetre);
    image.fill(Qt::white);
    paintOn(image, paint);
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    if (!QImageWriter(&file, "png").write(image)) throw PaintError("the PNG file cannot be made");
    return file.data();
}

QByteArray paintSvg(const PictureShape& shape, const Paint& paint) {
    QBuffer file;
    QSvgGenerator generator;
    generator.setOutputDevice(&file);
    generator.setResolution(DotsPerInch);
    generator.setSize({shape.width, shape.height});
    generator.setViewBox(QRect(0, 0, shape.width, shape.height));
    generator.setTitle(shape.title.toHtmlEscaped());  // the generator writes it as it stands
    generator.setDescription(QStringLiteral("Orbit plot"));
    paintOn(generator, paint);
    return file.data();
}

/// The writer puts the time of day into the file. Digits of the same number keep every offset.
void fixDate(QByteArray& pdf) {
    const QByteArray mark("/CreationDate (D:");
    const qsizetype found = pdf.indexOf(mark);
    if (found < 0) return;
    constexpr std::string_view Date = "20000101000000";
    pdf.replace(found + mark.size(), static_cast<qsizetype>(Date.size()), Date.data(),
                static_cast<qsizetype>(Date.size()));
}

QByteArray paintPdf(const PictureShape& shape, const Paint& paint) {
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&file);
        constexpr double PointsPerPixel = 72.0 / DotsPerInch;
        writer.setPageSize(
            QPageSize(QSizeF(shape.width * PointsPerPixel, shape.height * PointsPerPixel),
                      QPageSize::Point, QString(), QPageSize::ExactMatch));
        writer.setPageMargins(QMarginsF());
        writer.setResolution(DotsPerInch);
        writer.setTitle(shape.title);
        writer.setCreator(QStringLiteral("Rotavue"));
        paintOn(writer, paint);
    }
    QByteArray pdf = file.data();
    fixDate(pdf);
    return pdf;
}

void checkShape(const PictureShape& shape) {
    const auto fits = [&](int side) { return side >= 1 && side <= LargestSide / shape.scale; };
    if (shape.scale < 1 || !fits(shape.width) || !fits(shape.height)) {
        throw PaintError("a picture is 1 to " + std::to_string(LargestSide) +
                         " pixels wide and high");
    }
}

}  // namespace

TextForm textFormOf(PictureFormat format) {
    return format == PictureFormat::Svg ? TextForm::Outlines : TextForm::Letters;
}

QByteArray paintPicture(PictureFormat format, const PictureShape& shape, const Paint& paint) {
    checkShape(shape);
    switch (format) {
        case PictureFormat::Png:
            return paintPng(shape, paint);
        case PictureFormat::Svg:
            return paintSvg(shape, paint);
        case PictureFormat::Pdf:
            return paintPdf(shape, paint);
    }
    throw PaintError("no such picture format");
}

}  // namespace Rotavue::Workbench
