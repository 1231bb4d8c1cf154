#pragma once

#include <QFont>
#include <QFontMetrics>
#include <QString>

#include <cstdint>
#include <string>

namespace Rotavue::Workbench {

/// The one family of all pictures, so that a picture looks the same wherever it is painted.
inline constexpr const char* FontFamily = "DejaVu Sans";

/// Longest text that is measured or drawn, in characters; the rest is cut off.
inline constexpr std::size_t LongestText = 4096;

/// The font at one height, with its measures. The height is a length in pixels whatever its sign,
/// that of the letters without the space between lines; 0 counts as 1.
class TextFace {
public:
    explicit TextFace(std::int32_t height);

    const QFont& font() const { return font_; }

    /// The box of a text: its advance, and the height of a line.
    int width(const QString& text) const { return metrics_.horizontalAdvance(text); }
    int lineHeight() const { return metrics_.height(); }

    /// The text, or as much of it as fits into the width with an ellipsis behind it.
    QString shortened(const QString& text, int width) const {
        return metrics_.elidedText(text, Qt::ElideRight, width);
    }

    /// From the top of the box to the line that the letters stand on.
    int ascent() const { return metrics_.ascent(); }

private:
    QFont font_;
    QFontMetrics metrics_;
};

/// Whether the family above is there at all. A GUI application must be.
bool hasFont();

/// A host's text for Qt: one line, at most `LongestText` characters; control characters become
/// blanks and what is no character becomes U+FFFD.
QString toQString(const std::wstring& text);

}  // namespace Rotavue::Workbench
