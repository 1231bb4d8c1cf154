#include "tests/workbench/window/docks/dock_application.h"

#include "tests/support/unbound_windows.h"

#include <QApplication>
#include <QDir>
#include <QPixmap>

#include <gtest/gtest.h>

#include <clocale>
#include <optional>
#include <string>

namespace Rotavue::Workbench {

namespace {

/// Qt runs for as long as the tests of this program do, on no display.
class DockEnvironment : public ::testing::Environment {
public:
    void SetUp() override {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        application_.emplace(count_, arguments_);
        new UnboundWindows(*application_);
        std::setlocale(LC_NUMERIC, "C");
        QApplication::setStyle("Fusion");
        setTheme(DockTheme::Light);
    }
    void TearDown() override { application_.reset(); }

private:
    char name_[10] = "docks";
    char* arguments_[2] = {name_, nullptr};
    int count_ = 1;
    std::optional<QApplication> application_;
};

const auto* const environment = ::testing::AddGlobalTestEnvironment(new DockEnvironment);

QPalette darkPalette() {
    QPalette dark(QColor(0x35, 0x35, 0x35));
    dark.setColor(QPalette::Base, QColor(0x23, 0x23, 0x23));
    dark.setColor(QPalette::Highlight, QColor(0x2A, 0x82, 0xDA));
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        dark.setColor(QPalette::Disabled, role, QColor(0x90, 0x90, 0x90));
    }
    return dark;
}

}  // namespace

void setTheme(DockTheme theme) {
    QApplication::setPalette(theme == DockTheme::Dark ? darkPalette()
                                                      : QPalette(QColor(0xEF, 0xEF, 0xEF)));
}

void shoot(QWidget& widget, const char* name) {
    const QDir folder(ROTAVUE_SCREENSHOTS_FOLDER);
    ASSERT_TRUE(folder.mkpath("."));
    QApplication::processEvents();
    EXPECT_TRUE(widget.grab().save(folder.filePath(QString(name) + ".png")));
}

void screenshot(QWidget& widget, const char* name) {
    setTheme(DockTheme::Dark);
    shoot(widget, (std::string(name) + "-dark").c_str());
    setTheme(DockTheme::Light);
    shoot(widget, (std::string(name) + "-light").c_str());
}

}  // namespace Rotavue::Workbench
