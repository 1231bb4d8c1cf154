#include "workbench/window/file_part.h"

#include "workbench/files/file_actions.h"
#include "workbench/files/recording_questions.h"
#include "workbench/files/work_bar.h"
#include "workbench/window/app_settings.h"
#include "workbench/window/main_window.h"

namespace Rotavue::Workbench {

void addFiles(MainWindow& window) {
    QSettings* settings = appSettings().release();
    settings->setParent(&window);
    auto* files = new FileActions(window.bench(), window, window.fileMenu(), *settings);
    new RecordingQuestions(
        window.bench(), files->opener(), [&window] { return window.currentPlane(); },
        window.fileMenu(), *files);
    window.addBar(files->loading());
    window.addBar(*new WorkBar(window.bench(), &window));
    window.addBar(files->messages());
    window.addBar(files->offers());
    window.addCloseCheck([files] { return files->mayLoseChanges(); });
    QObject::connect(files, &FileActions::viewFileChanged, &window, &MainWindow::setViewName);
    QObject::connect(files, &FileActions::viewNamed, &window, &MainWindow::setViewName);
}

}  // namespace Rotavue::Workbench
