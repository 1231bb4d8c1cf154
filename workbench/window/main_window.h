#pragma once

#include "workbench/bench/bench.h"
#include "workbench/window/docks/marked_stretch.h"
#include "workbench/window/orbit_tiles.h"
#include "workbench/window/plain_keys.h"
#include "workbench/window/scale_lock.h"
#include "workbench/window/status_facts.h"
#include "workbench/window/theme.h"
#include "workbench/window/transport.h"

#include <QMainWindow>

#include <functional>

class QDockWidget;

namespace Rotavue::Workbench {

/// The window: a bench in the middle, the transport below it, docks round it, menus above. What it
/// is made of beyond that comes from the parts (window_parts.h), which find here all that they
/// need: the bench, the current plane, the menus, and a place for their docks.
///
/// Docks and the window's own place are remembered, see `saveLayout`.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit MainWindow(std::shared_ptr<HostKit::Module> module);
    ~MainWindow() override;

    Bench& bench() { return bench_; }
    OrbitTiles& tiles() { return tiles_; }

    /// The plane that docks and actions speak of; null on an empty bench. `OrbitTiles` has a signal
    /// for its change.
    Plane* currentPlane() const { return tiles_.current(); }

    /// The one stretch of time that the user has marked.
    MarkedStretch& markedStretch() { return stretch_; }

    // The menus, in their order. A part adds its actions at the end of one.

    QMenu& fileMenu() { return *fileMenu_; }
    QMenu& editMenu() { return *editMenu_; }
    QMenu& viewMenu() { return *viewMenu_; }
    QMenu& timeMenu() { return *timeMenu_; }
    QMenu& helpMenu() { return *helpMenu_; }

    /// Adds an action with its key, which also stands in its tool tip. `name` is its object name.
    QAction& addAction(QMenu& menu, const QString& name, const QString& text,
                       const QKeySequence& key, std::function<void()> run);

    /// Puts a widget into a dock of the window. `name` is its object name, by which the layout
    /// remembers it; the menu of the view shows and hides it. Docks of one area lie behind each
    /// other as tabs unless `below`.
    QDockWidget& addDock(const QString& name, const QString& title, Qt::DockWidgetArea area,
                         QWidget& content, bool below = false);

    /// A widget of the whole width between the menus and the docks, for messages to the user.
    void addBar(QWidget& bar);

    /// Asked, one after the other, before the window closes; the first that says no keeps it open.
    void addCloseCheck(std::function<bool()> mayClose);

    /// The file that the window's view is saved in; its name stands in the title.
    void setViewName(const QString& file);

    Theme theme() const { return theme_; }
    void setTheme(Theme theme);

    /// Docks and window go where they were when the program ended, or where they are at first.
    void restoreLayout();
    void resetLayout();
    void saveLayout() const;

    /// What a fault report should tell: versions, platform, screen.
    QString diagnostics() const;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void makeMenus();
    void makeViewMenu();
    void addAloneAction();
    void addPlotActions();
    void addFitAction(const QString& name, const QString& text, const QKeySequence& key,
                      OrbitView::Axis axis);
    void makeThemeMenu();
    void makeHelpMenu();
    void makeCentre();
    void sizeDocks();
    void makeToolTips();
    void showTitle();
    void enableActions();
    void lockScale(bool on);
    void closeCurrent();
    void showAbout();

    Bench bench_;
    MarkedStretch stretch_;
    OrbitTiles tiles_;
    Transport transport_;
    StatusFacts facts_;
    ScaleLock scaleLock_;
    PlainKeys plainKeys_;
    QMenu* fileMenu_ = nullptr;
    QMenu* editMenu_ = nullptr;
    QMenu* viewMenu_ = nullptr;
    QMenu* timeMenu_ = nullptr;
    QMenu* helpMenu_ = nullptr;
    QWidget* centre_ = nullptr;
    std::vector<std::function<bool()>> closeChecks_;
    QByteArray firstLayout_;
    QString viewName_;
    Theme theme_ = Theme::System;
};

}  // namespace Rotavue::Workbench
