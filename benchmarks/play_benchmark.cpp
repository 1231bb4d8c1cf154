#include "host_kit/loader/module.h"
#include "workbench/bench/bench.h"
#include "workbench/window/main_window.h"
#include "workbench/window/orbit_view.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QDockWidget>
#include <QEvent>
#include <QImage>

#include <cmath>
#include <memory>
#include <vector>

/// What a moment costs while four planes play: the cursor moves on by a thirtieth of a second and
/// each control draws its frame, 10,000 points of 25 turns, into 500 x 420 pixels of the screen's
/// form; or a window with every dock open puts what has changed on its screen, at the scale that
/// QT_SCALE_FACTOR tells. benchmarks/README.md has the figures.
namespace Rotavue::Benchmarks {
namespace {

using namespace Workbench;

constexpr double SampleRate = 20'000.0;
constexpr double TurnsPerSecond = 50.0;
constexpr double Growth = 0.0025;  // of the turns, in a second
constexpr double Pi = 3.141592653589793;

/// About 400 samples a turn, of a shaft that whirls and grows faster: turns never lie on each
/// other, and each moment has a speed of its own.
Recording whirling(double seconds) {
    Recording recording;
    recording.file = "whirl.csv";
    recording.sampleRate = SampleRate;
    recording.machine.unit = "um";
    recording.machine.xAngle = 45.0;
    recording.machine.yAngle = 315.0;
    for (int i = 0; i < static_cast<int>(seconds * SampleRate); ++i) {
        const double time = i / SampleRate;
        const double turns = TurnsPerSecond * time * (1.0 + Growth * time);
        const double angle = 2.0 * Pi * turns;
        recording.x.edit().push_back(40.0 * std::cos(angle) + 7.0 * std::cos(0.4301 * angle));
        recording.y.edit().push_back(30.0 * std::sin(angle) + 7.0 * std::sin(0.4301 * angle));
        recording.angle.edit().push_back(360.0 * (turns - std::floor(turns)));
    }
    return recording;
}

constexpr int PlaneCount = 4;
constexpr double FrameTime = 1.0 / 30.0;

std::shared_ptr<HostKit::Module> loadedModule() {
    return std::make_shared<HostKit::Module>(HostKit::programFolder() / "Rotavue64.vc");
}

void addPlane(Bench& bench) {
    Plane& plane = bench.addPlane(preparePlane(whirling(4.0)));
    Settings settings = plane.settings();
    settings[L"revolutions"] = L"25";
    plane.load(settings);
}

class FourPlanes {
public:
    FourPlanes() {
        for (int i = 0; i < PlaneCount; ++i) {
            addPlane(bench_);
            views_.push_back(std::make_unique<OrbitView>(bench_, bench_.planes().back()));
            views_.back()->resize(500, 420);
        }
        bench_.setCursor(1.0);
        bench_.playback().play();
    }

    void frame(QImage& screen) {
        bench_.playback().advance(FrameTime);
        for (const auto& view : views_)
            view->render(&screen);
    }

private:
    Bench bench_{loadedModule()};
    std::vector<std::unique_ptr<OrbitView>> views_;
};

class WholeWindow {
public:
    WholeWindow() : window_(loadedModule()) {
        window_.resize(Size);
        window_.show();
        for (int i = 0; i < PlaneCount; ++i)
            addPlane(window_.bench());
        for (QDockWidget* dock : window_.findChildren<QDockWidget*>())
            dock->show();
        window_.bench().setCursor(1.0);
        QApplication::processEvents();
        window_.bench().playback().play();
    }

    // What the docks put off until their numbers are there belongs to the moment. The request is
    // what a screen sends for each of its pictures.
    void frame() {
        window_.bench().playback().advance(FrameTime);
        QApplication::sendPostedEvents();
        QEvent request(QEvent::UpdateRequest);
        QApplication::sendEvent(&window_, &request);
    }

    static constexpr QSize Size{1600, 1000};

private:
    MainWindow window_;
};

void countFrames(benchmark::State& state) {
    state.counters["frames"] =
        benchmark::Counter(static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
}

void playFourPlanes(benchmark::State& state) {
    FourPlanes planes;
    const auto scale = static_cast<int>(state.range(0));
    QImage screen(QSize(500, 420) * scale, QImage::Format_RGB32);
    screen.setDevicePixelRatio(scale);
    for ([[maybe_unused]] auto _ : state)
        planes.frame(screen);
    countFrames(state);
}

void playWholeWindow(benchmark::State& state) {
    WholeWindow window;
    for ([[maybe_unused]] auto _ : state)
        window.frame();
    countFrames(state);
}

BENCHMARK(playFourPlanes)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);
BENCHMARK(playWholeWindow)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace Rotavue::Benchmarks

int main(int count, char** arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(count, arguments);
    benchmark::Initialize(&count, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
