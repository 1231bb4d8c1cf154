#include "workbench/paint/recorded_drawing.h"

#include <array>
#include <cstddef>

namespace Rotavue::Workbench {

enum class DrawingStep : std::int32_t {
    LineTo,
    MoveTo,
    Ellipse,
    Rectangle,
    TextOut,
    Arc,
    TextRect,
    Polygon,
    PenColor,
    PenWidth,
    PenStyle,
    BrushColor,
    BrushStyle,
    FontColor,
    FontHeight,
    FontStyle,
    FontOrientation
};

namespace {

using Step = DrawingStep;

/// How many numbers are drawn between two looks whether it shall go on.
constexpr std::size_t BetweenWords = 16'384;

std::int32_t signedOf(std::uint32_t number) {
    return static_cast<std::int32_t>(number);
}

std::uint32_t unsignedOf(std::int32_t number) {
    return static_cast<std::uint32_t>(number);
}

/// Draws steps one after the other.
class Replay {
public:
    Replay(const std::vector<std::int32_t>& numbers, const std::vector<std::wstring>& texts,
           Host::IHostCanvas& canvas)
        : numbers_(numbers),
          texts_(texts),
          canvas_(canvas),
          pen_(canvas.GetPen()),
          brush_(canvas.GetBrush()),
          font_(canvas.GetFont()) {}

    std::size_t place() const { return place_; }

    void drawNext() {
        const auto step = static_cast<Step>(take<1>()[0]);
        if (step >= Step::PenColor) return setTool(step, take<1>()[0]);
        if (step <= Step::MoveTo) return drawLine(step);
        drawShape(step);
    }

private:
    template <std::size_t Count>
    std::array<std::int32_t, Count> take() {
        std::array<std::int32_t, Count> taken;
        for (std::int32_t& number : taken)
            number = numbers_[place_++];
        return taken;
    }

    const std::wstring& text(std::int32_t number) const {
        return texts_[static_cast<std::size_t>(number)];
    }

    void drawLine(Step step) {
        const auto [x, y] = take<2>();
        step == Step::LineTo ? canvas_.LineTo(x, y) : canvas_.MoveTo(x, y);
    }

    void drawShape(Step step) {
        if (step == Step::TextOut) return drawText();
        if (step == Step::Polygon) return drawPolygon();
        const auto [x1, y1, x2, y2] = take<4>();
        if (step == Step::Ellipse) return canvas_.Ellipse(x1, y1, x2, y2);
        if (step == Step::Rectangle) return canvas_.Rectangle(x1, y1, x2, y2);
        if (step == Step::Arc) {
            const auto [x3, y3, x4, y4] = take<4>();
            return canvas_.Arc(x1, y1, x2, y2, x3, y3, x4, y4);
        }
        const auto [words, format] = take<2>();
        canvas_.TextRect(x1, y1, x2, y2, text(words), unsignedOf(format));
    }

    void drawText() {
        const auto [x, y, words] = take<3>();
        canvas_.TextOut(x, y, text(words));
    }

    void drawPolygon() {
        const auto [count, size] = take<2>();
        std::vector<std::int32_t> coordinates(static_cast<std::size_t>(size));
        for (std::int32_t& coordinate : coordinates)
            coordinate = numbers_[place_++];
        canvas_.Polygon(coordinates, count);
    }

    void setTool(Step step, std::int32_t value) {
        switch (step) {
            case Step::PenColor:
                return pen_->SetColor(unsignedOf(value));
            case Step::PenWidth:
                return pen_->SetWidth(value);
            case Step::PenStyle:
                return pen_->SetStyle(value);
            case Step::BrushColor:
                return brush_->SetColor(unsignedOf(value));
            case Step::BrushStyle:
                return brush_->SetStyle(value);
            case Step::FontColor:
                return font_->SetColor(unsignedOf(value));
            case Step::FontHeight:
                return font_->SetHeight(value);
            case Step::FontStyle:
                return font_->SetStyle(value);
            default:
                return font_->SetOrientation(value);
        }
    }

