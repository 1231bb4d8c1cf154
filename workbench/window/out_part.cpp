#include "workbench/window/out_part.h"

#include "workbench/export/out_actions.h"
#include "workbench/files/file_actions.h"
#include "workbench/window/app_settings.h"
#include "workbench/window/main_window.h"
#include "workbench/window/run_out/reference_actions.h"
#include "workbench/window/run_out/rest_actions.h"
#include "workbench/window/run_out/run_out_actions.h"

#include <QMenu>
#include <QStatusBar>

namespace Rotavue::Workbench {

namespace {

void addPictures(MainWindow& window) {
    auto* out = new OutActions(
        window.bench(), [&window] { return window.currentPlane(); },
        [&window](const QString& line) { window.statusBar()->showMessage(line); }, appSettings,
        window);
    out->setParent(&window);
    out->keepAlso([&window] {
        const auto* files = window.findChild<FileActions*>();
        return files != nullptr ? QStringList(files->viewFile()) : QStringList();
    });
    window.editMenu().addActions({&out->copyNumbers, &out->copyPicture});
    window.tiles().addAction(&out->copyNumbers);
    window.fileMenu().addSeparator();
    window.fileMenu().addActions({&out->exportPicture, &out->exportReport});
}

MarkedPlane markedPlaneOf(MainWindow& window) {
    return {[&window] { return window.currentPlane(); },
            [&window] { return window.markedStretch().span(); }};
}

/// Calls `actions.refresh` whenever another plane or stretch is the current one.
template <class Actions>
void followMarked(MainWindow& window, Actions& actions) {
    const auto refresh = [&actions] { actions.refresh(); };
    QObject::connect(&window.tiles(), &OrbitTiles::currentChanged, &actions, refresh);
    QObject::connect(&window.markedStretch(), &MarkedStretch::changed, &actions, refresh);
}

void addRunOut(MainWindow& window) {
    auto* actions = new RunOutActions(window.bench(), markedPlaneOf(window), &window);
    QMenu* menu = window.editMenu().addMenu(MainWindow::tr("&Run-out"));
    menu->addActions({&actions->take, &actions->takeFile});
    menu->addSeparator();
    menu->addActions({&actions->none, &actions->vector, &actions->waveform});
    followMarked(window, *actions);
}

void addRest(MainWindow& window) {
    auto* actions = new RestActions(window.bench(), markedPlaneOf(window), &window);
    QMenu* menu = window.editMenu().addMenu(MainWindow::tr("Shaft at r&est"));
    menu->setToolTipsVisible(true);
    menu->addActions({&actions->atBottom, &actions->atCentre});
    menu->addSeparator();
    menu->addAction(&actions->forget);
    followMarked(window, *actions);
}

void addReference(MainWindow& window) {
    auto* actions = new ReferenceActions(
        window.bench(), markedPlaneOf(window),
        [&window](const QString& line) { window.statusBar()->showMessage(line); }, window);
    window.fileMenu().addAction(&actions->save);
    followMarked(window, *actions);
}

}  // namespace

void addOut(MainWindow& window) {
    addPictures(window);
    addReference(window);
    addRunOut(window);
    addRest(window);
}

}  // namespace Rotavue::Workbench
