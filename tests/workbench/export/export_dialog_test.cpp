#include "workbench/export/export_dialog.h"

#include "plugin/framework/host/drawing/host_brush.h"
#include "plugin/framework/host/drawing/host_pen.h"
#include "tests/workbench/export/widget_test.h"
#include "workbench/paint/painting_studio.h"

#include <QFile>
#include <QImage>
#include <QProgressBar>
#include <QTest>

#include <memory>
#include <stdexcept>
#include <thread>

namespace Rotavue::Workbench {

namespace {

using Names = std::vector<std::string>;

PaintFile empty(const PictureOrder& order, const ExportSettings&) {
    return [order](const ReadingProgress& progress) {
        PaintingStudio studio;
        return studio.open(order, {})->finish(progress);
    };
}

PaintFile failing(const PictureOrder&, const ExportSettings&) {
    throw std::runtime_error("the plug-in failed");
}

/// For the preview as `empty`, for a file without end.
PaintFile endless(const PictureOrder& order, const ExportSettings& settings) {
    if (order.scale < 1.0) return empty(order, settings);
    return [](const ReadingProgress& progress) -> std::string {
        while (true)
            progress.reach(0.5);
    };
}

class ExportDialogTest : public WidgetTest {
protected:
    ExportSubject subject(PicturePainter painter = empty) {
        return {.title = "Save the picture",
                .key = "picture",
                .folder = {},
                .name = "bearing",
                .usual = {},
                .painter = std::move(painter),
                .memory = [this] { return memory(); }};
    }

