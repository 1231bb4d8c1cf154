#include "workbench/paint/picture_file.h"

#include "workbench/paint/offscreen_gui.h"
#include "workbench/paint/png_file.h"

#include <QBuffer>
#include <QImage>
#include <QMarginsF>
#include <QPageSize>
#include <QPdfWriter>
#include <QSvgGenerator>

#include <cmath>
#include <optional>
#include <string_view>

namespace Rotavue::Workbench {

namespace {

constexpr int DotsPerInch = 96;

QSize fileSize(const PictureShape& shape) {
    const auto side = [&](int given, int pixels) {
        return given > 0 ? given : static_cast<int>(std::lround(pixels * shape.scale));
    };
    return {side(shape.fileWidth, shape.width), side(shape.fileHeight, shape.height)};
}

class PngFile final : public PictureFile {
public:
    explicit PngFile(const PictureShape& shape) : image_(fileSize(shape), QImage::Format_RGB32) {
        if (image_.isNull()) throw PaintError("there is not enough memory for the picture");
        const int dotsPerMetre = static_cast<int>(std::lround(DotsPerInch * shape.scale / 0.0254));
        // Qt takes no ratio below 1 into account.
        if (shape.scale >= 1.0) image_.setDevicePixelRatio(shape.scale);
        image_.setDotsPerMeterX(dotsPerMetre);
        image_.setDotsPerMeterY(dotsPerMetre);
        image_.fill(Qt::white);
        paintOn(image_);
        if (shape.scale < 1.0) painter_.scale(shape.scale, shape.scale);
    }

    ~PngFile() override { endPainting(); }

    QByteArray finish(const ReadingProgress& progress) override {
        endPainting();
        return toPngFile(image_, progress);
    }

private:
    QImage image_;
};

class SvgFile final : public PictureFile {
public:
    explicit SvgFile(const PictureShape& shape) {
        generator_.setOutputDevice(&file_);
        generator_.setResolution(DotsPerInch);
        generator_.setSize({shape.width, shape.height});
        generator_.setViewBox(QRect(0, 0, shape.width, shape.height));
        generator_.setTitle(shape.title.toHtmlEscaped());  // the generator writes it as it stands
        generator_.setDescription(QStringLiteral("Orbit plot"));
        paintOn(generator_);
    }

    ~SvgFile() override { endPainting(); }

    QByteArray finish(const ReadingProgress&) override {
        endPainting();
        return file_.data();
    }

private:
    QBuffer file_;
    QSvgGenerator generator_;
};

class PdfFile final : public PictureFile {
public:
    explicit PdfFile(const PictureShape& shape) {
        file_.open(QIODevice::WriteOnly);
        writer_.emplace(&file_);
        constexpr double PointsPerPixel = 72.0 / DotsPerInch;
        const QSizeF page(shape.width * PointsPerPixel, shape.height * PointsPerPixel);
        writer_->setPageSize(QPageSize(page, QPageSize::Point, QString(), QPageSize::ExactMatch));
        writer_->setPageMargins(QMarginsF());
        writer_->setResolution(DotsPerInch);
        writer_->setTitle(shape.title);
        writer_->setCreator(QStringLiteral("Rotavue"));
        paintOn(*writer_);
    }

    ~PdfFile() override { endPainting(); }

    QByteArray finish(const ReadingProgress&) override {
        endPainting();
        writer_.reset();
        QByteArray bytes = file_.data();
        fixDate(bytes);
        return bytes;
    }

private:
    /// The writer puts the time of day into the file. Digits of the same number keep every offset.
    static void fixDate(QByteArray& bytes) {
        const QByteArray mark("/CreationDate (D:");
        const qsizetype found = bytes.indexOf(mark);
        if (found < 0) return;
        constexpr std::string_view Date = "20000101000000";
        const auto length = static_cast<qsizetype>(Date.size());
        bytes.replace(found + mark.size(), length, Date.data(), length);
    }

    QBuffer file_;
    std::optional<QPdfWriter> writer_;
};

void checkShape(const PictureShape& shape) {
    constexpr double LeastScale = 0.01;
    const auto fits = [&](int side, int given) {
        return side >= 1 && side <= LargestSide && side * shape.scale <= LargestSide &&
               given >= 0 && given <= LargestSide;
    };
    if (!(shape.scale >= LeastScale) || !fits(shape.width, shape.fileWidth) ||
        !fits(shape.height, shape.fileHeight)) {
        throw PaintError("a picture is 1 to " + std::to_string(LargestSide) +
                         " pixels wide and high");
    }
}

}  // namespace

TextForm textFormOf(PictureFormat format) {
    return format == PictureFormat::Svg ? TextForm::Outlines : TextForm::Letters;
}

std::unique_ptr<PictureFile> PictureFile::begin(PictureFormat format, const PictureShape& shape) {
    checkShape(shape);
    switch (format) {
        case PictureFormat::Png:
            return std::make_unique<PngFile>(shape);
        case PictureFormat::Svg:
            return std::make_unique<SvgFile>(shape);
        case PictureFormat::Pdf:
            return std::make_unique<PdfFile>(shape);
    }
    throw PaintError("there is no such picture format");
}

void PictureFile::paintOn(QPaintDevice& device) {
    if (!painter_.begin(&device)) throw PaintError("the picture cannot be painted");
}

}  // namespace Rotavue::Workbench
