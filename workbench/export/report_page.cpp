#include "workbench/export/report_page.h"

#include "workbench/export/report_layout.h"
#include "workbench/paint/header_strip.h"
#include "workbench/paint/host_color.h"
#include "workbench/paint/offscreen_gui.h"
#include "workbench/paint/painter_canvas.h"
#include "workbench/paint/painting_studio.h"
#include "workbench/paint/picture_file.h"

#include <QPainter>

#include <algorithm>
#include <utility>

namespace Rotavue::Workbench {

namespace {

constexpr int LeastOrbitSide = 160;
constexpr std::size_t MostNoteLines = 10;
constexpr int MostLines = 3;  // of a fact or a note

/// Sizes that follow the page: those of A4 upright at 96 pixels an inch are the measure.
struct Measures {
    explicit Measures(const PictureOrder& order)
        : unit(std::clamp(std::min(order.width, order.height) / 794.0, 0.6, 2.0)),
          margin(scaled(48)),
          textHeight(scaled(12)),
          title(scaled(22)),
          text(textHeight) {}

    int scaled(int pixels) const { return static_cast<int>(pixels * unit + 0.5); }

    double unit;
    int margin;
    int textHeight;
    TextFace title;
    TextFace text;
};

/// Paints a page from both ends toward the middle, where the orbits get what is left.
class Page {
public:
    Page(const ReportContent& content, const PictureOrder& order)
        : content_(content),
          order_(order),
          measures_(order),
          file_(PictureFile::begin(order.format, {.width = order.width,
                                                  .height = order.height,
                                                  .scale = order.scale,
                                                  .fileWidth = order.fileWidth,
                                                  .fileHeight = order.fileHeight,
                                                  .title = QString::fromStdString(content.title)})),
          free_(QRect(0, 0, order.width, order.height)
                    .adjusted(measures_.margin, measures_.margin, -measures_.margin,
                              -measures_.margin)) {}

    std::vector<DrawnOrbit> draw(const std::vector<ReportOrbit>& orbits) {
        paintAround();
        std::vector<DrawnOrbit> drawn;
        for (const QRect& place : roomFor(orbits.size()))
            drawn.push_back(drawnIn(orderOf(place), orbits[drawn.size()]));
        return drawn;
    }

    std::string paint(const std::vector<DrawnOrbit>& orbits, const ReadingProgress& progress) {
        constexpr double PartOfPainting = 0.4;
        paintAround();
        const std::vector<QRect> places = roomFor(orbits.size());
        const auto count = static_cast<double>(orbits.size());
        const ReadingProgress painting = progress.between(0.0, PartOfPainting);
        for (std::size_t i = 0; i < places.size(); ++i) {
            const auto before = static_cast<double>(i);
            paintOrbit(orbits[i], places[i],
                       painting.between(before / count, (before + 1.0) / count));
        }
        return file_->finish(progress.between(PartOfPainting, 1.0)).toStdString();
    }

private:
    int lineHeight() const { return measures_.text.lineHeight() * 5 / 4; }

    void write(const TextFace& face, const QString& text, QPointF corner, std::uint32_t color) {
        drawTextLine(file_->painter(), face,
                     {.text = text,
                      .corner = corner,
                      .color = fromHostColor(color),
                      .form = textFormOf(order_.format)});
    }

    void rule(int y) {
        file_->painter().fillRect(free_.x(), y, free_.width(), 1, fromHostColor(colors_.line));
    }

    void paintAround() {
        file_->painter().fillRect(0, 0, order_.width + 1, order_.height + 1, Qt::white);
        paintHead();
        paintNotes();
        paintNumbers();
    }

    void paintHead() {
        const QString title = QString::fromStdString(content_.title);
        write(measures_.title, measures_.title.shortened(title, free_.width()), free_.topLeft(),
              colors_.text);
        free_.setTop(free_.top() + measures_.title.lineHeight() * 5 / 4);
        for (const std::string& fact : content_.facts) {
            for (const QString& line : linesOf(fact)) {
                write(measures_.text, line, free_.topLeft(), colors_.quiet);
                free_.setTop(free_.top() + lineHeight());
            }
        }
        rule(free_.top() + lineHeight() / 4);
        free_.setTop(free_.top() + lineHeight());
    }

    std::vector<QString> linesOf(const std::string& text) const {
        return Workbench::linesOf(QString::fromStdString(text), measures_.textHeight, free_.width(),
                                  MostLines);
    }