    /// Presses the button, and waits for what is saved then.
    static void press(ExportDialog& dialog) {
        QTest::mouseClick(&dialog.save, Qt::LeftButton);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !dialog.isSaving(); }));
    }

    /// Begins to save a picture that never ends.
    void begin(ExportDialog& dialog) {
        dialog.file.setText(at("orbit.png"));
        dialog.show();
        QTest::mouseClick(&dialog.save, Qt::LeftButton);
        ASSERT_TRUE(dialog.isSaving());
    }

    void writeOld(const QString& name) const {
        QFile file(at(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("old");
    }

    QByteArray read(const QString& name) const {
        QFile file(at(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
};

TEST_F(ExportDialogTest, SavesThePictureInTheSizeThatWasEntered) {
    ExportDialog dialog(subject());
    dialog.unit.setCurrentIndex(1);
    dialog.width.setValue(160);
    dialog.height.setValue(120);
    dialog.dotsPerInch.setValue(300);
    dialog.file.setText(at("orbit.png"));
    press(dialog);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(dialog.savedFile(), at("orbit.png"));
    const QImage image(at("orbit.png"));
    EXPECT_EQ(image.size(), QSize(1890, 1417));
    EXPECT_EQ(image.dotsPerMeterX(), 11811);
    EXPECT_EQ(names(), Names{"orbit.png"});
}

TEST_F(ExportDialogTest, RemembersFormAndFolder) {
    {
        ExportDialog dialog(subject());
        dialog.format.setCurrentIndex(1);
        dialog.width.setValue(640);
        dialog.header.setChecked(false);
        dialog.file.setText(at("one.svg"));
        press(dialog);
    }
    const ExportDialog next(subject());
    EXPECT_EQ(next.settings().format, PictureFormat::Svg);
    EXPECT_EQ(next.settings().width, 640);
    EXPECT_FALSE(next.settings().header);
    EXPECT_EQ(next.file.text(), at("bearing.svg"));
}

TEST_F(ExportDialogTest, FileThatIsThereIsReplacedByASecondPressAlone) {
    writeOld("orbit.png");
    ExportDialog dialog(subject());
    dialog.file.setText(at("orbit.png"));
    press(dialog);
    EXPECT_EQ(read("orbit.png"), "old");
    EXPECT_EQ(dialog.message.text(), "orbit.png is there already.");
    EXPECT_EQ(dialog.save.text(), "&Replace");
    EXPECT_TRUE(dialog.savedFile().isEmpty());
    press(dialog);
    EXPECT_TRUE(read("orbit.png").startsWith("\x89PNG"));
    EXPECT_EQ(names(), Names{"orbit.png"});
}

TEST_F(ExportDialogTest, AnotherNameIsAskedForAnew) {
    writeOld("one.png");
    writeOld("two.png");
    ExportDialog dialog(subject());
    dialog.file.setText(at("one.png"));
    press(dialog);
    dialog.file.setText(at("two.png"));
    EXPECT_EQ(dialog.save.text(), "&Save");
    press(dialog);
    EXPECT_EQ(read("two.png"), "old");
}

TEST_F(ExportDialogTest, EndingFollowsTheKind) {
    ExportDialog dialog(subject());
    dialog.file.setText(at("orbit.PNG"));
    dialog.format.setCurrentIndex(2);
    EXPECT_EQ(dialog.file.text(), at("orbit.pdf"));
    EXPECT_FALSE(dialog.dotsPerInch.isEnabled());
    dialog.format.setCurrentIndex(0);
    EXPECT_EQ(dialog.file.text(), at("orbit.png"));
    EXPECT_TRUE(dialog.dotsPerInch.isEnabled());
}

TEST_F(ExportDialogTest, AnotherUnitTellsTheSameSize) {
    ExportDialog dialog(subject());
    dialog.width.setValue(1200);
    dialog.height.setValue(960);
    // 960 / 96 inches are 254 mm.
    EXPECT_EQ(dialog.otherSize.text(), QStringLiteral("317.5 \u00d7 254.0 mm"));
    dialog.unit.setCurrentIndex(1);
    EXPECT_NEAR(dialog.width.value(), 317.5, 0.01);
    EXPECT_NEAR(dialog.height.value(), 254.0, 0.01);
    EXPECT_EQ(dialog.otherSize.text(), QStringLiteral("1200 \u00d7 960 pixels"));
    dialog.unit.setCurrentIndex(0);
    EXPECT_EQ(dialog.width.value(), 1200.0);
}

TEST_F(ExportDialogTest, PreviewHasTheShapeOfThePicture) {
    ExportDialog dialog(subject());
    dialog.width.setValue(1000);
    dialog.height.setValue(500);
    dialog.showPreview();
    const QSizeF size = dialog.preview.pixmap().deviceIndependentSize();
    EXPECT_NEAR(size.width(), 460.0, 1.0);
    EXPECT_NEAR(size.height(), 230.0, 1.0);
}

TEST_F(ExportDialogTest, PreviewShowsAllOfThePicture) {
    // Red is what lies in the lower right ninth.
    const auto corner = [](const PictureOrder& order, const ExportSettings&) {
        return [order](const ReadingProgress& progress) {
            PaintingStudio studio;
            const auto picture = studio.open(order, {});
            picture->canvas()->GetBrush()->SetColor(0xFF0000);
            picture->canvas()->GetPen()->SetColor(0xFF0000);
            picture->canvas()->Rectangle(order.width * 2 / 3, order.height * 2 / 3, order.width,
                                         order.height);
            return picture->finish(progress);
        };
    };
    for (const double side : {300.0, 900.0, 3000.0}) {
        ExportDialog dialog(subject(corner));
        dialog.width.setValue(side);
        dialog.height.setValue(side);
        dialog.showPreview();
        const QImage image = dialog.preview.pixmap().toImage();
        EXPECT_EQ(image.pixelColor(450, 450), QColor(Qt::red)) << side;
        EXPECT_EQ(image.pixelColor(320, 320), QColor(Qt::red)) << side;
        EXPECT_EQ(image.pixelColor(290, 290), QColor(Qt::white)) << side;
    }
}

TEST_F(ExportDialogTest, SizeThatCannotBeMadeIsToldAndNotSaved) {
    ExportDialog dialog(subject());
    dialog.file.setText(at("orbit.png"));
    dialog.width.setValue(20'000);
    EXPECT_EQ(dialog.message.text(), "The picture would be larger than 8192 pixels.");
    EXPECT_FALSE(dialog.save.isEnabled());
    press(dialog);
    EXPECT_TRUE(names().empty());
}

TEST_F(ExportDialogTest, FailureLeavesNoFileAndTheOldOneAsItWas) {
    writeOld("orbit.png");
    ExportDialog dialog(subject(failing));
    dialog.file.setText(at("orbit.png"));
    press(dialog);
    press(dialog);
    EXPECT_EQ(dialog.message.text(), "the plug-in failed");
    EXPECT_EQ(read("orbit.png"), "old");
    EXPECT_EQ(names(), Names{"orbit.png"});
    EXPECT_TRUE(dialog.savedFile().isEmpty());
}

TEST_F(ExportDialogTest, PlaceThatCannotBeWrittenIsToldInALine) {
    ExportDialog dialog(subject());
    dialog.file.setText(at("missing/orbit.png"));
    press(dialog);
    EXPECT_EQ(dialog.message.text(),
              at("missing/orbit.png") + " cannot be written: No such file or directory.");
    EXPECT_TRUE(dialog.savedFile().isEmpty());
    EXPECT_TRUE(names().empty());
}

TEST_F(ExportDialogTest, EscapeSavesNothing) {
    ExportDialog dialog(subject());
    dialog.file.setText(at("orbit.png"));
    dialog.show();
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
    EXPECT_TRUE(names().empty());
}

TEST_F(ExportDialogTest, WhatFailsWhileItIsPaintedIsToldAndLeavesNoFile) {
    ExportDialog dialog(subject([](const PictureOrder& order, const ExportSettings& settings) {
        if (order.scale < 1.0) return empty(order, settings);
        return PaintFile([](const ReadingProgress&) -> std::string {
            throw std::runtime_error("there is not enough memory for the picture");
        });
    }));
    dialog.file.setText(at("orbit.png"));
    press(dialog);
    EXPECT_EQ(dialog.message.text(), "there is not enough memory for the picture");
    EXPECT_TRUE(dialog.save.isEnabled());
    EXPECT_TRUE(names().empty());
}

TEST_F(ExportDialogTest, WhatTakesLongTellsHowFarItIsAndAsksForNothingElse) {
    ExportDialog dialog(subject(endless));
    begin(dialog);
    auto* const progress = dialog.findChild<QProgressBar*>("exportProgress");
    EXPECT_TRUE(progress->isHidden());
    EXPECT_FALSE(dialog.save.isEnabled());
    EXPECT_FALSE(dialog.width.isEnabled());
    ASSERT_TRUE(QTest::qWaitFor([&] { return progress->isVisible(); }));
    // Half of the painting, which is nine tenths of all.
    EXPECT_TRUE(QTest::qWaitFor([&] { return progress->value() == 450; }));
    dialog.reject();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !dialog.isSaving(); }));
    EXPECT_TRUE(progress->isHidden());
    EXPECT_TRUE(dialog.width.isEnabled());
}

TEST_F(ExportDialogTest, ACancelSavesNothingAndTheDialogStays) {
    writeOld("orbit.png");
    ExportDialog dialog(subject(endless));
    dialog.file.setText(at("orbit.png"));
    dialog.show();
    press(dialog);
    QTest::mouseClick(&dialog.save, Qt::LeftButton);  // Replace
    ASSERT_TRUE(dialog.isSaving());
    QTest::keyClick(&dialog, Qt::Key_Escape);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !dialog.isSaving(); }));
    EXPECT_EQ(dialog.message.text(), "Cancelled: nothing is saved.");
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_TRUE(dialog.save.isEnabled());
    EXPECT_EQ(read("orbit.png"), "old");
    EXPECT_EQ(names(), Names{"orbit.png"});
    EXPECT_EQ(dialog.savedFile(), "");
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(ExportDialogTest, ADialogThatGoesMeanwhileLeavesNoFile) {
    auto dialog = std::make_unique<ExportDialog>(subject(endless));
    begin(*dialog);
    dialog.reset();
    waitForEndingThreads();
    EXPECT_TRUE(names().empty());
}

