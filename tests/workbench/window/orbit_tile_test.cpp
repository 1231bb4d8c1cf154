#include "workbench/window/orbit_tile.h"

#include "tests/workbench/window/window_fixture.h"
#include "workbench/window/time_slider.h"

#include <QFontMetrics>
#include <QLabel>

namespace Rotavue::Workbench {
namespace {

class OrbitTileTest : public WindowTest {
protected:
    QLabel& factsOver(std::size_t tile) {
        settle();
        return *window_.tiles().tiles()[tile]->findChild<QLabel*>("facts");
    }

    QLabel& notes() {
        settle();
        return *window_.tiles().tiles()[0]->findChild<QLabel*>("notes");
    }
};

TEST_F(OrbitTileTest, FactsAreReadInFullHoweverNarrowTheTileIs) {
    const PlaneSetup twoCurves{.curves = {{}, {.kind = CurveKind::Harmonic, .orders = {1.0, 2.0}}}};
    for (const char* point : {"Bearing 1", "Bearing 2", "Bearing 3"})
        open(rotor(point), twoCurves);
    const QLabel& facts = factsOver(0);
    const QString whole =
        "direct + 1X, 2X, 8 turns, 3000 rpm, "
        "X\u00a045\u00b0\u00a0R, Y\u00a045\u00b0\u00a0L, CCW";
    EXPECT_EQ(facts.text(), whole);
    EXPECT_GT(facts.fontMetrics().horizontalAdvance(whole), facts.width());
    EXPECT_GE(facts.height(), facts.heightForWidth(facts.width()));
}

TEST_F(OrbitTileTest, TilesOfOneNameAreToldApartAndCalledPlainlyAgain) {
    const auto name = [this](std::size_t tile) {
        return window_.tiles().tiles()[tile]->view().accessibleName();
    };
    open(rotor("Bearing 1"));
    EXPECT_EQ(name(0), "Orbit of Bearing 1");
    open(rotor("Bearing 1"));
    EXPECT_EQ(name(0), "Orbit of Bearing 1 (1)");
    EXPECT_EQ(name(1), "Orbit of Bearing 1 (2)");
    action("closePlane").trigger();
    EXPECT_EQ(name(0), "Orbit of Bearing 1");
}

TEST_F(OrbitTileTest, OneLineIsEnoughWhereThereIsRoom) {
    open();
    const QLabel& facts = factsOver(0);
    EXPECT_LT(facts.heightForWidth(facts.width()), 2 * facts.fontMetrics().height());
}

TEST_F(OrbitTileTest, CurveThatCannotBeDrawnIsNotNamedButNoted) {
    const PlaneSetup missing{
        .curves = {{}, {.kind = CurveKind::Reference, .orders = {}, .file = "/nowhere.json"}}};
    const OrbitView& view = open(rotor(), missing);
    EXPECT_TRUE(factsOver(0).text().startsWith("direct, 8 turns"))
        << factsOver(0).text().toStdString();
    ASSERT_EQ(view.plane().drawnCurves().size(), 1U);
    EXPECT_EQ(view.plane().drawnCurves()[0].kind, CurveKind::Raw);
    EXPECT_FALSE(notes().isVisible());
    QTest::keyClick(&window_, Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(notes().isVisible());
    EXPECT_TRUE(notes().text().contains("/nowhere.json")) << notes().text().toStdString();
    QTest::keyClick(&window_, Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_FALSE(notes().isVisible());
}

TEST_F(OrbitTileTest, NotesThatComeLaterDoNotOpenByTheKeyOfBefore) {
    OrbitView& view = open();
    ASSERT_TRUE(notes().text().isEmpty()) << notes().text().toStdString();
    QTest::keyClick(&window_, Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
    bench().setCurves(view.plane(),
                      {{.kind = CurveKind::Reference, .orders = {}, .file = "/nowhere.json"}});
    EXPECT_FALSE(notes().text().isEmpty());
    EXPECT_FALSE(notes().isVisible());
}

TEST_F(OrbitTileTest, NotesGoWithTheCurveThatTheyAreAbout) {
    const PlaneSetup missing{
        .curves = {{}, {.kind = CurveKind::Reference, .orders = {}, .file = "/nowhere.json"}}};
    OrbitView& view = open(rotor(), missing);
    bench().setCurves(view.plane(), {CurveRequest{}});
    EXPECT_FALSE(notes().text().contains("/nowhere.json"));
    bench().undoStack().undo();
    EXPECT_TRUE(notes().text().contains("/nowhere.json"));
}

TEST_F(OrbitTileTest, SaysWhereNoWholeTurnIsThere) {
    open();
    bench().setCursor(0.001);  // a turn takes 20 ms
    EXPECT_TRUE(factsOver(0).text().startsWith("direct, no whole turn before the cursor"))
        << factsOver(0).text().toStdString();
    EXPECT_EQ(window_.findChild<QLabel*>("speed")->text(), "no whole turn");
}

TEST_F(OrbitTileTest, RecordingThatHasEndedSaysWhenAndTellsItsOwnTime) {
    Recording shorter = rotor("Bearing 2");
    for (Samples* values : {&shorter.x, &shorter.y, &shorter.angle})
        values->edit().resize(5000);  // half a second at 10 kHz
    open();
    open(std::move(shorter));
    bench().setCursor(0.4999);
    EXPECT_FALSE(factsOver(1).text().contains("ended"));
    bench().setCursor(1.5);
    EXPECT_FALSE(factsOver(0).text().contains("ended"));
    EXPECT_TRUE(factsOver(1).text().endsWith("ended at 0.4999 s"));
    EXPECT_EQ(window_.findChild<QLabel*>("place")->text(), "0.4999 of 0.4999 s");
}

TEST_F(OrbitTileTest, RotationThatIsNotGivenIsSaidWhereTheArrowIsDrawn) {
    Recording recording = rotor();
    recording.machine.rotation.reset();
    open(std::move(recording));
    EXPECT_TRUE(factsOver(0).text().endsWith("rotation not given"));
    EXPECT_TRUE(notes().text().contains("the arrow of the picture points clockwise all the same"));
}

TEST_F(OrbitTileTest, LongNameTakesNoRoomFromTheWindow) {
    open(rotor(std::string(79, 'n')));
    settle();
    EXPECT_EQ(window_.width(), 1280);
    EXPECT_LE(window_.minimumSizeHint().width(), 1280);
    bool isToldInFull = false;
    for (const QLabel* label : window_.tiles().tiles()[0]->findChildren<QLabel*>())
        isToldInFull = isToldInFull || label->toolTip() == QString(79, 'n');
    EXPECT_TRUE(isToldInFull);
}

TEST_F(OrbitTileTest, SpeedBehindTheTimeIsThatOfTheCurrentPlane) {
    const auto* slider = window_.findChild<TimeSlider*>("timeSlider");
    OrbitView& turning = open();
    EXPECT_NEAR(slider->fastest(), 3000.0, 1.0);
    open(withoutKeyphasor(rotor("Bearing 2")));
    EXPECT_EQ(slider->fastest(), 0.0);
    window_.tiles().setCurrent(&turning.plane());
    EXPECT_NEAR(slider->fastest(), 3000.0, 1.0);
}

}  // namespace
}  // namespace Rotavue::Workbench
