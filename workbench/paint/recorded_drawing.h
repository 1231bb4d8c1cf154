#pragma once

#include "plugin/framework/host/drawing/host_canvas.h"
#include "workbench/paint/canvas_tools.h"
#include "workbench/recording/reading_watch.h"

#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

namespace Rotavue::Workbench {

/// What can be drawn on a canvas.
enum class DrawingStep : std::int32_t;

/// What was drawn on a canvas, step by step: a value that any thread can draw again. A control is
/// bound to its thread, and what takes long of a large picture is the painting, not the drawing.
class RecordedDrawing {
public:
    void keep(DrawingStep step, std::initializer_list<std::int32_t> arguments);

    /// The number of the text, for the arguments of the step that draws it.
    std::int32_t keepText(const std::wstring& text);

    /// A polygon is drawn from its coordinates and its count.
    void keepPolygon(const std::vector<std::int32_t>& coordinates, std::int32_t count);

    /// Draws it on a canvas as new as the recorded one was. Throws ReadingCancelled.
    void drawOn(Host::IHostCanvas& canvas,
                const ReadingProgress& progress = ReadingProgress()) const;

private:
    std::vector<std::int32_t> numbers_;  ///< of each step: what is done, and its arguments
    std::vector<std::wstring> texts_;
};

/// A canvas that keeps what is drawn on it, and measures texts as `PainterCanvas` does.
class CanvasRecorder final : public OwnedObject<Host::IHostCanvas> {
public:
    /// The height of its font, as `CanvasOptions::fontHeight`.
    explicit CanvasRecorder(std::int32_t fontHeight)
        : pen_(drawing_), brush_(drawing_), font_(drawing_, fontHeight) {}

    const RecordedDrawing& drawing() const { return drawing_; }

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
    class Pen final : public OwnedObject<Host::IHostPen> {
    public:
        explicit Pen(RecordedDrawing& drawing) : drawing_(drawing) {}
        void SetColor(std::uint32_t color) override;
        void SetWidth(std::int32_t width) override;
        void SetStyle(std::int32_t style) override;

    private:
        RecordedDrawing& drawing_;
    };

    class Brush final : public OwnedObject<Host::IHostBrush> {
    public:
        explicit Brush(RecordedDrawing& drawing) : drawing_(drawing) {}
        void SetColor(std::uint32_t color) override;
        void SetStyle(std::int32_t style) override;

    private:
        RecordedDrawing& drawing_;
    };

    class Font final : public OwnedObject<Host::IHostFont> {
    public:
        Font(RecordedDrawing& drawing, std::int32_t height)
            : drawing_(drawing), measured_(height) {}
        void SetColor(std::uint32_t color) override;
        std::int32_t GetHeight() override { return measured_.GetHeight(); }
        void SetHeight(std::int32_t height) override;
        void SetStyle(std::int32_t style) override;
        void SetOrientation(std::int32_t tenths) override;

        const TextFace& face() { return measured_.face(); }

    private:
        RecordedDrawing& drawing_;
        CanvasFont measured_;
    };

    RecordedDrawing drawing_;
    Pen pen_;
    Brush brush_;
    Font font_;
};

}  // namespace Rotavue::Workbench
