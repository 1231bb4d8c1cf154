#pragma once

#include "tests/workbench/analysis/generated_recording.h"
#include "workbench/bench/axis_limits.h"
#include "workbench/window/main_window.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QImage>
#include <QTest>

#include <filesystem>
#include <memory>
#include <optional>

namespace Rotavue::Workbench {

/// The real window with the built module, on the display that the tests have. A recording turns 50
/// times a second for 2 s; X is 40 um and Y 30 um at its peak.
class WindowTest : public testing::Test {
protected:
    WindowTest() {
        window_.resize(1280, 800);
        window_.setTheme(Theme::Light);
        window_.show();
        window_.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window_));
        settle();
    }

    /// Lets everything that is due happen.
    static void settle() {
        for (int round = 0; round < 3; ++round)
            QApplication::processEvents();
    }

    static Recording rotor(const std::string& point = "Bearing 1") {
        Recording recording =
            generate({.duration = 2.0,
                      .orders = {{.order = 1.0, .x = {40.0, 0.0}, .y = {30.0, 90.0}},
                                 {.order = 2.0, .x = {6.0, 40.0}, .y = {4.0, 170.0}}}});
        recording.file = "rotor.csv";
        recording.machine.point = point;
        recording.machine.xAngle = 45.0;
        recording.machine.yAngle = 315.0;
        recording.machine.rotation = Rotation::CounterClockwise;
        recording.machine.clearanceWidth = recording.machine.clearanceHeight = 200.0;
        return recording;
    }

    OrbitView& open(Recording recording = rotor(), const PlaneSetup& setup = {}) {
        Plane& plane = bench().addPlane(preparePlane(std::move(recording)), setup);
        settle();
        return *window_.tiles().viewOf(&plane);
    }

    static QImage pictureOf(QWidget& widget) {
        settle();
        return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
    }

    /// The plane's settings with one of them changed.
    static Settings with(const Plane& plane, const wchar_t* key, const wchar_t* text) {
        Settings settings = plane.settings();
        settings[key] = text;
        return settings;
    }

    Bench& bench() { return window_.bench(); }

    QAction& action(const char* name) {
        auto* found = window_.findChild<QAction*>(name);
        EXPECT_NE(found, nullptr) << name;
        return *found;
    }

    /// A key for whatever has the focus.
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        settle();
    }

    MainWindow window_{std::make_shared<HostKit::Module>(ROTAVUE_MODULE_FILE)};
};

/// Puts the display's pointer there and waits until the widget knows of it.
bool putPointer(QWidget& widget, const QPoint& place);

/// A place where a click makes the control ask for a new limit: what a person sees by looking.
std::optional<QPoint> findLimit(OrbitView& view);

/// Whether any pixel has the colour.
bool hasColor(const QImage& picture, QRgb color);

/// How many pixels differ.
int differences(const QImage& a, const QImage& b);

/// Keeps what the window looks like as build/screenshots/NAME.png, with that many pixels for one of
/// the window's.
void keepScreenshot(QWidget& window, const std::string& name, double scale = 1.0);

}  // namespace Rotavue::Workbench
