#include "plugin/orbit_graph/primitives.h"

#include "plugin/framework/host/drawing/host_brush.h"
#include "plugin/framework/host/drawing/host_font.h"
#include "plugin/framework/host/drawing/host_pen.h"
#include "plugin/orbit_graph/text_call.h"

#include <cmath>

namespace Meridax::VisualControls::Rotavue {

void setSolidPen(const CanvasRef& canvas, Color color) {
    const auto pen = canvas->GetPen();
    pen->SetStyle(PenStyle::Solid);
    pen->SetColor(color);
}

void setSolidBrush(const CanvasRef& canvas, Color color) {
    const auto brush = canvas->GetBrush();
    brush->SetStyle(BrushStyle::Solid);
    brush->SetColor(color);
}

void drawSegments(const CanvasRef& canvas, const std::vector<Segment>& segments) {
    const ClippedCanvas clipped(canvas);
    for (const Segment& segment : segments) {
        clipped.moveTo(segment.start);
        clipped.lineTo(segment.end);
    }
}

void fillRectangle(const CanvasRef& canvas, const Rectangle& box, Color brush, Color pen) {
    setSolidPen(canvas, pen);
    setSolidBrush(canvas, brush);
    ClippedCanvas(canvas).rectangle(box);
}

void fillEllipse(const CanvasRef& canvas, const Rectangle& box, Color brush, Color pen) {
    setSolidPen(canvas, pen);
    setSolidBrush(canvas, brush);
    ClippedCanvas(canvas).ellipse(box);
}

void strokeEllipses(const CanvasRef& canvas, const std::vector<Rectangle>& boxes, Color pen) {
    setSolidPen(canvas, pen);
    canvas->GetBrush()->SetStyle(BrushStyle::None);
    const ClippedCanvas clipped(canvas);
    for (const Rectangle& box : boxes)
        clipped.ellipse(box);
}

double textWidth(const CanvasRef& canvas, const std::wstring& text) {
    return passingText([&] { return canvas->TextWidth(text); });
}

double textHeight(const CanvasRef& canvas, const std::wstring& text) {
    return passingText([&] { return canvas->TextHeight(text); });
}

TextSize measure(const CanvasRef& canvas, const std::wstring& text) {
    const double width = textWidth(canvas, text);
    return {width, textHeight(canvas, text)};
}

double lineHeight(const CanvasRef& canvas) {
    return textHeight(canvas, L"Aj");
}

double fontLength(const CanvasRef& canvas) {
    return std::fabs(static_cast<double>(canvas->GetFont()->GetHeight()));
}

void drawTextBox(const CanvasRef& canvas, const Rectangle& box, const std::wstring& text,
                 std::uint32_t format) {
    ClippedCanvas(canvas).textRect(box, text, format);
}

void drawTextAt(const CanvasRef& canvas, const Point& point, const std::wstring& text) {
    const TextSize size = measure(canvas, text);
    const Rectangle box{point.x, point.y, point.x + size.width, point.y + size.height};
    drawTextBox(canvas, box, text, TextFormat::Left);
}

void drawTextUp(const CanvasRef& canvas, const Point& point, const std::wstring& text) {
    constexpr std::int32_t QuarterTurn = 900;
    const auto font = canvas->GetFont();
    font->SetOrientation(QuarterTurn);
    passingText([&] { canvas->TextOut(canvasInteger(point.x), canvasInteger(point.y), text); });
    font->SetOrientation(0);
}

void drawCornerText(const CanvasRef& canvas, const std::wstring& text) {
    const TextSize size = measure(canvas, text);
    const double pad = std::round(fontLength(canvas) * 0.5);
    const Rectangle box{pad, pad, size.width + pad, size.height + pad};
    drawTextBox(canvas, box, text, TextFormat::Left);
}

}  // namespace Meridax::VisualControls::Rotavue
