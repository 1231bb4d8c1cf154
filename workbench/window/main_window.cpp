#include "workbench/window/main_window.h"

#include "workbench/bench/axis_limits.h"
#include "workbench/files/usable.h"
#include "workbench/window/about_box.h"
#include "workbench/window/app_settings.h"
#include "workbench/window/undo_actions.h"
#include "workbench/window/window_parts.h"

#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QFileInfo>
#include <QMenuBar>
#include <QShortcut>
#include <QStatusBar>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace Rotavue::Workbench {

namespace {

/// Grows when docks come or go or have other first places, so that an old layout is not forced on
/// new docks.
constexpr int LayoutVersion = 2;

constexpr const char* GeometryKey = "window/geometry";
constexpr const char* LayoutKey = "window/layout";
constexpr const char* ThemeKey = "window/theme";

constexpr QSize UsualSize{1280, 800};

}  // namespace

MainWindow::MainWindow(std::shared_ptr<HostKit::Module> module)
    : bench_(std::move(module)),
      tiles_(bench_),
      transport_(bench_, tiles_),
      facts_(bench_, tiles_, *statusBar()),
      scaleLock_(bench_) {
    setObjectName("mainWindow");
    qApp->installEventFilter(&plainKeys_);
    setDockNestingEnabled(true);
    resize(UsualSize);
    makeCentre();
    makeMenus();
    addWindowParts(*this);
    makeViewMenu();
    makeHelpMenu();
    makeToolTips();
    sizeDocks();
    firstLayout_ = saveState(LayoutVersion);
    connect(&bench_, &Bench::planesChanged, this, &MainWindow::showTitle);
    connect(&bench_, &Bench::planesChanged, this, &MainWindow::enableActions);
    enableActions();
    connect(&bench_.undoStack(), &QUndoStack::cleanChanged, this, &MainWindow::showTitle);
    setTheme(themeNamed(appSettings()->value(ThemeKey).toString()));
    showTitle();
}

MainWindow::~MainWindow() {
    bench_.disconnect(this);
    bench_.undoStack().disconnect(this);
}

void MainWindow::makeCentre() {
    centre_ = new QWidget(this);
    auto* column = new QVBoxLayout(centre_);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2);
    column->addWidget(&tiles_, 1);
    column->addWidget(&transport_);
    setCentralWidget(centre_);
}

void MainWindow::addBar(QWidget& bar) {
    static_cast<QVBoxLayout*>(centre_->layout())->insertWidget(0, &bar);
}

QAction& MainWindow::addAction(QMenu& menu, const QString& name, const QString& text,
                               const QKeySequence& key, std::function<void()> run) {
    QAction* action = menu.addAction(text);
    action->setObjectName(name);
    action->setShortcut(key);
    const QString words = QString(text).remove('&');
    action->setToolTip(key.isEmpty() ? words
                                     : words + " (" + key.toString(QKeySequence::NativeText) + ')');
    connect(action, &QAction::triggered, this, std::move(run));
    return *action;
}

void MainWindow::makeMenus() {
    fileMenu_ = menuBar()->addMenu(tr("&File"));
    editMenu_ = menuBar()->addMenu(tr("&Edit"));
    viewMenu_ = menuBar()->addMenu(tr("&View"));
    timeMenu_ = menuBar()->addMenu(tr("&Time"));
    helpMenu_ = menuBar()->addMenu(tr("&Help"));
    for (QMenu* menu : {fileMenu_, editMenu_, viewMenu_, timeMenu_, helpMenu_})
        menu->setToolTipsVisible(true);
    addUndoActions(*editMenu_, bench_.steps());
    editMenu_->addSeparator();
    timeMenu_->addActions(transport_.timeActions());
}

void MainWindow::makeViewMenu() {
    addAction(*viewMenu_, "nextPlane", tr("&Next plane"), Qt::CTRL | Qt::Key_Tab,
              [this] { tiles_.step(1); });
    addAction(*viewMenu_, "previousPlane", tr("&Previous plane"),
              Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, [this] { tiles_.step(-1); });
    addAloneAction();
    addPlotActions();
    makeThemeMenu();
    viewMenu_->addSeparator();
    for (QDockWidget* dock : findChildren<QDockWidget*>())
        viewMenu_->addAction(dock->toggleViewAction());
    addAction(*viewMenu_, "resetLayout", tr("&Reset layout"), {}, [this] { resetLayout(); });
    fileMenu_->addSeparator();
    addAction(*fileMenu_, "closePlane", tr("&Close plane"), QKeySequence::Close,
              [this] { closeCurrent(); });
    addAction(*fileMenu_, "quit", tr("&Quit"), QKeySequence::Quit, [this] { close(); });
}

