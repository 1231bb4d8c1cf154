#pragma once

#include "plugin/framework/host/drawing/host_brush.h"
#include "plugin/framework/host/drawing/host_canvas.h"
#include "plugin/framework/host/drawing/host_font.h"
#include "plugin/framework/host/drawing/host_pen.h"
#include "plugin/orbit_graph/clipped_canvas.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Meridax::VisualControls::Rotavue {

using Lines = std::vector<std::string>;

/// What a canvas, its pen, its brush and its font have in common: one log, one count of references
/// and one call that fails.
struct CanvasJournal {
    Lines lines;
    int references = 0;
    std::string failing;  ///< the line that fails, as its beginning; empty: none
    std::string missing;  ///< "Pen", "Brush" or "Font": what the canvas answers null for

    /// Writes one line, or fails in its place.
    void write(const std::string& line);
};

/// A host object of a test: it counts references and is owned by the test.
template <class Interface>
class JournalObject : public Interface {
public:
    explicit JournalObject(CanvasJournal& journal) : journal_(journal) {}

    void retain() noexcept override { ++journal_.references; }
    void release() noexcept override { --journal_.references; }
    void* offer(const Host::Guid&) override { return nullptr; }

protected:
    ~JournalObject() = default;

    CanvasJournal& journal_;
};

class RecordingPen final : public JournalObject<Host::IHostPen> {
public:
    using JournalObject::JournalObject;
    void SetColor(std::uint32_t color) override;
    void SetWidth(std::int32_t width) override;
    void SetStyle(std::int32_t style) override;
};

class RecordingBrush final : public JournalObject<Host::IHostBrush> {
public:
    using JournalObject::JournalObject;
    void SetColor(std::uint32_t color) override;
    void SetStyle(std::int32_t style) override;
};

class RecordingFont final : public JournalObject<Host::IHostFont> {
public:
    using JournalObject::JournalObject;
    void SetColor(std::uint32_t color) override;
    std::int32_t GetHeight() override { return height; }
    void SetHeight(std::int32_t newHeight) override;
    void SetStyle(std::int32_t style) override;
    void SetOrientation(std::int32_t tenths) override;

    std::int32_t height = 16;
};

/// A canvas that turns a frame into lines of text, such as "LineTo 240 150" and
/// "Brush.SetStyle 1". A character is 8 pixels wide and a line 16 high; with `metricsFollowFont` it
/// is half a font height wide and a line one font height high.
class RecordingCanvas final : public JournalObject<Host::IHostCanvas> {
public:
    RecordingCanvas();

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

    /// A reference to hand to a drawing operation.
    CanvasRef ref() { return CanvasRef::share(this); }

    /// The lines so far; the log starts anew.
    Lines taken();

    /// The lines so far that begin so; the log starts anew.
    Lines taken(std::string_view beginning);

    bool metricsFollowFont = false;
    CanvasJournal journal;
    RecordingPen pen;
    RecordingBrush brush;
    RecordingFont font;
};

/// The lines that begin so.
Lines beginningWith(const Lines& lines, std::string_view beginning);

}  // namespace Meridax::VisualControls::Rotavue
