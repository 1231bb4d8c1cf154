#pragma once

#include "plugin/orbit_graph/clipped_canvas.h"
#include "plugin/orbit_graph/geometry.h"
#include "plugin/orbit_graph/orbit_curve.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Meridax::VisualControls::Rotavue {

// What all painting of the graph stands on. Every text goes to the canvas from here: memory that is
// short on its way raises `HostError` 0x8007000E. A change to pen, brush or font stays on the
// canvas until somebody changes it again; nothing here saves or restores.

namespace PenStyle {
inline constexpr std::int32_t Solid = 0;
}

namespace BrushStyle {
inline constexpr std::int32_t Solid = 0;
inline constexpr std::int32_t None = 1;  ///< also makes the ground of texts transparent
}  // namespace BrushStyle

namespace TextFormat {
inline constexpr std::uint32_t Left = 0x100;
inline constexpr std::uint32_t CentredAcross = 0x4;
inline constexpr std::uint32_t CentredBothWays = 0x14004;  ///< and on one line
}  // namespace TextFormat

/// Pen style solid and its colour.
void setSolidPen(const CanvasRef& canvas, Color color);

/// Brush style solid and its colour.
void setSolidBrush(const CanvasRef& canvas, Color color);

/// Each segment's two ends are tested by themselves. Touches no pen.
void drawSegments(const CanvasRef& canvas, const std::vector<Segment>& segments);

void fillRectangle(const CanvasRef& canvas, const Rectangle& box, Color brush, Color pen);
void fillEllipse(const CanvasRef& canvas, const Rectangle& box, Color brush, Color pen);
void strokeEllipses(const CanvasRef& canvas, const std::vector<Rectangle>& boxes, Color pen);

/// A text's extent in the current font.
struct TextSize {
    double width = 0;
    double height = 0;
};

double textWidth(const CanvasRef& canvas, const std::wstring& text);
double textHeight(const CanvasRef& canvas, const std::wstring& text);
TextSize measure(const CanvasRef& canvas, const std::wstring& text);

/// The height of a line of text, whatever stands in it.
double lineHeight(const CanvasRef& canvas);

/// The font's height as a length; a font tells it with either sign.
double fontLength(const CanvasRef& canvas);

void drawTextBox(const CanvasRef& canvas, const Rectangle& box, const std::wstring& text,
                 std::uint32_t format);

/// In a box of the text's own size, left aligned.
void drawTextAt(const CanvasRef& canvas, const Point& point, const std::wstring& text);

/// Turned a quarter, from bottom to top. The guard does not see it.
void drawTextUp(const CanvasRef& canvas, const Point& point, const std::wstring& text);

/// In the upper left corner of the canvas, half a font height from its edges.
void drawCornerText(const CanvasRef& canvas, const std::wstring& text);

}  // namespace Meridax::VisualControls::Rotavue
