#include "workbench/export/out_actions.h"

#include "tests/workbench/bench/bench_fixture.h"
#include "tests/workbench/export/widget_test.h"
#include "tests/workbench/window/docks/dock_application.h"
#include "workbench/scene/scheme_colors.h"

#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QPointer>
#include <QTest>

namespace Rotavue::Workbench {

namespace {

class OutActionsTest : public BenchTest, protected ScratchSettings {
protected:
    OutActionsTest() { QGuiApplication::clipboard()->clear(); }

    ExportDialog& opened(QAction& action) {
        action.trigger();
        auto* const dialog = window_.findChild<ExportDialog*>();
        EXPECT_NE(dialog, nullptr);
        return *dialog;
    }

    void save(ExportDialog& dialog, const QString& name) {
        dialog.file.setText(at(name));
        press(dialog);
    }

    /// Presses the button, and waits for what is saved then; a dialog that has saved goes.
    static void press(ExportDialog& dialog) {
        const QPointer here(&dialog);
        QTest::mouseClick(&dialog.save, Qt::LeftButton);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !here || !here->isSaving(); }));
    }

    static Recording bearing(const char* name, double size) {
        Recording recording =
            generate({.orders = {{.order = 1.0, .x = {size, 0.0}, .y = {size * 0.75, 90.0}},
                                 {.order = 2.0, .x = {size / 5, 40.0}, .y = {size / 5, 10.0}}},
                      .noise = 0.3});
        recording.file = std::string(name) + ".csv";
        recording.machine.machine = "Rotor kit";
        recording.machine.point = name;
        recording.machine.rotation = Rotation::CounterClockwise;
        return recording;
    }

    QWidget window_;
    QString told_;
    Plane* current_ = nullptr;
    OutActions out_{bench_, [this] { return current_; }, [this](const QString& t) { told_ = t; },
                    [this] { return memory(); }, window_};
};

TEST_F(OutActionsTest, WithoutAPlaneThereIsNothingToTakeOut) {
    EXPECT_FALSE(out_.copyNumbers.isEnabled());
    EXPECT_FALSE(out_.exportReport.isEnabled());
    add();
    EXPECT_TRUE(out_.copyNumbers.isEnabled());
    EXPECT_TRUE(out_.exportReport.isEnabled());
}

TEST_F(OutActionsTest, NumbersAreTheTextThatTheControlCopies) {
    current_ = &add();
    out_.copyNumbers.trigger();
    const QString text = QGuiApplication::clipboard()->text();
    EXPECT_TRUE(text.startsWith("rotor (um)\r\nX\tY\r\n")) << text.left(40).toStdString();
    // Eight turns of 200 samples and a little more, a line each.
    EXPECT_GE(text.count('\n'), 1600);
    EXPECT_EQ(told_, "The numbers are on the clipboard.");
}

TEST_F(OutActionsTest, NumbersAreThoseOfTheCurrentPlane) {
    add(bearing("one", 40));
    current_ = &add(bearing("two", 40));
    out_.copyNumbers.trigger();
    EXPECT_TRUE(QGuiApplication::clipboard()->text().startsWith("two (um)"));
}

TEST_F(OutActionsTest, CopiedPictureHasTheUsualSizeAndIsLight) {
    bench_.setScheme(DarkNumber);
    current_ = &add();
    out_.copyPicture.trigger();
    out_.copyPicture.trigger();  // takes the first one's place
    ASSERT_TRUE(QTest::qWaitFor([&] { return told_ == "The picture is on the clipboard."; }));
    const QImage image = QGuiApplication::clipboard()->image();
    EXPECT_EQ(image.size(), QSize(1200, 900));
    EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::white));
}

TEST_F(OutActionsTest, ACopyThatIsCancelledLeavesTheClipboardAsItWas) {
    current_ = &add();
    QGuiApplication::clipboard()->setText("mine");
    out_.copyPicture.trigger();
    bench_.cancelWork();
    QTest::qWait(300);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "mine");
    EXPECT_EQ(told_, "");
}

TEST_F(OutActionsTest, ExportedPictureIsOfThePlaneAndToldAbout) {
    current_ = &add();
    ExportDialog& dialog = opened(out_.exportPicture);
    EXPECT_TRUE(dialog.file.text().endsWith("rotor.png")) << dialog.file.text().toStdString();
    dialog.width.setValue(800);
    dialog.height.setValue(600);
    save(dialog, "rotor.png");
    EXPECT_EQ(QImage(at("rotor.png")).size(), QSize(800, 600));
    EXPECT_EQ(told_, "Saved " + at("rotor.png"));
}

TEST_F(OutActionsTest, ExportStopsWhatPlays) {
    current_ = &add();
    bench_.playback().play();
    opened(out_.exportPicture);
    EXPECT_FALSE(bench_.playback().isPlaying());
}

TEST_F(OutActionsTest, ReportIsAnA4PageOfAllPlanes) {
    add(bearing("Bearing 1", 40));
    add(bearing("Bearing 2", 12));
    ExportDialog& dialog = opened(out_.exportReport);
    EXPECT_EQ(dialog.settings().format, PictureFormat::Pdf);
    EXPECT_EQ(dialog.settings().width, 210.0);
    dialog.format.setCurrentIndex(0);
    save(dialog, "apart.png");
    ExportDialog* next = nullptr;
    out_.exportReport.trigger();
    for (auto* one : window_.findChildren<ExportDialog*>())
        if (one->isVisible()) next = one;
    ASSERT_NE(next, nullptr);
    next->sameScale.setChecked(true);
    save(*next, "together.png");
    const QImage apart(at("apart.png"));
    EXPECT_EQ(apart.size(), QSize(794, 1123));
    EXPECT_NE(apart, QImage(at("together.png")));
}

TEST_F(OutActionsTest, LooksAsItShould) {
    add(bearing("Bearing 1", 40));
    current_ = &add(bearing("Bearing 2", 12));
    screenshot(opened(out_.exportPicture), "export-picture");
    for (auto* one : window_.findChildren<ExportDialog*>())
        delete one;
    ExportDialog& report = opened(out_.exportReport);
    report.sameScale.setChecked(true);
    report.showPreview();
    screenshot(report, "export-report");
    report.format.setCurrentIndex(0);
    report.dotsPerInch.setValue(144);
    report.file.setText(QDir(ROTAVUE_SCREENSHOTS_FOLDER).filePath("report-page.png"));
    const QPointer here(&report);
    for (int i = 0; i < 2 && here && here->isVisible(); ++i)
        press(report);
    EXPECT_TRUE(told_.endsWith("report-page.png")) << told_.toStdString();
}

TEST_F(OutActionsTest, RecordingMachineFileAndViewAreNeverReplaced) {
    Recording recording = rotor();
    recording.file = at("pump.csv").toStdString();
    current_ = &add(std::move(recording));
    out_.keepAlso([this] { return QStringList(at("pump.rotavue")); });
    ExportDialog& dialog = opened(out_.exportPicture);
    for (const char* name : {"pump.csv", "pump.machine.json", "pump.rotavue"}) {
        QFile file(at(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("kept");
        file.close();
        for (int i = 0; i < 2; ++i)
            save(dialog, name);
        EXPECT_EQ(QFileInfo(file).size(), 4) << name;
        EXPECT_TRUE(dialog.message.text().endsWith("is never replaced.")) << name;
    }
}

}  // namespace
}  // namespace Rotavue::Workbench