    std::vector<QString> noteLines() const {
        std::vector<QString> lines;
        for (std::size_t i = 0; i < content_.notes.size(); ++i) {
            const std::vector<QString> note = linesOf(content_.notes[i]);
            if (lines.size() + note.size() >= MostNoteLines) {
                lines.push_back(
                    QStringLiteral("... and %1 more notes").arg(content_.notes.size() - i));
                break;
            }
            lines.insert(lines.end(), note.begin(), note.end());
        }
        return lines;
    }

    void paintNotes() {
        const std::vector<QString> lines = noteLines();
        if (lines.empty()) return;
        int y = free_.bottom() - static_cast<int>(lines.size()) * lineHeight();
        free_.setBottom(y - lineHeight() / 2);
        for (const QString& line : lines) {
            write(measures_.text, measures_.text.shortened(line, free_.width()),
                  QPointF(free_.x(), y), colors_.quiet);
            y += lineHeight();
        }
    }

    // On A4 a text is 9 points high, and never less than 7.5.
    void paintNumbers() {
        const TablePlaces table =
            placesOf(content_.numbers, free_.width(), {measures_.textHeight, measures_.scaled(10)});
        if (table.texts.empty()) return;
        const QPoint corner(free_.x(), free_.bottom() - table.height);
        free_.setBottom(corner.y() - lineHeight());
        const TextFace face(table.textHeight);
        for (const TableText& text : table.texts)
            write(face, text.text, corner + text.corner,
                  text.isHead ? colors_.quiet : colors_.text);
        for (const int y : table.rules)
            rule(corner.y() + y);
    }

    std::vector<QRect> roomFor(std::size_t orbits) {
        if (orbits == 0) return {};
        auto places = orbitPlaces(free_, static_cast<int>(orbits), measures_.scaled(16));
        const QSize cell = places.front().size();
        if (std::min(cell.width(), cell.height()) < LeastOrbitSide)
            throw PaintError("the page has no room for so many orbits");
        return places;
    }

    PictureOrder orderOf(const QRect& place) const {
        return {.format = order_.format,
                .width = place.width(),
                .height = place.height(),
                .colors = colors_};
    }

    DrawnOrbit drawnIn(const PictureOrder& order, const ReportOrbit& orbit) {
        DrawnOrbit drawn{orbit.header(studio_.areaOf(order, {})), {}};
        const PictureArea area = studio_.areaOf(order, drawn.header);
        CanvasRecorder canvas(area.textHeight);
        orbit.draw(Host::Ref<Host::IHostCanvas>::share(&canvas), area);
        drawn.drawing = canvas.drawing();
        return drawn;
    }

    void paintOrbit(const DrawnOrbit& orbit, const QRect& place, const ReadingProgress& progress) {
        const PictureOrder order = orderOf(place);
        const PictureArea area = studio_.areaOf(order, orbit.header);
        QPainter& painter = file_->painter();
        painter.save();
        painter.translate(place.topLeft());
        HeaderStrip(orbit.header, order, area.textHeight)
            .drawOn(painter, colors_, textFormOf(order_.format));
        painter.translate(0, place.height() - area.height);
        {
            PainterCanvas canvas(
                painter, QSize(area.width, area.height),
                {.fontHeight = area.textHeight, .text = textFormOf(order_.format)});
            orbit.drawing.drawOn(canvas, progress);
        }
        painter.restore();
    }

    const ReportContent& content_;
    const PictureOrder& order_;
    Measures measures_;
    PictureColors colors_;
    PaintingStudio studio_;
    std::unique_ptr<PictureFile> file_;
    QRect free_;  ///< what is not painted yet
};

}  // namespace

// Where the orbits go follows from what else is on the page. That is put on a page of one pixel:
// its layout is the same, and it costs next to nothing.
DrawnReport drawReport(ReportContent content, const PictureOrder& order) {
    PictureOrder pixel = order;
    pixel.format = PictureFormat::Png;
    pixel.fileWidth = pixel.fileHeight = 1;
    const std::vector<ReportOrbit> orbits = std::exchange(content.orbits, {});
    std::vector<DrawnOrbit> drawn = Page(content, pixel).draw(orbits);
    return {std::move(content), order, std::move(drawn)};
}

std::string paintReport(const DrawnReport& report, const ReadingProgress& progress) {
    return Page(report.content, report.order).paint(report.orbits, progress);
}

}  // namespace Rotavue::Workbench
