#include "host_kit/memory/operation.h"
#include "tests/workbench/window/window_fixture.h"
#include "workbench/export/export_dialog.h"
#include "workbench/files/file_actions.h"
#include "workbench/files/import_dialog.h"

#include <QClipboard>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDockWidget>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string>
#include <vector>

namespace Rotavue::Workbench {
namespace {

constexpr int SamplesPerTurn = 40;   // of 9 degrees
constexpr double SampleRate = 1000;  // Hz, so that a turn takes 40 ms: 1500 rpm
constexpr int Turns = 50;
constexpr double Radius = 40.0;  // um

/// Types into the file dialog that opens next, and accepts it. False where none came.
class FileDialogUser {
public:
    explicit FileDialogUser(const QString& file) : file_(file) {
        QObject::connect(&timer_, &QTimer::timeout, [this] { look(); });
        timer_.start(20);
    }

    bool done() const { return done_; }

private:
    // A name that is typed letter by letter takes the dialog through the folders on its way.
    void look() {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || !dialog->isVisible()) return;
        auto* name = dialog->findChild<QLineEdit*>("fileNameEdit");
        QGuiApplication::clipboard()->setText(file_);
        QTest::keyClick(name, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(name, Qt::Key_V, Qt::ControlModifier);
        const bool saves = dialog->acceptMode() == QFileDialog::AcceptSave;
        auto* box = dialog->findChild<QDialogButtonBox*>();
        auto* accept = box->button(saves ? QDialogButtonBox::Save : QDialogButtonBox::Open);
        done_ = true;
        QTest::mouseClick(accept, Qt::LeftButton);
    }

    QString file_;
    QTimer timer_;
    bool done_ = false;
};

/// One window and what a person does in it, by keys and pointer alone.
class Desk {
public:
    Desk() {
        window.resize(1280, 800);
        window.setTheme(Theme::Light);
        window.show();
        comeBack();
    }

    /// To the window, from a dialog: this display has no window manager that would do it.
    void comeBack() {
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        settle();
    }

    static void settle() {
        for (int round = 0; round < 3; ++round)
            QApplication::processEvents();
    }

    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        settle();
    }

    /// Alt+F and the entry's letter.
    void fileMenu(Qt::Key letter, const QString& file) {
        const FileDialogUser user(file);
        QTest::keyClick(&window, Qt::Key_F, Qt::AltModifier);
        ASSERT_TRUE(QTest::qWaitFor([&] { return window.fileMenu().isVisible(); }));
        QTest::keyClick(&window.fileMenu(), letter);
        EXPECT_TRUE(user.done());
        comeBack();
    }

    template <class Widget>
    Widget& part(const char* name) {
        auto* found = window.findChild<Widget*>(name);
        EXPECT_NE(found, nullptr) << name;
        return *found;
    }

    Bench& bench() { return window.bench(); }
    Plane& plane() { return *window.currentPlane(); }
    OrbitView& view() { return *window.tiles().viewOf(&plane()); }

    /// What the control draws with all that it knows now, a line for each call.
    std::vector<std::string> drawn() {
        HostKit::MemoryHost& host = plane().host();
        host.record(HostKit::groups({HostKit::CallGroup::Draw}));
        plane().control().draw(host.canvas(), view().width(), view().height(), bench().scheme());
        view().repaint();
        return host.takeCalls();
    }

    /// The text that holds such words, as the control draws it; empty where there is none.
    std::string textWith(const std::string& words) {
        for (const std::string& line : drawn())
            if (line.find(words) != std::string::npos) return line;
        return {};
    }

    QImage picture() {
        settle();
        return view().grab().toImage().convertToFormat(QImage::Format_RGB32);
    }

