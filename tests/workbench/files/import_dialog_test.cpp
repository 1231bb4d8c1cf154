#include "workbench/files/import_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>

#include "tests/workbench/recording/scratch_folder.h"
#include "workbench/recording/option_text.h"

namespace Rotavue::Workbench {
namespace {

const std::string Table = "t,tacho,axl,rad\n0,1,2,3\n0.5,2,3,4\n";

class ImportDialogTest : public ScratchFolder {
protected:
    void open(const std::string& text = Table, const RecordingOptions& known = {}) {
        dialog_ = std::make_unique<ImportDialog>(
            previewOf(readBeginning(write("r.csv", text)), known), known);
        dialog_->show();
    }
    void type(const char* name, const char* text) {
        auto* field = dialog_->findChild<QLineEdit*>(name);
        ASSERT_TRUE(field) << name;
        field->clear();
        QTest::keyClicks(field, text);
    }
    void choose(const QString& name, const char* word) {
        auto* box = dialog_->findChild<QComboBox*>(name);
        ASSERT_TRUE(box) << name.toStdString();
        ASSERT_GE(box->findText(word), 0) << word;
        box->setCurrentText(word);
    }
    // Presses Open; true if the dialog took it.
    bool press() {
        auto* buttons = dialog_->findChild<QDialogButtonBox*>();
        buttons->button(QDialogButtonBox::Open)->click();
        return dialog_->result() == QDialog::Accepted;
    }
    std::string fault() const {
        const auto* label = dialog_->findChild<QLabel*>("importFault");
        return label->isHidden() ? "" : label->text().toStdString();
    }
    void nameProbes() {
        choose("role3", "X probe");
        choose("role4", "Y probe");
        choose("role1", "time");
    }

    // What stands before the field.
    std::string labelOf(const char* name) const {
        for (const QLabel* label : dialog_->findChildren<QLabel*>())
            if (label->buddy() && label->buddy()->objectName() == name)
                return label->text().remove('&').toStdString();
        return "";
    }
    std::string warning() const {
        const auto* label = dialog_->findChild<QLabel*>("importWarning");
        return label->isHidden() ? "" : label->text().toStdString();
    }

