#include "workbench/export/export_settings.h"

#include <QSettings>
#include <QVariant>

#include <algorithm>
#include <array>
#include <cmath>

namespace Rotavue::Workbench {

namespace {

constexpr double MillimetresPerInch = 25.4;
constexpr double LayoutDotsPerInch = 96.0;
constexpr std::array Formats{PictureFormat::Png, PictureFormat::Svg, PictureFormat::Pdf};

double dotsPerInch(const ExportSettings& settings) {
    return settings.format == PictureFormat::Png ? settings.dotsPerInch : LayoutDotsPerInch;
}

/// Pixels of the file for each of the layout.
double scaleOf(const ExportSettings& settings) {
    return dotsPerInch(settings) / LayoutDotsPerInch;
}

int layoutSide(const ExportSettings& settings, double side) {
    return static_cast<int>(std::floor(pixelsOf(settings, side) / scaleOf(settings)));
}

}  // namespace

int pixelsOf(const ExportSettings& settings, double side) {
    if (settings.unit == SizeUnit::Pixels) return static_cast<int>(std::lround(side));
    return static_cast<int>(std::lround(side / MillimetresPerInch * dotsPerInch(settings)));
}

double converted(double side, SizeUnit from, const ExportSettings& settings) {
    const double perMillimetre = dotsPerInch(settings) / MillimetresPerInch;
    return from == SizeUnit::Pixels ? side / perMillimetre : side * perMillimetre;
}

PictureOrder orderOf(const ExportSettings& settings) {
    PictureOrder order{.format = settings.format,
                       .width = layoutSide(settings, settings.width),
                       .height = layoutSide(settings, settings.height),
                       .scale = scaleOf(settings)};
    order.fileWidth = pixelsOf(settings, settings.width);
    order.fileHeight = pixelsOf(settings, settings.height);
    return order;
}

QString faultOf(const ExportSettings& settings) {
    const auto sides = {settings.width, settings.height};
    for (const double side : sides) {
        if (pixelsOf(settings, side) > LargestSide)
            return QStringLiteral("The picture would be larger than %1 pixels.").arg(LargestSide);
    }
    for (const double side : sides) {
        if (layoutSide(settings, side) < LeastLayoutSide)
            return QStringLiteral(
                       "The picture would be smaller than %1 mm: nothing on it could be "
                       "read.")
                .arg(std::ceil(LeastLayoutSide / LayoutDotsPerInch * MillimetresPerInch));
    }
    return {};
}

QString endingOf(PictureFormat format) {
    switch (format) {
        case PictureFormat::Svg:
            return QStringLiteral("svg");
        case PictureFormat::Pdf:
            return QStringLiteral("pdf");
        case PictureFormat::Png:
            break;
    }
    return QStringLiteral("png");
}

void store(const ExportSettings& settings, QSettings& place) {
    place.setValue("format", endingOf(settings.format));
    place.setValue("millimetres", settings.unit == SizeUnit::Millimetres);
    place.setValue("width", settings.width);
    place.setValue("height", settings.height);
    place.setValue("dotsPerInch", settings.dotsPerInch);
    place.setValue("header", settings.header);
    place.setValue("sameScale", settings.sameScale);
}

ExportSettings stored(QSettings& place, const ExportSettings& usual) {
    ExportSettings settings = usual;
    const QString ending = place.value("format", endingOf(usual.format)).toString();
    for (const PictureFormat format : Formats)
        if (endingOf(format) == ending) settings.format = format;
    const bool millimetres = usual.unit == SizeUnit::Millimetres;
    settings.unit =
        place.value("millimetres", millimetres).toBool() ? SizeUnit::Millimetres : SizeUnit::Pixels;
    settings.width = place.value("width", usual.width).toDouble();
    settings.height = place.value("height", usual.height).toDouble();
    settings.dotsPerInch = std::clamp(place.value("dotsPerInch", usual.dotsPerInch).toInt(),
                                      LeastDotsPerInch, MostDotsPerInch);
    settings.header = place.value("header", usual.header).toBool();
    settings.sameScale = place.value("sameScale", usual.sameScale).toBool();
    const bool sound = std::isfinite(settings.width) && std::isfinite(settings.height) &&
                       settings.width > 0.0 && settings.height > 0.0 && settings.width < 1e5 &&
                       settings.height < 1e5 && faultOf(settings).isEmpty();
    return sound ? settings : usual;
}

}  // namespace Rotavue::Workbench
