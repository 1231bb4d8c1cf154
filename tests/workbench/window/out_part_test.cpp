#include "workbench/window/out_part.h"

#include "tests/workbench/window/window_fixture.h"
#include "workbench/export/export_dialog.h"

#include <QClipboard>
#include <QFile>
#include <QLabel>
#include <QTemporaryDir>

#include <algorithm>

namespace Rotavue::Workbench {
namespace {

class OutPartTest : public WindowTest {
protected:
    bool saysOverTheOrbit(const QString& words) {
        settle();
        const auto labels = window_.tiles().findChildren<QLabel*>("facts");
        return std::any_of(labels.begin(), labels.end(),
                           [&](const QLabel* label) { return label->text().contains(words); });
    }

    /// The dialog that the key opens.
    ExportDialog* dialogOf(Qt::Key key) {
        QTest::keyClick(&window_, key, Qt::ControlModifier | Qt::ShiftModifier);
        for (auto* one : window_.findChildren<QDialog*>())
            if (auto* dialog = dynamic_cast<ExportDialog*>(one); dialog && dialog->isVisible())
                return dialog;
        return nullptr;
    }

    QTemporaryDir folder_;
};

TEST_F(OutPartTest, RunOutOfTheMarkedStretchIsTakenAwayAndToldOverTheOrbit) {
    Plane& plane = open().plane();
    EXPECT_FALSE(action("takeRunOut").isEnabled());
    window_.markedStretch().set(TimeSpan{0.2, 1.0});
    ASSERT_TRUE(action("takeRunOut").isEnabled());
    action("takeRunOut").trigger();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !plane.compensation().empty(); }));
    EXPECT_TRUE(saysOverTheOrbit("run-out compensated: 1X, 2X vector"));
    EXPECT_TRUE(action("compensateVector").isChecked());
    bench().undoStack().undo();
    EXPECT_FALSE(saysOverTheOrbit("run-out compensated"));
}

TEST_F(OutPartTest, KeysCopyTheNumbersOfTheOrbit) {
    OrbitView& view = open();
    view.setFocus();
    QTest::keyClick(&view, Qt::Key_C, Qt::ControlModifier);
    settle();
    EXPECT_TRUE(QGuiApplication::clipboard()->text().startsWith("Bearing 1 (um)"));
}

TEST_F(OutPartTest, KeysCopyThePictureOfTheOrbit) {
    open();
    QTest::keyClick(&window_, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    ASSERT_TRUE(QTest::qWaitFor([] { return !QGuiApplication::clipboard()->image().isNull(); }));
    EXPECT_TRUE(hasColor(
        QGuiApplication::clipboard()->image().convertToFormat(QImage::Format_RGB32), 0xFF0072B2));
}

TEST_F(OutPartTest, PictureLeavesTheWindow) {
    const QString file = folder_.filePath("orbit.png");
    open();
    ExportDialog* dialog = dialogOf(Qt::Key_E);
    ASSERT_NE(dialog, nullptr);
    dialog->width.setValue(800);
    dialog->height.setValue(600);
    dialog->file.setText(file);
    QTest::mouseClick(&dialog->save, Qt::LeftButton);
    ASSERT_TRUE(QTest::qWaitFor([&] { return QFile::exists(file); }));
    EXPECT_EQ(QImage(file).size(), QSize(800, 600));
}

TEST_F(OutPartTest, ReportPageLeavesTheWindow) {
    open(rotor("Bearing 1"));
    open(rotor("Bearing 2"));
    ExportDialog* dialog = dialogOf(Qt::Key_R);
    ASSERT_NE(dialog, nullptr);
    dialog->file.setText(folder_.filePath("report.pdf"));
    QTest::mouseClick(&dialog->save, Qt::LeftButton);
    QFile file(folder_.filePath("report.pdf"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return file.exists(); }));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().startsWith("%PDF-"));
}

}  // namespace
}  // namespace Rotavue::Workbench
