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

namespace Rotavue::Workbench {

namespace {

constexpr int LeastOrbitSide = 160;
constexpr int MostNotes = 8;

/// Sizes that follow the page: those of A4 upright at 96 pixels an inch are the measure.
struct Measures {
    explicit Measures(const PictureOrder& order)
        : unit(std::clamp(std::min(order.width, order.height) / 794.0, 0.6, 2.0)),
          margin(scaled(48)),
          title(scaled(22)),
          text(scaled(12)) {}

    int scaled(int pixels) const { return static_cast<int>(pixels * unit + 0.5); }

    double unit;
    int margin;
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

    std::string paint() {
        file_->painter().fillRect(0, 0, order_.width + 1, order_.height + 1, Qt::white);
        paintHead();
        paintNotes();
        paintNumbers();
        paintOrbits();
        return file_->finish().toStdString();
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

    void paintHead() {
        const QString title = QString::fromStdString(content_.title);
        write(measures_.title, measures_.title.shortened(title, free_.width()), free_.topLeft(),
              colors_.text);
        free_.setTop(free_.top() + measures_.title.lineHeight() * 5 / 4);
        for (const std::string& fact : content_.facts) {
            const QString text = QString::fromStdString(fact);
            write(measures_.text, measures_.text.shortened(text, free_.width()), free_.topLeft(),
                  colors_.quiet);
            free_.setTop(free_.top() + lineHeight());
        }
        rule(free_.top() + lineHeight() / 4);
        free_.setTop(free_.top() + lineHeight());
    }

    std::vector<QString> noteLines() const {
        std::vector<QString> lines;
        for (const std::string& note : content_.notes)
            lines.push_back(QString::fromStdString(note));
        if (lines.size() <= MostNotes) return lines;
        const auto more = static_cast<int>(lines.size()) - MostNotes + 1;
        lines.resize(MostNotes - 1);
        lines.push_back(QStringLiteral("... and %1 more notes").arg(more));
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

    void paintNumbers() {
        const ReportTable& table = content_.numbers;
        if (table.rows.empty()) return;
        const int height = (static_cast<int>(table.rows.size()) + 1) * lineHeight();
        int y = free_.bottom() - height;
        free_.setBottom(y - lineHeight());
        paintRow(table.head, y, colors_.quiet);
        rule(y + lineHeight() - lineHeight() / 8);
        for (const auto& row : table.rows) {
            y += lineHeight();
            paintRow(row, y, colors_.text);
        }
    }

    /// The first column has twice the width of each other one.
    void paintRow(const std::vector<std::string>& cells, int y, std::uint32_t color) {
        const int width = free_.width() / (static_cast<int>(cells.size()) + 1);
        int right = free_.x();
        for (std::size_t i = 0; i < cells.size(); ++i) {
            const int room = i == 0 ? 2 * width : width;
            right += room;
            const QString text = measures_.text.shortened(QString::fromStdString(cells[i]),
                                                          room - measures_.scaled(6));
            const int x = i == 0 ? free_.x() : right - measures_.text.width(text);
            write(measures_.text, text, QPointF(x, y), color);
        }
    }

    void paintOrbits() {
        if (content_.orbits.empty()) return;
        const auto places =
            orbitPlaces(free_, static_cast<int>(content_.orbits.size()), measures_.scaled(16));
        const QSize cell = places.front().size();
        if (std::min(cell.width(), cell.height()) < LeastOrbitSide)
            throw PaintError("the page has no room for so many orbits");
        for (std::size_t i = 0; i < places.size(); ++i)
            paintOrbit(content_.orbits[i], places[i]);
    }

    void paintOrbit(const ReportOrbit& orbit, const QRect& place) {
        const PictureOrder order{.format = order_.format,
                                 .width = place.width(),
                                 .height = place.height(),
                                 .colors = colors_};
        const PictureHeader header = orbit.header(studio_.areaOf(order, {}));
        const PictureArea area = studio_.areaOf(order, header);
        QPainter& painter = file_->painter();
        painter.save();
        painter.translate(place.topLeft());
        HeaderStrip(header, order, area.textHeight)
            .drawOn(painter, colors_, textFormOf(order_.format));
        painter.translate(0, place.height() - area.height);
        {
            PainterCanvas canvas(
                painter, QSize(area.width, area.height),
                {.fontHeight = area.textHeight, .text = textFormOf(order_.format)});
            orbit.draw(Host::Ref<Host::IHostCanvas>::share(&canvas), area);
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

std::string paintReport(const ReportContent& content, const PictureOrder& order) {
    return Page(content, order).paint();
}

}  // namespace Rotavue::Workbench