    const std::vector<std::int32_t>& numbers_;
    const std::vector<std::wstring>& texts_;
    Host::IHostCanvas& canvas_;
    Host::Ref<Host::IHostPen> pen_;
    Host::Ref<Host::IHostBrush> brush_;
    Host::Ref<Host::IHostFont> font_;
    std::size_t place_ = 0;
};

}  // namespace

void RecordedDrawing::keep(DrawingStep step, std::initializer_list<std::int32_t> arguments) {
    numbers_.push_back(static_cast<std::int32_t>(step));
    numbers_.insert(numbers_.end(), arguments);
}

std::int32_t RecordedDrawing::keepText(const std::wstring& text) {
    texts_.push_back(text);
    return static_cast<std::int32_t>(texts_.size() - 1);
}

void RecordedDrawing::keepPolygon(const std::vector<std::int32_t>& coordinates,
                                  std::int32_t count) {
    keep(Step::Polygon, {count, static_cast<std::int32_t>(coordinates.size())});
    numbers_.insert(numbers_.end(), coordinates.begin(), coordinates.end());
}

void RecordedDrawing::drawOn(Host::IHostCanvas& canvas, const ReadingProgress& progress) const {
    Replay replay(numbers_, texts_, canvas);
    std::size_t word = 0;
    while (replay.place() < numbers_.size()) {
        if (replay.place() >= word) {
            progress.reach(static_cast<double>(replay.place()) /
                           static_cast<double>(numbers_.size()));
            word = replay.place() + BetweenWords;
        }
        replay.drawNext();
    }
}

void CanvasRecorder::LineTo(std::int32_t x, std::int32_t y) {
    drawing_.keep(Step::LineTo, {x, y});
}

void CanvasRecorder::MoveTo(std::int32_t x, std::int32_t y) {
    drawing_.keep(Step::MoveTo, {x, y});
}

void CanvasRecorder::Ellipse(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2) {
    drawing_.keep(Step::Ellipse, {x1, y1, x2, y2});
}

void CanvasRecorder::Rectangle(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2) {
    drawing_.keep(Step::Rectangle, {x1, y1, x2, y2});
}

void CanvasRecorder::TextOut(std::int32_t x, std::int32_t y, const std::wstring& text) {
    drawing_.keep(Step::TextOut, {x, y, drawing_.keepText(text)});
}

void CanvasRecorder::Arc(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2,
                         std::int32_t x3, std::int32_t y3, std::int32_t x4, std::int32_t y4) {
    drawing_.keep(Step::Arc, {x1, y1, x2, y2, x3, y3, x4, y4});
}

void CanvasRecorder::TextRect(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2,
                              const std::wstring& text, std::uint32_t format) {
    drawing_.keep(Step::TextRect, {x1, y1, x2, y2, drawing_.keepText(text), signedOf(format)});
}

void CanvasRecorder::Polygon(const std::vector<std::int32_t>& coordinates, std::int32_t count) {
    drawing_.keepPolygon(coordinates, count);
}

std::int32_t CanvasRecorder::TextWidth(const std::wstring& text) {
    return font_.face().width(toQString(text));
}

std::int32_t CanvasRecorder::TextHeight(const std::wstring&) {
    return font_.face().lineHeight();
}

Host::Ref<Host::IHostBrush> CanvasRecorder::GetBrush() {
    return Host::Ref<Host::IHostBrush>::share(&brush_);
}

Host::Ref<Host::IHostPen> CanvasRecorder::GetPen() {
    return Host::Ref<Host::IHostPen>::share(&pen_);
}

Host::Ref<Host::IHostFont> CanvasRecorder::GetFont() {
    return Host::Ref<Host::IHostFont>::share(&font_);
}

void CanvasRecorder::Pen::SetColor(std::uint32_t color) {
    drawing_.keep(Step::PenColor, {signedOf(color)});
}

void CanvasRecorder::Pen::SetWidth(std::int32_t width) {
    drawing_.keep(Step::PenWidth, {width});
}

void CanvasRecorder::Pen::SetStyle(std::int32_t style) {
    drawing_.keep(Step::PenStyle, {style});
}

void CanvasRecorder::Brush::SetColor(std::uint32_t color) {
    drawing_.keep(Step::BrushColor, {signedOf(color)});
}

void CanvasRecorder::Brush::SetStyle(std::int32_t style) {
    drawing_.keep(Step::BrushStyle, {style});
}

void CanvasRecorder::Font::SetColor(std::uint32_t color) {
    drawing_.keep(Step::FontColor, {signedOf(color)});
}

void CanvasRecorder::Font::SetHeight(std::int32_t height) {
    measured_.SetHeight(height);
    drawing_.keep(Step::FontHeight, {height});
}

void CanvasRecorder::Font::SetStyle(std::int32_t style) {
    drawing_.keep(Step::FontStyle, {style});
}

void CanvasRecorder::Font::SetOrientation(std::int32_t tenths) {
    drawing_.keep(Step::FontOrientation, {tenths});
}

}  // namespace Rotavue::Workbench
