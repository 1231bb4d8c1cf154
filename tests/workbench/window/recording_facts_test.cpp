#include "tests/workbench/window/window_fixture.h"
#include "workbench/files/file_actions.h"
#include "workbench/files/import_dialog.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTemporaryDir>

#include <cmath>
#include <numbers>

namespace Rotavue::Workbench {
namespace {

// A person with a file of their own, whose names tell the columns and nothing else. X leads Y by a
// quarter turn: the shaft's centre goes from the right to the top, against the clock.
class RecordingFactsTest : public WindowTest {
protected:
    RecordingFactsTest() {
        QFile file(folder_.filePath("own.csv"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("t,x,y,phi\n");
        for (int i = 0; i < 2000; ++i) {
            const double turn = 2.0 * std::numbers::pi * i / 50.0;
            file.write(QStringLiteral("%1,%2,%3,%4\n")
                           .arg(i * 1e-3)
                           .arg(20.0 * std::cos(turn))
                           .arg(20.0 * std::sin(turn))
                           .arg(i % 50 * 7.2)
                           .toUtf8());
        }
        file.close();
        window_.findChild<FileActions*>("files")->open({file.fileName()});
        EXPECT_TRUE(QTest::qWaitFor([&] { return !bench().planes().empty(); }));
        settle();
    }

    ImportDialog* asked() {
        ImportDialog* dialog = nullptr;
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return (dialog = window_.findChild<ImportDialog*>()) != nullptr; }));
        return dialog;
    }

    QTemporaryDir folder_;
};

TEST_F(RecordingFactsTest, AreToldFromTheFileMenuAndShownAtOnce) {
    QTest::keyClick(&window_, Qt::Key_F, Qt::AltModifier);
    ASSERT_TRUE(QTest::qWaitFor([&] { return window_.fileMenu().isVisible(); }));
    QTest::keyClick(&window_.fileMenu(), Qt::Key_H);
    ImportDialog* dialog = asked();
    ASSERT_TRUE(dialog);
    QTest::keyClicks(dialog->findChild<QLineEdit*>("/unit"), "um");
    QTest::keyClicks(dialog->findChild<QLineEdit*>("/x/angle"), "45 R");
    QTest::keyClicks(dialog->findChild<QLineEdit*>("/y/angle"), "45 L");
    QTest::keyClicks(dialog->findChild<QComboBox*>("/rotation"), "CCW");
    keepScreenshot(*dialog, "recording-facts");
    const Plane* before = window_.currentPlane();
    dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open)->click();
    ASSERT_TRUE(QTest::qWaitFor([&] { return window_.currentPlane() != before; }));
    ASSERT_EQ(bench().planes().size(), 1U);
    EXPECT_EQ(window_.currentPlane(), bench().planes()[0].get());
    const MachineFacts& facts = window_.currentPlane()->original().recording.machine;
    EXPECT_EQ(facts.unit, "um");
    EXPECT_EQ(facts.yAngle, 315.0);
    EXPECT_EQ(facts.rotation, Rotation::CounterClockwise);
    EXPECT_TRUE(QFile::exists(folder_.filePath("own.machine.json")));
    EXPECT_TRUE(window_.isWindowModified());
}

TEST_F(RecordingFactsTest, AreAskedForByTheKeyOfTheMenu) {
    QTest::keyClick(&window_, Qt::Key_I, Qt::ControlModifier);
    ImportDialog* dialog = asked();
    ASSERT_TRUE(dialog);
    EXPECT_TRUE(dialog->windowTitle().contains("own.csv"));
    QTest::keyClick(dialog, Qt::Key_Escape);
    settle();
    EXPECT_FALSE(window_.isWindowModified());
}

}  // namespace
}  // namespace Rotavue::Workbench
