#pragma once

#include "workbench/paint/picture_studio.h"
#include "workbench/paint/text_line.h"

#include <QString>

#include <vector>

class QPainter;

namespace Rotavue::Workbench {

/// The strip above the plug-in's area: what the plug-in leaves to the host to tell. The title has a
/// line of its own where the picture is high enough, the facts flow over as many lines as they
/// need.
class HeaderStrip {
public:
    HeaderStrip(const PictureHeader& header, const PictureOrder& order, int textHeight);

    /// Pixels; 0 without a header.
    int height() const;

    /// Draws it into the upper edge of the picture.
    void drawOn(QPainter& painter, const PictureColors& colors, TextForm form) const;

private:
    struct Line {
        QString text;
        bool quiet;
    };

    void addLine(const QString& text, bool quiet);
    void addFacts(const std::vector<QString>& facts);
    int lineWidth() const;

    int width_;
    TextFace face_;
    std::vector<Line> lines_;
};

}  // namespace Rotavue::Workbench