void MainWindow::addAloneAction() {
    QAction& alone = addAction(*viewMenu_, "planeAlone", tr("Current plane al&one"),
                               Qt::CTRL | Qt::Key_M, [] {});
    alone.setCheckable(true);
    connect(&alone, &QAction::triggered, &tiles_, &OrbitTiles::setAlone);
    connect(&tiles_, &OrbitTiles::aloneChanged, &alone, &QAction::setChecked);
    // Wherever the focus is, but in an editor; while none is alone the key is anybody's.
    auto* end = new QShortcut(Qt::Key_Escape, this, [this] { tiles_.setAlone(false); });
    end->setEnabled(false);
    connect(&tiles_, &OrbitTiles::aloneChanged, end, &QShortcut::setEnabled);
}

void MainWindow::addPlotActions() {
    addAction(*viewMenu_, "equalAxes", tr("One scale for both &axes"), Qt::CTRL | Qt::Key_E,
              [this] {
                  if (!facts_.makeEqual())
                      statusBar()->showMessage(tr("The axes have one scale already."));
              });
    addAction(*viewMenu_, "editLimits", tr("Edit the &limits"), Qt::Key_F2, [this] {
        if (OrbitView* view = tiles_.viewOf(currentPlane())) view->editLimits();
    });
    addFitAction("fitAcross", tr("&Fit the axis across to the data"), Qt::Key_F3,
                 OrbitView::Axis::Across);
    addFitAction("fitUpright", tr("Fit the &upright axis to the data"), Qt::SHIFT | Qt::Key_F3,
                 OrbitView::Axis::Upright);
    QAction& lock = addAction(*viewMenu_, "lockScale", tr("Lock one scale over all &planes"),
                              Qt::CTRL | Qt::Key_L, [] {});
    lock.setCheckable(true);
    connect(&lock, &QAction::triggered, this, &MainWindow::lockScale);
    connect(&scaleLock_, &ScaleLock::changed, this, [this, &lock](bool on) {
        lock.setChecked(on);
        enableActions();
    });
    connect(&scaleLock_, &ScaleLock::released, this, [this] {
        statusBar()->showMessage(tr("The scale is automatic again, each plane has its own."));
    });
    addAction(*viewMenu_, "notes", tr("N&otes of the plane"), Qt::CTRL | Qt::SHIFT | Qt::Key_N,
              [this] {
                  if (OrbitTile* tile = tiles_.tileOf(currentPlane())) tile->toggleNotes();
              });
}

void MainWindow::addFitAction(const QString& name, const QString& text, const QKeySequence& key,
                              OrbitView::Axis axis) {
    addAction(*viewMenu_, name, text, key, [this, axis] {
        OrbitView* view = tiles_.viewOf(currentPlane());
        if (view == nullptr) return;
        if (!axisLimits(view->plane()).manual)
            return statusBar()->showMessage(
                tr("The scale is automatic: it fits the data by itself."));
        view->fitAxis(axis);
    });
}

void MainWindow::lockScale(bool on) {
    Plane* const plane = currentPlane();
    if (on && plane != nullptr) return scaleLock_.turnOn(*plane);
    scaleLock_.turnOff();
}

void MainWindow::makeThemeMenu() {
    QMenu* menu = viewMenu_->addMenu(tr("&Theme"));
    auto* group = new QActionGroup(this);
    const std::array names{std::pair{Theme::System, tr("As the &system")},
                           std::pair{Theme::Light, tr("&Light")},
                           std::pair{Theme::Dark, tr("&Dark")}};
    for (const auto& [theme, text] : names) {
        QAction& action =
            addAction(*menu, "theme." + wordOf(theme), text, {}, [this, chosen = theme] {
                setTheme(chosen);
                appSettings()->setValue(ThemeKey, wordOf(chosen));
            });
        action.setCheckable(true);
        group->addAction(&action);
    }
}

void MainWindow::makeHelpMenu() {
    addAction(*helpMenu_, "about", tr("&About"), {}, [this] { showAbout(); });
}

