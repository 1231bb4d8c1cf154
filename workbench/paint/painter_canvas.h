#pragma once

#include "plugin/framework/host/drawing/host_canvas.h"
#include "workbench/paint/canvas_bounds.h"
#include "workbench/paint/canvas_tools.h"
#include "workbench/paint/line_run.h"
#include "workbench/paint/text_line.h"

#include <QPointF>
#include <QRectF>
#include <QSize>
#include <QString>

#include <cstdint>
#include <functional>

class QPainter;

namespace Rotavue::Workbench {

/// A text that was painted, and where.
struct PaintedText {
    QString text;
    QPointF middle;  ///< in the painter's coordinates
    bool onGround;   ///< on a filled ground
};

struct CanvasOptions {
    std::int32_t fontHeight = 14;  ///< what the font's height is at first, in pixels
    LineQuality lines = LineQuality::Smooth;
    TextForm text = TextForm::Letters;
    std::function<void(const PaintedText&)> painted = {};  ///< told of each text
};

/// The host's canvas on a Qt painter: an area of `size` pixels with its own (0, 0), which is where
/// the painter's origin was when the canvas was made. Nothing is painted outside the area.
///
/// A whole number is the middle of a pixel for lines and shapes, and the edge of one for texts; a
/// box includes the pixels of all its four edges. A box may be turned over. Every 32-bit number is
/// taken: canvas_bounds.h tells what becomes of those that are far off.
///
/// Lines are gathered and stroked when the pen changes, when anything else is drawn and when the
/// canvas is destroyed. The painter must live until then, and must not be used beside it.
class PainterCanvas final : public OwnedObject<Host::IHostCanvas> {
public:
    PainterCanvas(QPainter& painter, QSize size, const CanvasOptions& options = {});
    ~PainterCanvas();

    void LineTo(std::int32_t x, std::int32_t y) override;
    void MoveTo(std::int32_t x, std::int32_t y) override;
    void Ellipse(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2) override;
    void Rectangle(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2) override;
    void TextOut(std::int32_t x, std::int32_t y, const std::wstring& text) override;
    Host::Ref<Host::IHostBrush> GetBrush() override;
    Host::Ref<Host::IHostPen> GetPen() override;
    Host::Ref<Host::IHostFont> GetFont() override;
    void Arc(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2, std::int32_t x3,
             std::int32_t y3, std::int32_t x4, std::int32_t y4) override;
    std::int32_t TextWidth(const std::wstring& text) override;
    std::int32_t TextHeight(const std::wstring& text) override;
    void TextRect(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2,
                  const std::wstring& text, std::uint32_t format) override;
    void Polygon(const std::vector<std::int32_t>& coordinates, std::int32_t count) override;

private:
    class Shape;

    void strokeLines();
    void drawText(const QString& text, QPointF corner);
    QPointF middleOfText(const QString& text, QPointF corner);
    QPointF middleOf(std::int32_t x, std::int32_t y) const;
    QRectF boxOf(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2) const;

    QPainter& painter_;
    CanvasOptions options_;
    Reach reach_;
    QPointF middle_;  ///< from a pixel's number to its middle in the painter's coordinates
    LineRun run_;
    CanvasPen pen_;
    CanvasBrush brush_;
    CanvasFont font_;
};

}  // namespace Rotavue::Workbench
