#include "tests/plugin/orbit_graph/recording_canvas.h"

#include "plugin/framework/host/host_error.h"

#include <algorithm>
#include <initializer_list>
#include <utility>

namespace Meridax::VisualControls::Rotavue {
namespace {

std::string line(const std::string& operation, std::initializer_list<std::int64_t> numbers) {
    std::string text = operation;
    for (const std::int64_t number : numbers)
        text.append(1, ' ').append(std::to_string(number));
    return text;
}

/// Texts of the tests are ASCII.
std::string quoted(const std::wstring& text) {
    std::string result = " \"";
    std::ranges::transform(text, std::back_inserter(result),
                           [](wchar_t c) { return static_cast<char>(c); });
    return result + "\"";
}

template <class Interface>
Host::Ref<Interface> answer(const CanvasJournal& journal, std::string_view name,
                            Interface& object) {
    return journal.missing == name ? nullptr : Host::Ref<Interface>::share(&object);
}

}  // namespace

void CanvasJournal::write(const std::string& line) {
    if (!failing.empty() && line.starts_with(failing)) {
        throw Host::HostError(Host::Status::Unspecified);
    }
    lines.push_back(line);
}

void RecordingPen::SetColor(std::uint32_t color) {
    journal_.write(line("Pen.SetColor", {color}));
}

void RecordingPen::SetWidth(std::int32_t width) {
    journal_.write(line("Pen.SetWidth", {width}));
}

void RecordingPen::SetStyle(std::int32_t style) {
    journal_.write(line("Pen.SetStyle", {style}));
}

void RecordingBrush::SetColor(std::uint32_t color) {
    journal_.write(line("Brush.SetColor", {color}));
}

void RecordingBrush::SetStyle(std::int32_t style) {
    journal_.write(line("Brush.SetStyle", {style}));
}

void RecordingFont::SetColor(std::uint32_t color) {
    journal_.write(line("Font.SetColor", {color}));
}

void RecordingFont::SetHeight(std::int32_t newHeight) {
    journal_.write(line("Font.SetHeight", {newHeight}));
    height = newHeight;
}

void RecordingFont::SetStyle(std::int32_t style) {
    journal_.write(line("Font.SetStyle", {style}));
}

void RecordingFont::SetOrientation(std::int32_t tenths) {
    journal_.write(line("Font.SetOrientation", {tenths}));
}

RecordingCanvas::RecordingCanvas()
    : JournalObject(journal), pen(journal), brush(journal), font(journal) {}

void RecordingCanvas::LineTo(std::int32_t x, std::int32_t y) {
    journal.write(line("LineTo", {x, y}));
}

void RecordingCanvas::MoveTo(std::int32_t x, std::int32_t y) {
    journal.write(line("MoveTo", {x, y}));
}

void RecordingCanvas::Ellipse(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2) {
    journal.write(line("Ellipse", {x1, y1, x2, y2}));
}

void RecordingCanvas::Rectangle(std::int32_t x1, std::int32_t y1, std::int32_t x2,
                                std::int32_t y2) {
    journal.write(line("Rectangle", {x1, y1, x2, y2}));
}

void RecordingCanvas::TextOut(std::int32_t x, std::int32_t y, const std::wstring& text) {
    journal.write(line("TextOut", {x, y}) + quoted(text));
}

Host::Ref<Host::IHostBrush> RecordingCanvas::GetBrush() {
    return answer<Host::IHostBrush>(journal, "Brush", brush);
}

Host::Ref<Host::IHostPen> RecordingCanvas::GetPen() {
    return answer<Host::IHostPen>(journal, "Pen", pen);
}

Host::Ref<Host::IHostFont> RecordingCanvas::GetFont() {
    return answer<Host::IHostFont>(journal, "Font", font);
}

void RecordingCanvas::Arc(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2,
                          std::int32_t x3, std::int32_t y3, std::int32_t x4, std::int32_t y4) {
    journal.write(line("Arc", {x1, y1, x2, y2, x3, y3, x4, y4}));
}

std::int32_t RecordingCanvas::TextWidth(const std::wstring& text) {
    return static_cast<std::int32_t>(text.size()) * TextHeight(text) / 2;
}

std::int32_t RecordingCanvas::TextHeight(const std::wstring&) {
    return metricsFollowFont ? font.height : 16;
}

void RecordingCanvas::TextRect(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2,
                               const std::wstring& text, std::uint32_t format) {
    journal.write(line("TextRect", {x1, y1, x2, y2}) + quoted(text) + line("", {format}));
}

void RecordingCanvas::Polygon(const std::vector<std::int32_t>& coordinates, std::int32_t count) {
    std::string text = "Polygon";
    for (const std::int32_t coordinate : coordinates)
        text += line("", {coordinate});
    journal.write(text + line(" x", {count}));
}

Lines RecordingCanvas::taken() {
    return std::exchange(journal.lines, {});
}

Lines RecordingCanvas::taken(std::string_view beginning) {
    return beginningWith(taken(), beginning);
}

Lines beginningWith(const Lines& lines, std::string_view beginning) {
    Lines result;
    std::ranges::copy_if(lines, std::back_inserter(result),
                         [&](const std::string& text) { return text.starts_with(beginning); });
    return result;
}

}  // namespace Meridax::VisualControls::Rotavue