    std::unique_ptr<ImportDialog> dialog_;
};

constexpr const char* VoltTable = "t [s],axl [mV],rad [V],kp [mV]\n0,1,2,3\n1,2,3,4\n";

TEST_F(ImportDialogTest, ShowsTheFirstRowsBelowTheRoles) {
    open();
    const auto* table = dialog_->findChild<QTableWidget*>("importRows");
    EXPECT_EQ(table->horizontalHeaderItem(2)->text(), "axl");
    EXPECT_EQ(table->item(1, 2)->text(), "2");
    EXPECT_EQ(table->item(2, 0)->text(), "0.5");
}

TEST_F(ImportDialogTest, TakesRolesAndWhatTheFileDoesNotSay) {
    open();
    nameProbes();
    choose("role2", "keyphasor");
    type("/unit", "mil");
    type("/x/angle", "45 R");
    type("/y/angle", "45 L");
    choose("/rotation", "CCW");
    choose("/keyphasor/kind", "volts");
    choose("/keyphasor/edge", "falling");
    type("/keyphasor/level", "-5");
    type("/keyphasor/pulsesPerTurn", "2");
    ASSERT_TRUE(press()) << fault();
    const RecordingOptions& told = dialog_->options();
    EXPECT_EQ(told.timeColumn, "t");
    EXPECT_EQ(told.x.column, "axl");
    EXPECT_EQ(told.y.column, "rad");
    EXPECT_EQ(told.keyphasor.column, "tacho");
    EXPECT_EQ(told.unit, "mil");
    EXPECT_EQ(told.x.angle, 45.0);
    EXPECT_EQ(told.y.angle, 315.0);
    EXPECT_EQ(told.rotation, Rotation::CounterClockwise);
    EXPECT_EQ(told.keyphasor.kind, KeyphasorKind::Volts);
    EXPECT_EQ(told.keyphasor.edge, PulseEdge::Falling);
    EXPECT_EQ(told.keyphasor.level, -5.0);
    EXPECT_EQ(told.keyphasor.pulsesPerTurn, 2);
}

TEST_F(ImportDialogTest, WithoutAKeyphasorNoneIsLookedFor) {
    open();
    nameProbes();
    choose("role2", "not used");
    ASSERT_TRUE(press()) << fault();
    EXPECT_EQ(dialog_->options().keyphasor.kind, KeyphasorKind::None);
    EXPECT_EQ(dialog_->options().rotation, std::nullopt);
}

TEST_F(ImportDialogTest, GuessesWhatItCanThoughTheProbesHaveNoNames) {
    open();
    choose("role3", "X probe");
    choose("role4", "Y probe");
    ASSERT_TRUE(press()) << fault();
    EXPECT_EQ(dialog_->options().timeColumn, "t");
    EXPECT_EQ(dialog_->options().keyphasor.column, "tacho");
    EXPECT_EQ(dialog_->options().keyphasor.kind, std::nullopt);
}

TEST_F(ImportDialogTest, NoKeyphasorBeforeIsNoAnswerForAColumnThatIsOneNow) {
    RecordingOptions known;
    known.keyphasor.kind = KeyphasorKind::None;
    open(Table, known);
    nameProbes();
    choose("role2", "keyphasor");
    ASSERT_TRUE(press()) << fault();
    EXPECT_EQ(dialog_->options().keyphasor.column, "tacho");
    EXPECT_EQ(dialog_->options().keyphasor.kind, std::nullopt);
}

TEST_F(ImportDialogTest, SaysWhichRoleIsMissingOrGivenTwice) {
    open();
    EXPECT_FALSE(press());
    EXPECT_EQ(fault(), "No column has the role: X probe");
    nameProbes();
    choose("role2", "Y probe");
    EXPECT_FALSE(press());
    EXPECT_EQ(fault(), "Two columns have the role: Y probe");
}

TEST_F(ImportDialogTest, SaysWhatIsAllowedAndGoesToTheField) {
    open();
    nameProbes();
    type("/x/angle", "up");
    EXPECT_FALSE(press());
    EXPECT_EQ(fault(),
              "Allowed here: a number from -360 to 360, or a text such as \"45 R\" or \"45 L\"");
    EXPECT_EQ(dialog_->focusWidget(), dialog_->findChild<QLineEdit*>("/x/angle"));
}

TEST_F(ImportDialogTest, AsksForATimeOrARate) {
    open("tacho,axl,rad\n1,2,3\n1,2,3\n");
    choose("role2", "X probe");
    choose("role3", "Y probe");
    EXPECT_FALSE(press());
    EXPECT_EQ(fault(), "A time column or a sample rate is needed");
    type("/rate", "5000");
    ASSERT_TRUE(press());
    EXPECT_EQ(dialog_->options().rate, 5000.0);
}

TEST_F(ImportDialogTest, AsksWhetherAClearanceIsDiametralOrRadial) {
    open();
    nameProbes();
    type("clearanceWidth", "100");
    EXPECT_FALSE(press());
    EXPECT_EQ(fault(), "Is the clearance told as diameters or as radii?");
    choose("clearanceKind", "radii");
    ASSERT_TRUE(press());
    // Twice the radius.
    EXPECT_EQ(dialog_->options().clearanceWidth, 200.0);
    EXPECT_EQ(dialog_->options().clearanceHeight, std::nullopt);
}

TEST_F(ImportDialogTest, NamesColumnsOfOneNameByTheirPlace) {
    open("t,a,a\n0,1,2\n1,2,3\n");
    choose("role1", "time");
    choose("role2", "X probe");
    choose("role3", "Y probe");
    ASSERT_TRUE(press());
    EXPECT_EQ(dialog_->options().x.column, "#2");
    EXPECT_EQ(dialog_->options().y.column, "#3");
}

TEST_F(ImportDialogTest, BeginsWithWhatIsKnown) {
    RecordingOptions known;
    known.timeColumn = "t";
    known.x.column = "axl";
    known.y.column = "rad";
    known.y.angle = 315.0;
    known.rotation = Rotation::Clockwise;
    known.clearanceHeight = 80.0;
    open(Table, known);
    ASSERT_TRUE(press()) << fault();
    EXPECT_EQ(dialog_->options().x.column, "axl");
    EXPECT_EQ(dialog_->options().y.angle, 315.0);
    EXPECT_EQ(dialog_->options().rotation, Rotation::Clockwise);
    EXPECT_EQ(dialog_->options().clearanceHeight, 80.0);
}

// Each item of a machine file but for the columns, which the roles tell.
constexpr std::pair<const char*, const char*> Items[] = {
    {"/machine", "Kit"},
    {"/point", "Drive end"},
    {"/unit", "um"},
    {"/rate", "5000"},
    {"/rotation", "CCW"},
    {"/coupling", "AC"},
    {"/x/angle", "45"},
    {"/x/sensitivity", "0.2"},
    {"/x/rest", "-9.5"},
    {"/y/angle", "315"},
    {"/y/sensitivity", "0.25"},
    {"/y/rest", "-10"},
    {"/keyphasor/kind", "volts"},
    {"/keyphasor/edge", "falling"},
    {"/keyphasor/level", "-5"},
    {"/keyphasor/hysteresis", "1"},
    {"/keyphasor/pulsesPerTurn", "2"},
    {"/keyphasor/angle", "90"},
    {"/clearance/width", "200"},
    {"/clearance/height", "180"},
};

TEST_F(ImportDialogTest, LosesNothingThatIsKnown) {
    RecordingOptions known;
    known.machineFile = "elsewhere.json";
    for (const auto& [pointer, told] : Items)
        ASSERT_TRUE(setItem(known, itemAt(pointer), told)) << pointer;
    open(Table, known);
    nameProbes();
    ASSERT_TRUE(press()) << fault();
    EXPECT_EQ(dialog_->options().machineFile, "elsewhere.json");
    for (const auto& [pointer, told] : Items)
        EXPECT_EQ(itemText(dialog_->options(), itemAt(pointer)), told) << pointer;
}

TEST_F(ImportDialogTest, TakesCouplingAndRest) {
    open();
    nameProbes();
    choose("/coupling", "AC");
    type("/x/rest", "-9.5");
    type("/y/rest", "-10.25");
    ASSERT_TRUE(press()) << fault();
    EXPECT_EQ(dialog_->options().coupling, Coupling::Ac);
    EXPECT_EQ(dialog_->options().x.rest, -9.5);
    EXPECT_EQ(dialog_->options().y.rest, -10.25);
}

TEST_F(ImportDialogTest, WhatIsClearedIsUnset) {
    RecordingOptions known;
    known.unit = "mil";
    known.rotation = Rotation::Clockwise;
    known.rate = 100.0;
    open("axl,rad\n1,2\n2,3\n", known);
    choose("role1", "X probe");
    choose("role2", "Y probe");
    type("/unit", "");
    choose("/rotation", "not known");
    type("/rate", "");
    EXPECT_FALSE(press());
    EXPECT_EQ(fault(), "A time column or a sample rate is needed");
    type("/rate", "200");
    ASSERT_TRUE(press()) << fault();
    EXPECT_EQ(dialog_->options().unit, std::nullopt);
    EXPECT_EQ(dialog_->options().rotation, std::nullopt);
}

TEST_F(ImportDialogTest, SaysInWhichUnitAScaleIsTold) {
    open(VoltTable);
    EXPECT_EQ(labelOf("/x/sensitivity"), "X: number in the file for one unit");
    choose("role2", "X probe");
    choose("role3", "Y probe");
    type("/unit", "um");
    EXPECT_EQ(labelOf("/x/sensitivity"), "X: mV for one um");
    EXPECT_EQ(labelOf("/y/sensitivity"), "Y: V for one um");
    EXPECT_EQ(labelOf("/x/rest"), "X at rest, mV");
    EXPECT_EQ(labelOf("/keyphasor/level"), "Pulse level, mV");
    EXPECT_EQ(labelOf("/keyphasor/hysteresis"), "Pulse hysteresis, mV");
    choose("role4", "X probe");
    choose("role2", "keyphasor");
    type("/unit", "mil");
    EXPECT_EQ(labelOf("/x/sensitivity"), "X: mV for one mil");
}

TEST_F(ImportDialogTest, WarnsThatANegativeSensitivityTurnsAProbeRoundAndTakesIt) {
    open();
    nameProbes();
    EXPECT_EQ(warning(), "");
    type("/y/sensitivity", "-200");
    EXPECT_NE(warning().find("turns the Y probe round"), std::string::npos) << warning();
    type("/x/sensitivity", "-200");
    EXPECT_NE(warning().find("turns both probes round"), std::string::npos) << warning();
    ASSERT_TRUE(press()) << fault();
    EXPECT_EQ(dialog_->options().y.sensitivity, -200.0);
    type("/x/sensitivity", "200");
    type("/y/sensitivity", "200");
    EXPECT_EQ(warning(), "");
}

TEST_F(ImportDialogTest, KeepsAMachineFileUnlessToldNotToAndAsksAgainUnlessToldNotTo) {
    open();
    EXPECT_TRUE(dialog_->isKeptBeside());
    EXPECT_FALSE(dialog_->isUsedWithoutAsking());
    EXPECT_TRUE(dialog_->findChild<QCheckBox*>("keepBeside")->text().contains("r.machine.json"));
}

// For the eye: build/screenshots/import-dialog.png.
TEST_F(ImportDialogTest, CanBeLookedAt) {
    open(VoltTable);
    choose("role2", "X probe");
    choose("role3", "Y probe");
    type("/x/sensitivity", "-200");
    type("clearanceWidth", "120");
    EXPECT_FALSE(press());
    std::filesystem::create_directories(ROTAVUE_SCREENSHOTS_FOLDER);
    EXPECT_TRUE(dialog_->grab().save(ROTAVUE_SCREENSHOTS_FOLDER "/import-dialog.png"));
}

}  // namespace
}  // namespace Rotavue::Workbench
