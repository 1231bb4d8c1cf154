#include "workbench/window/dock_part.h"

#include "workbench/window/docks/channel_link.h"
#include "workbench/window/docks/number_link.h"
#include "workbench/window/docks/property_link.h"
#include "workbench/window/docks/time_link.h"
#include "workbench/window/main_window.h"

#include <QDockWidget>

namespace Rotavue::Workbench {

namespace {

/// Calls `link.setCurrent` now and whenever another plane becomes the current one.
template <class Link>
void followCurrent(MainWindow& window, Link& link) {
    link.setCurrent(window.currentPlane());
    QObject::connect(&window.tiles(), &OrbitTiles::currentChanged, &link,
                     [&link](Plane* plane) { link.setCurrent(plane); });
}

/// The first widget in a dock that takes keys.
QWidget& keyTaker(QWidget& content) {
    if (content.focusPolicy() != Qt::NoFocus) return content;
    for (QWidget* child : content.findChildren<QWidget*>())
        if (child->focusPolicy() != Qt::NoFocus && child->isVisibleTo(&content)) return *child;
    return content;
}

/// An action with that key which shows the dock and goes to what is in it.
void addWayTo(MainWindow& window, QDockWidget& dock, const QKeySequence& key) {
    window.addAction(window.viewMenu(), dock.objectName() + "Way",
                     MainWindow::tr("To %1").arg(dock.windowTitle()), key, [&dock] {
                         dock.show();
                         dock.raise();
                         keyTaker(*dock.widget()).setFocus(Qt::ShortcutFocusReason);
                     });
}

TimePlot& namedPlot(MainWindow& window, const char* name, const QString& title) {
    auto* plot = new TimePlot(&window);
    plot->setObjectName(name);
    plot->setAccessibleName(title);
    return *plot;
}

void addChannels(MainWindow& window) {
    auto* tree = new ChannelTree(&window);
    auto* link = new ChannelLink(window.bench(), *tree, tree);
    addWayTo(
        window,
        window.addDock("channelDock", MainWindow::tr("Channels"), Qt::LeftDockWidgetArea, *tree),
        Qt::ALT | Qt::Key_1);
    followCurrent(window, *link);
    QObject::connect(link, &ChannelLink::planeSelected, &window.tiles(), &OrbitTiles::setCurrent);
}

void addProperties(MainWindow& window) {
    auto* panel = new PropertyPanel(&window);
    auto* link = new PropertyLink(window.bench(), *panel, panel);
    addWayTo(window,
             window.addDock("propertyDock", MainWindow::tr("Properties"), Qt::LeftDockWidgetArea,
                            *panel, true),
             Qt::ALT | Qt::Key_2);
    followCurrent(window, *link);
}

void addPlots(MainWindow& window) {
    TimePlot& waveforms = namedPlot(window, "waveformPlot", MainWindow::tr("Waveforms"));
    TimePlot& speed = namedPlot(window, "speedPlot", MainWindow::tr("Speed"));
    auto* link = new TimeLink(window.bench(), waveforms, speed, window.markedStretch(), &waveforms);
    addWayTo(window,
             window.addDock("waveformDock", waveforms.accessibleName(), Qt::RightDockWidgetArea,
                            waveforms, true),
             Qt::ALT | Qt::Key_4);
    addWayTo(
        window,
        window.addDock("speedDock", speed.accessibleName(), Qt::RightDockWidgetArea, speed, true),
        Qt::ALT | Qt::Key_5);
    followCurrent(window, *link);
}

void addNumbers(MainWindow& window) {
    auto* table = new NumberTable(&window);
    auto* link = new NumberLink(window.bench(), *table, table);
    followCurrent(window, *link);
    addWayTo(
        window,
        window.addDock("numberDock", MainWindow::tr("Numbers"), Qt::RightDockWidgetArea, *table),
        Qt::ALT | Qt::Key_3);
}

}  // namespace

void addDocks(MainWindow& window) {
    // Two columns beside the orbits, which have the height of the window: four of them can be read
    // at 1280 x 800. A dock that is moved below them leaves the columns whole.
    window.setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    window.setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    addChannels(window);
    addProperties(window);
    addNumbers(window);
    addPlots(window);
}

}  // namespace Rotavue::Workbench
