#include "workbench/window/window_order.h"

#include "workbench/analysis/replace_file.h"
#include "workbench/files/file_actions.h"
#include "workbench/recording/ending_threads.h"
#include "workbench/window/app_settings.h"
#include "workbench/window/main_window.h"
#include "workbench/window/open_at_once.h"

#include <QApplication>
#include <QBuffer>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QIcon>
#include <QLayout>
#include <QPixmap>

#include <clocale>
#include <stdexcept>

namespace Rotavue::Workbench {

namespace {

void setEnvironment(const WindowOrder& order) {
    if (order.scale > 0.0) qputenv("QT_SCALE_FACTOR", QByteArray::number(order.scale));
    if (order.screenshot && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
}

FileActions& filesOf(MainWindow& window) {
    return *window.findChild<FileActions*>();
}

/// Begins to open what was ordered; the cursor goes to its place when all of it is there.
void open(MainWindow& window, const WindowOrder& order) {
    FileActions& files = filesOf(window);
    files.setFirstSettings(orderedSettings(order));
    files.setFirstCurves(order.show);
    QStringList names;
    for (const std::string& file : order.recordings)
        names += QString::fromStdString(file);
    if (order.at) {
        QObject::connect(
            &files.opener(), &RecordingOpener::idle, &window,
            [&window, at = *order.at] { window.bench().setCursor(at); }, Qt::SingleShotConnection);
    }
    files.open(names, order.recording);
}

void saveScreenshot(MainWindow& window, const std::string& file) {
    // What was put off until the window is there.
    constexpr qint64 Enough = 600;  // ms
    QElapsedTimer clock;
    for (clock.start(); clock.elapsed() < Enough;)
        QApplication::processEvents(QEventLoop::AllEvents, 50);
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    if (!window.grab().save(&bytes, "PNG")) throw std::runtime_error(file + ": no picture");
    if (const std::error_code fault = replaceFile(file, bytes.data().toStdString()))
        throw std::runtime_error(file + ": cannot be written: " + fault.message());
}

/// Nothing that threads share goes before they do.
struct ThreadsAtEnd {
    ThreadsAtEnd() = default;
    ThreadsAtEnd(const ThreadsAtEnd&) = delete;
    ThreadsAtEnd& operator=(const ThreadsAtEnd&) = delete;
    ~ThreadsAtEnd() { waitForEndingThreads(); }
};

}  // namespace

int runWindow(const WindowOrder& order) {
    setEnvironment(order);
    static int count = 1;
    static char name[] = "rotavue";
    static char* arguments[] = {name, nullptr};
    QApplication application(count, arguments);
    // Qt has set the locale of the C library; numbers keep their point.
    std::setlocale(LC_NUMERIC, "C");
    QLocale::setDefault(QLocale::c());
    QApplication::setApplicationName("rotavue");
    QApplication::setApplicationDisplayName("Rotavue");
    QApplication::setDesktopFileName("rotavue");
    QApplication::setWindowIcon(QIcon(":/rotavue.svg"));
    if (order.resetSettings) appSettings()->clear();
    const ThreadsAtEnd threads;
    MainWindow window(std::make_shared<HostKit::Module>(HostKit::chooseModule(order.module)));
    if (!order.screenshot) window.restoreLayout();
    if (!order.theme.empty()) window.setTheme(themeNamed(QString::fromStdString(order.theme)));
    if (order.width > 0) window.resize(order.width, order.height);
    // A picture is as small as it is ordered; and a display that is none takes no least size.
    if (order.screenshot) window.layout()->setSizeConstraint(QLayout::SetNoConstraint);
    window.show();
    if (!order.screenshot) {
        filesOf(window).startAutosave(unsavedFolder());
        open(window, order);
        return QApplication::exec();
    }
    openAtOnce(window, order);
    saveScreenshot(window, *order.screenshot);
    return 0;
}

}  // namespace Rotavue::Workbench
