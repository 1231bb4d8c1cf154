#include "workbench/window/open_at_once.h"

#include "tests/workbench/window/window_fixture.h"
#include "workbench/files/view_file.h"

#include <QTemporaryDir>

#include <cmath>
#include <fstream>
#include <numbers>

namespace Rotavue::Workbench {
namespace {

class OpenAtOnceTest : public WindowTest {
protected:
    /// A circle of 40 um at 50 Hz for a second, a thousand samples.
    std::string recording(const char* name) const {
        const std::string file = folder_.filePath(name).toStdString();
        std::ofstream csv(file);
        csv << "t [s],X [um],Y [um]\n";
        for (int i = 0; i < 1000; ++i) {
            const double angle = 2.0 * std::numbers::pi * 0.05 * i;
            csv << i / 1000.0 << ',' << 40.0 * std::cos(angle) << ',' << 40.0 * std::sin(angle)
                << '\n';
        }
        return file;
    }

    std::string view(const std::string& recordingFile) const {
        const std::string file = folder_.filePath("circle.rotavue").toStdString();
        View view;
        ViewPlane& plane = view.planes.emplace_back();
        plane.recording = recordingFile;
        plane.curves = {CurveRequest{}};
        plane.setup = {{"graphType", "1"}};
        view.cursor = 0.25;
        writeView(file, view);
        return file;
    }

    QTemporaryDir folder_;
};

TEST_F(OpenAtOnceTest, ARecordingIsShownWhereItIsOrdered) {
    openAtOnce(window_, {.recordings = {recording("a.csv")}, .at = 0.5});
    ASSERT_EQ(bench().planes().size(), 1U);
    EXPECT_DOUBLE_EQ(bench().cursor(), 0.5);
    EXPECT_TRUE(bench().undoStack().isClean());
}

TEST_F(OpenAtOnceTest, AViewIsShownWithItsSettingsAndItsMoment) {
    openAtOnce(window_, {.recordings = {view(recording("a.csv"))}});
    ASSERT_EQ(bench().planes().size(), 1U);
    EXPECT_EQ(bench().planes()[0]->settings().at(L"graphType"), L"1");
    EXPECT_DOUBLE_EQ(bench().cursor(), 0.25);
    EXPECT_TRUE(window_.windowTitle().contains("circle.rotavue"));
    EXPECT_FALSE(window_.isWindowModified());
}

TEST_F(OpenAtOnceTest, AViewTakesThePlaceOfWhatIsNamedBesideIt) {
    const std::string named = view(recording("a.csv"));
    openAtOnce(window_, {.recordings = {named, recording("b.csv")}});
    ASSERT_EQ(bench().planes().size(), 1U);
    EXPECT_EQ(bench().planes()[0]->original().recording.file.filename(), "a.csv");
}

TEST_F(OpenAtOnceTest, AViewWithoutItsRecordingIsAnError) {
    const std::string orphan = view(folder_.filePath("gone.csv").toStdString());
    EXPECT_THROW(openAtOnce(window_, {.recordings = {orphan}}), std::runtime_error);
}

}  // namespace
}  // namespace Rotavue::Workbench
