#include "workbench/paint/painting_studio.h"

#include "workbench/paint/header_strip.h"
#include "workbench/paint/host_color.h"
#include "workbench/paint/offscreen_gui.h"
#include "workbench/paint/painter_canvas.h"
#include "workbench/paint/picture_file.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace Rotavue::Workbench {

namespace {

constexpr int LeastTextHeight = 12;
constexpr int LargestTextHeight = 24;

/// The plug-in keeps 60 pixels free on each side of its plot, and more beside it where the area is
/// wider than high. Three lines of text stand to the left of the plot, two below it.
constexpr int PlotMargin = 60;

constexpr int LinesBeside = 3;

int textHeightOf(const PictureOrder& order) {
    return order.textHeight > 0 ? order.textHeight : suitableTextHeight(order.width, order.height);
}

/// The sensor badges reach beyond the plot by this part of the text height.
constexpr double BadgeReach = 0.7;

/// The pixels that a strip takes from the plug-in's area. Most of it lies over the margin above the
/// plot, where the plug-in paints nothing but the badges, its messages, which a picture of a sound
/// assignment does not have, and the readout, which must stay clear.
int takenBy(const HeaderStrip& strip, int textHeight, bool readout) {
    constexpr int Clear = 2;
    if (readout) return strip.height();
    const int badges = static_cast<int>(std::ceil(BadgeReach * textHeight));
    return std::max(0, strip.height() - (PlotMargin - badges - Clear));
}

HeaderStrip stripOf(const PictureOrder& order, const PictureHeader& header) {
    return HeaderStrip(header, order, textHeightOf(order));
}

class PaintedPicture final : public OpenPicture {
public:
    PaintedPicture(const PictureOrder& order, const PictureHeader& header, const PictureArea& area)
        : file_(PictureFile::begin(order.format, shapeOf(order, header))) {
        const TextForm form = textFormOf(order.format);
        const HeaderStrip strip = stripOf(order, header);
        QPainter& painter = file_->painter();
        // A part of a pixel may lie beyond the last whole one.
        painter.fillRect(0, 0, order.width + 1, order.height + 1,
                         fromHostColor(order.colors.background));
        strip.drawOn(painter, order.colors, form);
        painter.translate(0, order.height - area.height);
        canvas_.emplace(painter, QSize(area.width, area.height),
                        CanvasOptions{.fontHeight = area.textHeight, .text = form});
    }

    Host::Ref<Host::IHostCanvas> canvas() override {
        return Host::Ref<Host::IHostCanvas>::share(&*canvas_);
    }

    std::string finish(const ReadingProgress& progress) override {
        canvas_.reset();
        return file_->finish(progress).toStdString();
    }

private:
    static PictureShape shapeOf(const PictureOrder& order, const PictureHeader& header) {
        return {.width = order.width,
                .height = order.height,
                .scale = order.scale,
                .fileWidth = order.fileWidth,
                .fileHeight = order.fileHeight,
                .title = QString::fromStdString(header.title)};
    }

    std::unique_ptr<PictureFile> file_;
    std::optional<PainterCanvas> canvas_;
};

}  // namespace

int suitableTextHeight(int width, int height) {
    const int side = std::min(width, height);
    const int beside = (width - side) / 2 + PlotMargin;
    int text = std::clamp(side / 45, LeastTextHeight, LargestTextHeight);
    while (text > LeastTextHeight && LinesBeside * TextFace(text).lineHeight() > beside)
        --text;
    return text;
}

PictureArea PaintingStudio::areaOf(const PictureOrder& order, const PictureHeader& header) {
    const int textHeight = textHeightOf(order);
    return {.width = order.width,
            .height = order.height - takenBy(stripOf(order, header), textHeight, order.readout),
            .textHeight = textHeight};
}

std::unique_ptr<OpenPicture> PaintingStudio::open(const PictureOrder& order,
                                                  const PictureHeader& header) {
    const PictureArea area = areaOf(order, header);
    if (order.height >= 1 && stripOf(order, header).height() >= order.height) {
        throw PaintError("the picture has no room below its header");
    }
    return std::make_unique<PaintedPicture>(order, header, area);
}

}  // namespace Rotavue::Workbench
