#include <QApplication>
#include <QElapsedTimer>
#include <QMainWindow>
#include <QMenuBar>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cstdio>

#include "workbench/files/file_actions.h"
#include "workbench/paint/painting_studio.h"

// Opens a recording as the window does, and tells when its first orbit is painted and for how long
// the window did not answer meanwhile:
//     loading_benchmark FILE
namespace {

using namespace Rotavue;

constexpr int Width = 800;
constexpr int Height = 600;

// The longest time between two turns of the event loop.
class Heartbeat {
public:
    Heartbeat() {
        clock_.start();
        QObject::connect(&timer_, &QTimer::timeout, [this] { beat(); });
        timer_.start(5);
    }
    void beat() { longest_ = std::max(longest_, clock_.restart()); }
    qint64 longest() const { return longest_; }

private:
    QTimer timer_;
    QElapsedTimer clock_;
    qint64 longest_ = 0;
};

void paint(Workbench::Plane& plane) {
    Workbench::PaintingStudio studio;
    const auto picture = studio.open({.width = Width, .height = Height}, {});
    plane.control().draw(picture->canvas(), Width, Height, 1);
    picture->finish();
}

}  // namespace

int main(int count, char** arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(count, arguments);
    if (count != 2) {
        std::fputs("usage: loading_benchmark FILE\n", stderr);
        return 2;
    }
    const QTemporaryDir folder;
    QSettings settings(folder.filePath("settings.ini"), QSettings::IniFormat);
    const auto module = std::make_shared<HostKit::Module>(HostKit::chooseModule(std::nullopt));
    Workbench::Bench bench(module);
    QMainWindow window;
    QMenu* menu = window.menuBar()->addMenu("File");
    auto* files = new Workbench::FileActions(bench, window, *menu, settings);
    Heartbeat heartbeat;
    QElapsedTimer clock;
    QObject::connect(&bench, &Workbench::Bench::planesChanged, [&] {
        paint(*bench.planes().front());
        heartbeat.beat();
        std::printf("first orbit after %lld ms, longest silence %lld ms\n", clock.elapsed(),
                    heartbeat.longest());
        QApplication::quit();
    });
    clock.start();
    Workbench::RecordingOptions options;
    options.x.column = "#" + std::string(QString(arguments[1]).endsWith("csv") ? "2" : "1");
    options.y.column = "#" + std::string(QString(arguments[1]).endsWith("csv") ? "3" : "2");
    files->open({arguments[1]}, options);
    return QApplication::exec();
}
