#pragma once

#include "plugin/framework/host/drawing/host_brush.h"
#include "plugin/framework/host/drawing/host_font.h"
#include "plugin/framework/host/drawing/host_pen.h"
#include "workbench/paint/owned_object.h"
#include "workbench/paint/text_face.h"

#include <QColor>
#include <QPen>

#include <functional>
#include <optional>

namespace Rotavue::Workbench {

/// The canvas's pen: solid whatever its style, and 1 to 256 pixels wide.
class CanvasPen final : public OwnedObject<Host::IHostPen> {
public:
    /// `beforeChange` is called while the pen still is what the lines drawn so far were asked for.
    explicit CanvasPen(std::function<void()> beforeChange);

    void SetColor(std::uint32_t color) override;
    void SetWidth(std::int32_t width) override;
    void SetStyle(std::int32_t) override {}

    const QPen& pen() const { return pen_; }

private:
    std::function<void()> beforeChange_;
    QPen pen_;
};

/// The canvas's brush: style 0 fills, any other does not.
class CanvasBrush final : public OwnedObject<Host::IHostBrush> {
public:
    void SetColor(std::uint32_t color) override;
    void SetStyle(std::int32_t style) override { fills_ = style == 0; }

    /// The fill of shapes and the ground of texts; none where the brush does not fill.
    std::optional<QColor> fill() const { return fills_ ? std::optional(color_) : std::nullopt; }

private:
    QColor color_ = Qt::white;
    bool fills_ = true;
};

/// The canvas's font: one family, upright, at any height and angle.
class CanvasFont final : public OwnedObject<Host::IHostFont> {
public:
    explicit CanvasFont(std::int32_t height) : height_(height) {}

    void SetColor(std::uint32_t color) override;
    std::int32_t GetHeight() override { return height_; }
    void SetHeight(std::int32_t height) override;
    void SetStyle(std::int32_t) override {}
    void SetOrientation(std::int32_t tenths) override { tenths_ = tenths % 3600; }

    const TextFace& face();
    const QColor& color() const { return color_; }
    int tenths() const { return tenths_; }

private:
    QColor color_ = Qt::black;
    std::int32_t height_;
    int tenths_ = 0;
    std::optional<TextFace> face_;
};

}  // namespace Rotavue::Workbench
