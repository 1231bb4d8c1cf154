#include "workbench/window/orbit_tile.h"

#include "tests/workbench/window/window_fixture.h"

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

TEST_F(OrbitTileTest, OneLineIsEnoughWhereThereIsRoom) {
    open();
    const QLabel& facts = factsOver(0);
    EXPECT_LT(facts.heightForWidth(facts.width()), 2 * facts.fontMetrics().height());
}

}  // namespace
}  // namespace Rotavue::Workbench
