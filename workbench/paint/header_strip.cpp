#include "workbench/paint/header_strip.h"

#include "workbench/paint/host_color.h"

#include <QPainter>

#include <algorithm>

namespace Rotavue::Workbench {

namespace {

/// Below this height a title shares its line with the facts.
constexpr int LeastHeightForTitle = 400;

std::vector<QString> factsOf(const PictureHeader& header) {
    std::vector<QString> facts;
    for (const std::string& fact : header.facts)
        facts.push_back(QString::fromStdString(fact));
    return facts;
}

}  // namespace

HeaderStrip::HeaderStrip(const PictureHeader& header, const PictureOrder& order, int textHeight)
    : width_(order.width), face_(textHeight) {
    std::vector<QString> facts = factsOf(header);
    const QString title = QString::fromStdString(header.title);
    if (order.height >= LeastHeightForTitle) {
        addLine(title, false);
    } else if (!title.isEmpty()) {
        facts.insert(facts.begin(), title);
    }
    addFacts(facts);
}

int HeaderStrip::lineWidth() const {
    return std::max(1, width_ - face_.lineHeight());
}

void HeaderStrip::addLine(const QString& text, bool quiet) {
    if (!text.isEmpty()) lines_.push_back({face_.shortened(text, lineWidth()), quiet});
}

void HeaderStrip::addFacts(const std::vector<QString>& facts) {
    const QString separator = QStringLiteral("  \u00b7  ");
    QString line;
    for (const QString& fact : facts) {
        const QString longer = line.isEmpty() ? fact : line + separator + fact;
        if (!line.isEmpty() && face_.width(longer) > lineWidth()) {
            addLine(line, true);
            line = fact;
        } else {
            line = longer;
        }
    }
    addLine(line, true);
}

int HeaderStrip::height() const {
    if (lines_.empty()) return 0;
    const int count = static_cast<int>(lines_.size());
    return (count + 1) * face_.lineHeight() - face_.lineHeight() / 4;
}

void HeaderStrip::drawOn(QPainter& painter, const PictureColors& colors, TextForm form) const {
    if (lines_.empty()) return;
    const int margin = face_.lineHeight() / 2;
    int top = margin / 2 + margin / 4;
    for (const Line& line : lines_) {
        drawTextLine(painter, face_,
                     {.text = line.text,
                      .corner = QPointF(margin, top),
                      .color = fromHostColor(line.quiet ? colors.quiet : colors.text),
                      .form = form});
        top += face_.lineHeight();
    }
    painter.fillRect(0, height() - 1, width_, 1, fromHostColor(colors.line));
}

}  // namespace Rotavue::Workbench