    MainWindow window{std::make_shared<HostKit::Module>(ROTAVUE_MODULE_FILE)};
};

class EngineerAfternoon : public testing::Test {
protected:
    /// Four columns whose names say nothing. The shaft runs on a circle against the clock; the
    /// probes stand 45 degrees right and left of the top, so that it is toward X at the mark.
    QString ownRecording() const {
        QFile file(folder_.filePath("pump.csv"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("ch1,ch2,ch3,ch4\n");
        for (int i = 0; i < Turns * SamplesPerTurn; ++i) {
            const double degrees = 360.0 / SamplesPerTurn * (i % SamplesPerTurn);
            const double angle = degrees * std::numbers::pi / 180.0;
            file.write(QStringLiteral("%1,%2,%3,%4\n")
                           .arg(i / SampleRate)
                           .arg(Radius * std::cos(angle), 0, 'f', 6)
                           .arg(Radius * std::sin(angle), 0, 'f', 6)
                           .arg(degrees)
                           .toUtf8());
        }
        return file.fileName();
    }

    /// The import dialog asks what the columns are, and gets its answer by keys.
    static void answer(ImportDialog& dialog) {
        const std::pair<const char*, const char*> words[] = {
            {"role1", "time"},      {"role2", "X"},       {"role3", "Y"},
            {"role4", "keyphasor"}, {"/rotation", "CCW"}, {"/keyphasor/kind", "ramp"},
        };
        for (const auto& [name, text] : words)
            QTest::keyClicks(dialog.findChild<QComboBox*>(name), text);
        const std::pair<const char*, const char*> fields[] = {
            {"/unit", "um"},        {"/x/angle", "45 R"},    {"/y/angle", "45 L"},
            {"/machine", "Pump 3"}, {"/point", "Bearing 1"},
        };
        for (const auto& [name, text] : fields)
            QTest::keyClicks(dialog.findChild<QLineEdit*>(name), text);
        auto* open = dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open);
        QTest::mouseClick(open, Qt::LeftButton);
    }

    void openOwn(Desk& desk) {
        desk.fileMenu(Qt::Key_O, ownRecording());
        ImportDialog* dialog = nullptr;
        ASSERT_TRUE(QTest::qWaitFor(
            [&] { return (dialog = desk.window.findChild<ImportDialog*>()) != nullptr; }));
        answer(*dialog);
        ASSERT_TRUE(QTest::qWaitFor([&] { return desk.window.currentPlane() != nullptr; }));
        desk.comeBack();
    }

    static void play(Desk& desk) {
        desk.view().setFocus();
        desk.key(Qt::Key_Home);
        EXPECT_EQ(desk.bench().cursor(), 0.0);
        QSignalSpy frames(&desk.view(), &OrbitView::drawn);
        desk.key(Qt::Key_Space);
        EXPECT_EQ(desk.plane().state(), HostState::Acquiring);
        EXPECT_TRUE(QTest::qWaitFor([&] { return desk.bench().cursor() > 0.4; }));
        EXPECT_GT(frames.count(), 1);
        desk.key(Qt::Key_Space);
        EXPECT_EQ(desk.plane().state(), HostState::Stored);
        const double paused = desk.bench().cursor();
        QTest::qWait(50);
        EXPECT_EQ(desk.bench().cursor(), paused);
        EXPECT_LT(paused, 1.999);
        // The next mark: the angle starts anew every 40 ms.
        desk.key(Qt::Key_Right);
        EXPECT_NEAR(desk.bench().cursor(), (std::floor(paused / 0.04) + 1) * 0.04, 1e-6);
    }

    static void leaveThePlot(Desk& desk) {
        QWidget& elsewhere = *desk.window.statusBar();
        ASSERT_TRUE(putPointer(elsewhere, elsewhere.rect().center()));
        Desk::settle();
    }

    // The plot's middle is the view's. To the right of it the nearest sample is the one of 315
    // degrees, 45 before the X probe at 45 R: x = 40 um, y = 0. The samples beside it are 6 um
    // away.
    static void hover(Desk& desk) {
        OrbitView& view = desk.view();
        leaveThePlot(desk);
        EXPECT_EQ(desk.textWith("X= "), "");
        ASSERT_TRUE(putPointer(view, view.rect().center() + QPoint(view.height() / 4, 0)));
        Desk::settle();
        EXPECT_NE(desk.textWith("\"X= 40.0 um; Y= 0.0 um; \""), "") << desk.textWith("X= ");
        leaveThePlot(desk);
        EXPECT_EQ(desk.textWith("X= "), "");
    }

    static void editLimit(Desk& desk) {
        desk.view().setFocus();
        // An editor that does not open must not hold the test.
        QTimer::singleShot(5000, &desk.view(), [&] { desk.view().editor().cancel(); });
        bool edited = false;
        QTimer::singleShot(0, &desk.view(), [&] {
            LimitEditor& editor = desk.view().editor();
            ASSERT_TRUE(editor.isEditing());
            edited = true;
            QTest::keyClicks(&editor, "-60");
            QTest::keyClick(&editor, Qt::Key_Return);
        });
        desk.key(Qt::Key_F2);
        EXPECT_TRUE(edited);
        expectLimits(desk);
    }

    /// One limit of an absolute scale sets all four.
    static void expectLimits(Desk& desk) {
        const AxisLimits limits = axisLimits(desk.plane());
        EXPECT_TRUE(limits.manual);
        EXPECT_DOUBLE_EQ(limits.xMin, -60.0);
        EXPECT_DOUBLE_EQ(limits.xMax, 60.0);
        EXPECT_DOUBLE_EQ(limits.yMin, -60.0);
        EXPECT_DOUBLE_EQ(limits.yMax, 60.0);
    }

    static void switchToCircle(Desk& desk) {
        const QImage grid = desk.picture();
        desk.key(Qt::Key_2, Qt::AltModifier);
        auto& type = desk.part<QComboBox>("GraphType");
        desk.part<QDockWidget>("propertyDock").findChild<QTabWidget*>()->tabBar()->setFocus();
        desk.key(Qt::Key_Right);
        ASSERT_TRUE(type.isVisible());
        type.setFocus();
        desk.key(Qt::Key_Down);
        EXPECT_EQ(desk.plane().settings().at(L"graphType"), L"1");
        EXPECT_GT(differences(grid, desk.picture()), 1000);
    }

    void saveView(Desk& desk) const {
        EXPECT_TRUE(desk.window.isWindowModified());
        desk.fileMenu(Qt::Key_S, folder_.filePath("pump.rotavue"));
        EXPECT_TRUE(QFile::exists(folder_.filePath("pump.rotavue")));
        EXPECT_FALSE(desk.window.isWindowModified());
        EXPECT_TRUE(desk.window.windowTitle().contains("pump.rotavue"));
    }

    void expectTheSame(Desk& again, Desk& before) const {
        ASSERT_TRUE(QTest::qWaitFor([&] { return again.window.currentPlane() != nullptr; }));
        leaveThePlot(again);
        expectLimits(again);
        EXPECT_EQ(again.plane().settings().at(L"graphType"), L"1");
        EXPECT_EQ(again.plane().settings(), before.plane().settings());
        EXPECT_DOUBLE_EQ(again.bench().cursor(), before.bench().cursor());
        ASSERT_EQ(again.view().size(), before.view().size());
        EXPECT_EQ(again.drawn(), before.drawn());
        EXPECT_EQ(differences(again.picture(), before.picture()), 0);
    }

    // 210 mm are 595.3 points of 1/72 inch, 297 mm are 841.9; a page is exact to a point.
    void saveReport(Desk& desk) const {
        const QString report = folder_.filePath("pump.pdf");
        QTest::keyClick(&desk.window, Qt::Key_R, Qt::ControlModifier | Qt::ShiftModifier);
        ExportDialog* dialog = nullptr;
        ASSERT_TRUE(QTest::qWaitFor([&] {
            dialog = dynamic_cast<ExportDialog*>(QApplication::activeWindow());
            return dialog != nullptr;
        }));
        dialog->file.selectAll();
        QTest::keyClicks(&dialog->file, report);
        QTest::mouseClick(&dialog->save, Qt::LeftButton);
        QFile file(report);
        ASSERT_TRUE(QTest::qWaitFor([&] { return file.exists(); }));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        EXPECT_TRUE(bytes.startsWith("%PDF-"));
        const QRegularExpression box(R"(/MediaBox \[0 0 (\d+)\S* (\d+)\S*\])");
        const auto found = box.match(QString::fromLatin1(bytes));
        ASSERT_TRUE(found.hasMatch());
        EXPECT_NEAR(found.captured(1).toDouble(), 595.3, 1.0);
        EXPECT_NEAR(found.captured(2).toDouble(), 841.9, 1.0);
    }

    QTemporaryDir folder_;
};

TEST_F(EngineerAfternoon, FromAFileOfTheirOwnToAReportPage) {
    Desk desk;
    openOwn(desk);
    EXPECT_TRUE(hasColor(desk.picture(), 0xFF0072B2));
    play(desk);
    hover(desk);
    editLimit(desk);
    switchToCircle(desk);
    saveView(desk);
    Desk again;
    again.fileMenu(Qt::Key_O, folder_.filePath("pump.rotavue"));
    expectTheSame(again, desk);
    saveReport(again);
    keepScreenshot(again.window, "afternoon");
}

}  // namespace
}  // namespace Rotavue::Workbench
