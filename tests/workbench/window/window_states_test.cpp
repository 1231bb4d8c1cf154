#include "tests/workbench/window/window_fixture.h"

#include "workbench/export/export_dialog.h"
#include "workbench/window/docks/number_table.h"

#include <QComboBox>
#include <QStatusBar>
#include <QTabWidget>

#include <string>

namespace Rotavue::Workbench {
namespace {

/// Pictures of the window's main states, for a person to look at: in both themes, at 1280 x 800 and
/// at twice the pixels. What can be told without looking is tested with each.
class WindowStatesTest : public WindowTest, public testing::WithParamInterface<Theme> {
protected:
    WindowStatesTest() {
        window_.setTheme(GetParam());
        putPointer(*window_.statusBar(), window_.statusBar()->rect().center());
    }
    ~WindowStatesTest() override { window_.setTheme(Theme::Light); }

    void openPlanes(int count) {
        for (int i = 1; i <= count; ++i)
            open(rotor("Bearing " + std::to_string(i)), {.curves = withOrders()});
        const auto& numbers = window_.findChild<NumberTable*>()->model();
        EXPECT_TRUE(QTest::qWaitFor([&] { return numbers.columnCount() == 2 * count; }));
    }

    static std::vector<CurveRequest> withOrders() {
        return {{}, {.kind = CurveKind::Harmonic, .orders = {1.0, 2.0}}};
    }

    void keep(const std::string& state, QWidget& widget) {
        settle();
        const std::string name = "state-" + state + "-" + wordOf(GetParam()).toStdString();
        keepScreenshot(widget, name);
        keepScreenshot(widget, name + "-200", 2.0);
    }
    void keep(const std::string& state) { keep(state, window_); }
};

TEST_P(WindowStatesTest, Empty) {
    keep("empty");
    EXPECT_TRUE(window_.tiles().tiles().empty());
}

TEST_P(WindowStatesTest, OnePlane) {
    openPlanes(1);
    keep("one-plane");
    EXPECT_TRUE(window_.windowTitle().contains("Bearing 1"));
}

TEST_P(WindowStatesTest, TwoPlanes) {
    openPlanes(2);
    keep("two-planes");
    const QWidget& left = *window_.tiles().tiles()[0];
    const QWidget& right = *window_.tiles().tiles()[1];
    EXPECT_NEAR(left.width(), right.width(), 1);
    EXPECT_EQ(left.height(), right.height());
}

TEST_P(WindowStatesTest, FourPlanes) {
    openPlanes(4);
    keep("four-planes");
    // The control keeps 60 pixels free on each side of its plot.
    for (const OrbitTile* tile : window_.tiles().tiles())
        EXPECT_GE(std::min(tile->view().width(), tile->view().height()), 300);
}

TEST_P(WindowStatesTest, OneOfFourPlanesAlone) {
    openPlanes(4);
    QTest::keyClick(&window_, Qt::Key_M, Qt::ControlModifier);
    keep("plane-alone");
    EXPECT_TRUE(window_.tiles().isAlone());
}

TEST_P(WindowStatesTest, Playing) {
    openPlanes(2);
    bench().setCursor(0.5);
    bench().playback().play();
    EXPECT_TRUE(QTest::qWaitFor([&] { return bench().cursor() > 0.7; }));
    keep("playing");
    bench().playback().pause();
}

TEST_P(WindowStatesTest, PanelOnCircle) {
    openPlanes(1);
    auto& panel = *window_.findChild<QWidget*>("propertyDock");
    panel.findChild<QTabWidget*>()->setCurrentIndex(1);
    auto& kind = *panel.findChild<QComboBox*>("GraphType");
    kind.setFocus();
    QTest::keyClick(&kind, Qt::Key_Down);
    keep("circle");
    EXPECT_EQ(bench().planes()[0]->settings().at(L"graphType"), L"1");
}

TEST_P(WindowStatesTest, Exporting) {
    openPlanes(1);
    QTest::keyClick(&window_, Qt::Key_E, Qt::ControlModifier | Qt::ShiftModifier);
    ExportDialog* dialog = nullptr;
    for (auto* one : window_.findChildren<QDialog*>())
        if (auto* found = dynamic_cast<ExportDialog*>(one)) dialog = found;
    ASSERT_NE(dialog, nullptr);
    dialog->showPreview();
    keep("export", *dialog);
    EXPECT_FALSE(dialog->preview.pixmap().isNull());
}

INSTANTIATE_TEST_SUITE_P(Themes, WindowStatesTest, testing::Values(Theme::Light, Theme::Dark),
                         [](const auto& one) {
                             return one.param == Theme::Light ? "Light" : "Dark";
                         });

}  // namespace
}  // namespace Rotavue::Workbench
