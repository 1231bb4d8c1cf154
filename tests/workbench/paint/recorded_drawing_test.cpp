#include "workbench/paint/recorded_drawing.h"

#include "plugin/framework/host/drawing/host_brush.h"
#include "plugin/framework/host/drawing/host_font.h"
#include "plugin/framework/host/drawing/host_pen.h"
#include "tests/workbench/paint/sheet.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <string>
#include <vector>

namespace Rotavue::Workbench {
namespace {

using Drawing = std::function<void(Host::IHostCanvas&)>;

QImage direct(const Drawing& draw) {
    Sheet sheet(120, 90);
    draw(*sheet);
    return sheet.finish();
}

RecordedDrawing recorded(const Drawing& draw) {
    CanvasRecorder recorder(CanvasOptions().fontHeight);
    draw(recorder);
    return recorder.drawing();
}

QImage replayed(const Drawing& draw) {
    Sheet sheet(120, 90);
    recorded(draw).drawOn(*sheet);
    return sheet.finish();
}

/// Each operation does something that is seen.
const std::pair<const char*, Drawing> Operations[] = {
    {"line",
     [](auto& canvas) {
         canvas.MoveTo(10, 70);
         canvas.LineTo(100, 20);
     }},
    {"ellipse", [](auto& canvas) { canvas.Ellipse(10, 20, 90, 60); }},
    {"rectangle", [](auto& canvas) { canvas.Rectangle(10, 20, 90, 60); }},
    {"arc", [](auto& canvas) { canvas.Arc(10, 20, 90, 60, 90, 40, 50, 20); }},
    {"polygon",
     [](auto& canvas) {
         canvas.Polygon({10, 10, 90, 20, 50, 80, 0, 0}, 3);
     }},
    {"text", [](auto& canvas) { canvas.TextOut(5, 30, L"28 \u00b5m pp"); }},
    {"text in a box", [](auto& canvas) { canvas.TextRect(0, 0, 120, 90, L"1X", 0x4U | 0x10000U); }},
    {"pen",
     [](auto& canvas) {
         canvas.GetPen()->SetColor(0x0000FF);
         canvas.GetPen()->SetWidth(9);
         canvas.GetPen()->SetStyle(1);
         canvas.LineTo(100, 80);
     }},
    {"brush",
     [](auto& canvas) {
         canvas.GetBrush()->SetColor(0x00FF00);
         canvas.Rectangle(10, 10, 50, 50);
         canvas.GetBrush()->SetStyle(1);
         canvas.Rectangle(30, 30, 90, 80);
     }},
    {"font",
     [](auto& canvas) {
         canvas.GetFont()->SetColor(0xFF0000);
         canvas.GetFont()->SetHeight(30);
         canvas.GetFont()->SetStyle(1);
         canvas.GetFont()->SetOrientation(450);
         canvas.TextOut(10, 80, L"KPH");
     }},
};

TEST(RecordedDrawing, EveryOperationComesOutAsIfItWereDrawnAtOnce) {
    const QImage blank = direct([](auto&) {});
    for (const auto& [name, draw] : Operations) {
        EXPECT_NE(direct(draw), blank) << name;
        EXPECT_EQ(replayed(draw), direct(draw)) << name;
    }
}

TEST(RecordedDrawing, OneAfterTheOtherTheyComeInTheirOrder) {
    const Drawing all = [](Host::IHostCanvas& canvas) {
        for (const auto& operation : Operations)
            operation.second(canvas);
    };
    EXPECT_EQ(replayed(all), direct(all));
}

TEST(RecordedDrawing, ARecorderMeasuresAsAPainterDoes) {
    Sheet sheet(120, 90);
    CanvasRecorder recorder(CanvasOptions().fontHeight);
    EXPECT_EQ(recorder.GetFont()->GetHeight(), (*sheet).GetFont()->GetHeight());
    for (const int height : {14, 9, 40, -12, 0}) {
        recorder.GetFont()->SetHeight(height);
        (*sheet).GetFont()->SetHeight(height);
        EXPECT_EQ(recorder.TextWidth(L"360 deg"), (*sheet).TextWidth(L"360 deg")) << height;
        EXPECT_EQ(recorder.TextHeight(L"360 deg"), (*sheet).TextHeight(L"360 deg")) << height;
        EXPECT_EQ(recorder.GetFont()->GetHeight(), height);
    }
}

TEST(RecordedDrawing, NumbersFarOffAndPolygonsThatLackCoordinatesAreKeptAsTheyAre) {
    constexpr std::int32_t Far = std::numeric_limits<std::int32_t>::max();
    const Drawing hostile = [](Host::IHostCanvas& canvas) {
        canvas.GetPen()->SetColor(0xFFFFFFFFU);
        canvas.MoveTo(-Far, Far);
        canvas.LineTo(Far, -Far);
        canvas.Polygon({}, Far);
        canvas.Polygon({1, 2, 3}, -Far);
        canvas.TextOut(Far, -Far, std::wstring(10'000, L'M'));
        canvas.TextRect(Far, Far, -Far, -Far, L"", 0xFFFFFFFFU);
        canvas.Rectangle(-Far, -Far, 20, 20);
    };
    EXPECT_EQ(replayed(hostile), direct(hostile));
}

TEST(RecordedDrawing, TellsHowFarItIsAndEndsAtTheNextWordWhenItIsCancelled) {
    // Three numbers a line: a word for every 16,384 numbers or a little more.
    const RecordedDrawing lines = recorded([](Host::IHostCanvas& canvas) {
        for (int i = 0; i < 20'000; ++i)
            canvas.LineTo(i % 120, i % 90);
    });
    std::vector<double> parts;
    const auto drawWhile = [&](std::size_t words) {
        parts.clear();
        Sheet sheet(120, 90);
        lines.drawOn(*sheet, ReadingProgress([&](double part) {
            parts.push_back(part);
            return parts.size() < words;
        }));
    };
    drawWhile(100);
    EXPECT_EQ(parts.size(), 4U);  // 60,000 numbers
    EXPECT_EQ(parts[1], 16'386 / 60'000.0);
    EXPECT_THROW(drawWhile(2), ReadingCancelled);
    EXPECT_EQ(parts.size(), 2U);
}

}  // namespace
}  // namespace Rotavue::Workbench
