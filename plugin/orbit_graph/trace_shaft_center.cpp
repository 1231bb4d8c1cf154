#include "plugin/framework/host/drawing/host_brush.h"
#include "plugin/framework/host/drawing/host_font.h"
#include "plugin/framework/host/drawing/host_pen.h"
#include "plugin/orbit_graph/number_format.h"
#include "plugin/orbit_graph/traces.h"

#include <cmath>

namespace Meridax::VisualControls::Rotavue {
namespace {

/// Distance of a label from the right edge of its dot.
constexpr double LabelGap = 5.0;

Point valueOf(const CurveSample& sample) {
    return {sample.x, sample.y};
}

void setInk(const CanvasRef& canvas, Color color) {
    canvas->GetFont()->SetColor(color);
    canvas->GetBrush()->SetColor(color);
    canvas->GetPen()->SetColor(color);
}

void drawDot(const CanvasRef& canvas, const Rectangle& box) {
    canvas->GetBrush()->SetStyle(BrushStyle::Solid);
    canvas->Ellipse(canvasInteger(box.left), canvasInteger(box.top), canvasInteger(box.right),
                    canvasInteger(box.bottom));
}

/// The line to a sample inside needs no guard.
void drawLineTo(const CanvasRef& canvas, const Point& position, bool isFirst) {
    const std::int32_t x = canvasInteger(position.x);
    const std::int32_t y = canvasInteger(position.y);
    if (isFirst) {
        canvas->MoveTo(x, y);
    } else {
        canvas->LineTo(x, y);
    }
}

void drawDots(TraceFrame& frame, const std::vector<CurveSample>& samples) {
    for (std::size_t i = samples.size(); i-- > 0;) {
        const MappedSample sample = frame.mapping.map(valueOf(samples[i]));
        if (!sample.inside) {
            frame.clipped.moveTo(sample.position);
            continue;
        }
        if (frame.search.offer(sample.value, sample.position))
            frame.state.nearest.extra = samples[i].z;
        drawLineTo(frame.canvas, sample.position, i + 1 == samples.size());
        if (i == 0 && samples.size() > 1) setInk(frame.canvas, White);
        drawDot(frame.canvas, sample.box);
    }
}

/// The extent of a digit and of a line of text, in the font of the labels.
struct LabelMetrics {
    double digitWidth;
    double lineHeight;
};

/// Wide enough for the digits in front of the point, but for a power of ten, which has one more.
double labelWidth(const LabelMetrics& metrics, double value) {
    if (!(value > 1.0)) return metrics.digitWidth;
    return metrics.digitWidth * canvasInteger(std::ceil(std::log10(value)));
}

Rectangle labelBox(const LabelMetrics& metrics, const Rectangle& dot, double value) {
    const double left = dot.right + LabelGap;
    const double top = dot.bottom - metrics.lineHeight * 0.5;
    return {left, top, left + labelWidth(metrics, value), top + metrics.lineHeight};
}

void drawValues(TraceFrame& frame, const std::vector<CurveSample>& samples,
                const LabelMetrics& metrics) {
    for (std::size_t i = samples.size(); i-- > 0;) {
        const MappedSample sample = frame.mapping.map(valueOf(samples[i]));
        if (!sample.inside) continue;
        const Rectangle box = labelBox(metrics, sample.box, samples[i].z);
        if (!frame.labels.hasRoom(box)) continue;
        const std::wstring text = formatValue(L"%.0f", samples[i].z);
        drawTextBox(frame.canvas, box, text, TextFormat::CentredAcross);
        frame.labels.place(box);
    }
}

}  // namespace

void drawShaftCenter(TraceFrame& frame, const OrbitCurve& curve) {
    const CanvasRef& canvas = frame.canvas;
    canvas->GetPen()->SetColor(curve.info.color);
    canvas->GetBrush()->SetColor(curve.info.color);
    canvas->GetFont()->SetColor(curve.info.color);
    const double digitWidth = textWidth(canvas, L"0");
    const LabelMetrics metrics{digitWidth, lineHeight(canvas)};
    if (curve.samples.empty()) return;
    drawDots(frame, curve.samples);
    canvas->GetFont()->SetColor(frame.state.darkBackground ? White : Black);
    canvas->GetBrush()->SetStyle(BrushStyle::None);
    drawValues(frame, curve.samples, metrics);
    canvas->GetFont()->SetColor(frame.state.textColor);
}

}  // namespace Meridax::VisualControls::Rotavue
