// Windows in a process of their own, that tests can kill.
//
//   window_driver keep RECORDING FOLDER  changes the view and keeps it in the folder, without an
//   end;
//                                        says "kept" when it has begun to
//   window_driver screenshot FILE

#include "workbench/files/file_actions.h"
#include "workbench/window/main_window.h"
#include "workbench/window/window_order.h"

#include <QApplication>

#include <cstdio>
#include <string_view>

namespace Rotavue::Workbench {
namespace {

void changeAndKeep(MainWindow& window, int round) {
    Plane& plane = *window.bench().planes().front();
    Settings settings = plane.settings();
    settings[L"graphType"] = L"1";
    settings[L"tickCount"] = std::to_wstring(1 + round % 4);
    window.bench().setSettings(plane, settings);
    window.findChild<FileActions*>()->autosave()->keepNow();
}

int keep(int count, char** arguments) {
    QApplication application(count, arguments);
    MainWindow window(std::make_shared<HostKit::Module>(ROTAVUE_MODULE_FILE));
    FileActions& files = *window.findChild<FileActions*>();
    files.open({arguments[2]});
    while (window.bench().planes().empty())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    files.startAutosave(arguments[3]);
    for (int round = 0;; ++round) {
        changeAndKeep(window, round);
        if (round > 0) continue;
        std::puts("kept");
        std::fflush(stdout);
    }
}

}  // namespace
}  // namespace Rotavue::Workbench

int main(int count, char** arguments) {
    using namespace Rotavue::Workbench;
    const std::string_view order = count > 1 ? arguments[1] : "";
    if (order == "keep" && count == 4) return keep(count, arguments);
    if (order != "screenshot" || count != 3) return 2;
    return runWindow({.module = ROTAVUE_MODULE_FILE, .screenshot = arguments[2]});
}
