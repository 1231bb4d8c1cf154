#include "workbench/window/dock_part.h"

#include "workbench/window/docks/channel_link.h"
#include "workbench/window/docks/number_link.h"
#include "workbench/window/docks/property_link.h"
#include "workbench/window/docks/time_link.h"
#include "workbench/window/main_window.h"

namespace Rotavue::Workbench {

namespace {

/// Calls `link.setCurrent` now and whenever another plane becomes the current one.
template <class Link>
void followCurrent(MainWindow& window, Link& link) {
    link.setCurrent(window.currentPlane());
    QObject::connect(&window.tiles(), &OrbitTiles::currentChanged, &link,
                     [&link](Plane* plane) { link.setCurrent(plane); });
}

void addChannels(MainWindow& window) {
    auto* tree = new ChannelTree(&window);
    auto* link = new ChannelLink(window.bench(), *tree, tree);
    window.addDock("channelDock", MainWindow::tr("Channels"), Qt::LeftDockWidgetArea, *tree);
    followCurrent(window, *link);
    QObject::connect(link, &ChannelLink::planeSelected, &window.tiles(), &OrbitTiles::setCurrent);
}

void addProperties(MainWindow& window) {
    auto* panel = new PropertyPanel(&window);
    auto* link = new PropertyLink(window.bench(), *panel, panel);
    window.addDock("propertyDock", MainWindow::tr("Properties"), Qt::LeftDockWidgetArea, *panel,
                   true);
    followCurrent(window, *link);
}

void addPlots(MainWindow& window) {
    auto* waveforms = new TimePlot(&window);
    auto* speed = new TimePlot(&window);
    auto* link =
        new TimeLink(window.bench(), *waveforms, *speed, window.markedStretch(), waveforms);
    window.addDock("waveformDock", MainWindow::tr("Waveforms"), Qt::BottomDockWidgetArea,
                   *waveforms);
    window.addDock("speedDock", MainWindow::tr("Speed"), Qt::BottomDockWidgetArea, *speed);
    followCurrent(window, *link);
}

void addNumbers(MainWindow& window) {
    auto* table = new NumberTable(&window);
    new NumberLink(window.bench(), *table, table);
    window.addDock("numberDock", MainWindow::tr("Numbers"), Qt::RightDockWidgetArea, *table);
}

}  // namespace

void addDocks(MainWindow& window) {
    addChannels(window);
    addProperties(window);
    addPlots(window);
    addNumbers(window);
}

}  // namespace Rotavue::Workbench
