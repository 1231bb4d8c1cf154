#include "workbench/paint/offscreen_gui.h"

#include "workbench/paint/text_face.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QGuiApplication>

#include <gtest/gtest.h>

#include <clocale>
#include <cstdio>
#include <optional>
#include <string>

namespace Rotavue::Workbench {
namespace {

/// Qt runs for as long as the tests of this program do.
class PaintEnvironment : public ::testing::Environment {
public:
    void SetUp() override { gui_.emplace(); }
    void TearDown() override { gui_.reset(); }

private:
    std::optional<OffscreenGui> gui_;
};

const auto* const environment = ::testing::AddGlobalTestEnvironment(new PaintEnvironment);

TEST(OffscreenGui, NeedsNoDisplay) {
    EXPECT_EQ(QGuiApplication::platformName(), "offscreen");
}

TEST(OffscreenGui, LeavesTheDecimalPointAPoint) {
    EXPECT_EQ(std::string(std::setlocale(LC_NUMERIC, nullptr)), "C");
    char text[8];
    std::snprintf(text, sizeof text, "%.1f", 0.5);
    EXPECT_EQ(std::string(text), "0.5");
}

TEST(OffscreenGui, KnowsOneFontHoweverManyAreInstalled) {
    EXPECT_TRUE(hasFont());
    for (const QString& family : QFontDatabase::families()) {
        EXPECT_EQ(QFontInfo(QFont(family)).family(), FontFamily) << family.toStdString();
    }
}

}  // namespace
}  // namespace Rotavue::Workbench