TEST_F(ExportDialogTest, APictureIsDrawnOnTheWindowsThreadAndPaintedOnAnother) {
    std::thread::id drawing;
    std::thread::id painting;
    ExportDialog dialog(
        subject([&](const PictureOrder& order, const ExportSettings& settings) -> PaintFile {
            drawing = std::this_thread::get_id();
            return [&painting, paint = empty(order, settings)](const ReadingProgress& progress) {
                painting = std::this_thread::get_id();
                return paint(progress);
            };
        }));
    dialog.file.setText(at("orbit.png"));
    press(dialog);
    EXPECT_EQ(drawing, std::this_thread::get_id());
    EXPECT_NE(painting, drawing);
    EXPECT_EQ(dialog.savedFile(), at("orbit.png"));
}

// However often the button is pressed, and by whatever name.
TEST_F(ExportDialogTest, WhatThePictureIsMadeFromIsNeverReplaced) {
    writeOld("pump.png");
    ASSERT_TRUE(QFile::link(at("pump.png"), at("link.png")));
    ExportSubject made = subject();
    made.sources = {at("gone.csv"), at("pump.png")};
    ExportDialog dialog(std::move(made));
    for (const char* name : {"pump.png", "link.png"}) {
        dialog.file.setText(at(name));
        for (int i = 0; i < 3; ++i)
            press(dialog);
        EXPECT_EQ(dialog.message.text(),
                  QString(name) + " is what the picture is made from, and is never replaced.");
        EXPECT_EQ(dialog.savedFile(), "");
    }
    EXPECT_EQ(read("pump.png"), "old");
    dialog.file.setText(at("other.png"));
    press(dialog);
    EXPECT_EQ(dialog.savedFile(), at("other.png"));
}

}  // namespace
}  // namespace Rotavue::Workbench