QDockWidget& MainWindow::addDock(const QString& name, const QString& title, Qt::DockWidgetArea area,
                                 QWidget& content, bool below) {
    auto* dock = new QDockWidget(title, this);
    dock->setObjectName(name);
    dock->setWidget(&content);
    const auto docks = findChildren<QDockWidget*>();
    const auto neighbour = std::find_if(docks.begin(), docks.end(), [&](QDockWidget* other) {
        return other != dock && dockWidgetArea(other) == area;
    });
    addDockWidget(area, dock);
    if (neighbour == docks.end() || below) return *dock;
    tabifyDockWidget(*neighbour, dock);
    (*neighbour)->raise();
    return *dock;
}

// The orbits have most of the room.
void MainWindow::sizeDocks() {
    constexpr int LeftWidth = 270;
    constexpr int RightWidth = 336;  // the numbers of two planes
    const QList<int> rightHeights{310, 260, 150};
    QList<QDockWidget*> right;
    for (QDockWidget* dock : findChildren<QDockWidget*>()) {
        const bool isLeft = dockWidgetArea(dock) == Qt::LeftDockWidgetArea;
        resizeDocks({dock}, {isLeft ? LeftWidth : RightWidth}, Qt::Horizontal);
        if (!isLeft) right += dock;
    }
    resizeDocks(right, rightHeights.first(right.size()), Qt::Vertical);
}

void MainWindow::addCloseCheck(std::function<bool()> mayClose) {
    closeChecks_.push_back(std::move(mayClose));
}

void MainWindow::setTheme(Theme theme) {
    theme_ = theme;
    bench_.setScheme(apply(theme, *qApp));
    if (auto* action = findChild<QAction*>("theme." + wordOf(theme))) action->setChecked(true);
}

void MainWindow::restoreLayout() {
    const auto settings = appSettings();
    restoreGeometry(settings->value(GeometryKey).toByteArray());
    restoreState(settings->value(LayoutKey).toByteArray(), LayoutVersion);
}

void MainWindow::resetLayout() {
    restoreState(firstLayout_, LayoutVersion);
}

void MainWindow::saveLayout() const {
    const auto settings = appSettings();
    settings->setValue(GeometryKey, saveGeometry());
    settings->setValue(LayoutKey, saveState(LayoutVersion));
}

// An action of a part that brings a key of its own says it like all others.
void MainWindow::makeToolTips() {
    for (QAction* action : findChildren<QAction*>()) {
        const QString key = action->shortcut().toString(QKeySequence::NativeText);
        if (key.isEmpty() || action->toolTip().contains(key)) continue;
        action->setToolTip(action->toolTip() + " (" + key + ')');
    }
}

void MainWindow::setViewName(const QString& file) {
    viewName_ = QFileInfo(file).fileName();
    showTitle();
}

void MainWindow::showTitle() {
    QStringList names;
    for (const auto& plane : bench_.planes())
        names += QString::fromStdString(bench_.titleOf(*plane).text());
    if (!viewName_.isEmpty()) names = {viewName_};
    setWindowTitle("[*]" + (names.isEmpty() ? QString() : names.join(", ") + " - ") + "Rotavue");
    setWindowModified(!bench_.undoStack().isClean());
}

void MainWindow::enableActions() {
    const std::size_t planes = bench_.planes().size();
    const auto need = [&](const char* name, std::size_t least, const QString& why) {
        if (auto* action = findChild<QAction*>(name)) setUsable(*action, planes >= least, why);
    };
    for (const char* name :
         {"equalAxes", "editLimits", "fitAcross", "fitUpright", "notes", "closePlane", "play",
          "start", "back", "forward", "end", "backMany", "forwardMany"})
        need(name, 1, tr("nothing is open"));
    for (const char* name : {"nextPlane", "previousPlane", "planeAlone"})
        need(name, 2, tr("there are no two planes"));
    need("lockScale", scaleLock_.isOn() ? 0 : 2, tr("there are no two planes"));
}

void MainWindow::closeCurrent() {
    if (Plane* plane = currentPlane()) bench_.removePlane(*plane);
}

void MainWindow::showAbout() {
    auto* box = new AboutBox(diagnostics(), this);
    box->open();
}

QString MainWindow::diagnostics() const {
    return diagnosticsText(*this);
}

void MainWindow::closeEvent(QCloseEvent* event) {
    tiles_.cancelEditing();
    for (const auto& mayClose : closeChecks_) {
        if (mayClose()) continue;
        event->ignore();
        return;
    }
    bench_.playback().pause();
    saveLayout();
    event->accept();
}

}  // namespace Rotavue::Workbench
