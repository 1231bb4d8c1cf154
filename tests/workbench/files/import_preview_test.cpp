#include "workbench/files/import_preview.h"

#include "tests/workbench/recording/scratch_folder.h"
#include "tests/workbench/recording/wav_bytes.h"

namespace Rotavue::Workbench {
namespace {

class ImportPreviewTest : public ScratchFolder {
protected:
    ImportPreview preview(std::string_view text, const RecordingOptions& options = {}) const {
        return previewOf(readBeginning(write("r.csv", text)), options);
    }
    std::string shape(std::string_view text) const {
        return readBeginning(write("r.csv", text)).shape;
    }
};

std::string rolesOf(const ImportPreview& preview) {
    std::string letters;
    for (const RecordingColumn& column : preview.columns)
        letters += "-txyk"[static_cast<int>(column.role)];
    return letters;
}

TEST_F(ImportPreviewTest, IsSureWhereNamesTellTimeAndBothProbes) {
    const ImportPreview sure = preview("t [s],x [um],y [um],kp [V]\n0,1,2,3\n1,2,3,4\n");
    EXPECT_TRUE(sure.isSure);
    EXPECT_EQ(rolesOf(sure), "txyk");
    EXPECT_EQ(sure.rows,
              (std::vector<std::vector<std::string>>{{"0", "1", "2", "3"}, {"1", "2", "3", "4"}}));
}

TEST_F(ImportPreviewTest, IsSureWhereTheHeaderTellsTheRate) {
    EXPECT_TRUE(preview("Sample Rate,5000\nx,y\n1,2\n").isSure);
    EXPECT_EQ(preview("Sample Rate,5000\nx,y\n1,2\n").rate, 5000.0);
    EXPECT_FALSE(preview("x,y\n1,2\n").isSure);
}

TEST_F(ImportPreviewTest, IsNotSureOfColumnsWithoutNames) {
    const ImportPreview guess = preview("0,1,2\n1,2,3\n2,3,4\n");
    EXPECT_FALSE(guess.isSure);
    EXPECT_EQ(rolesOf(guess), "txy");
}

TEST_F(ImportPreviewTest, LeavesRolesOpenThatNobodyCanGuessAndTellsTheOthers) {
    const ImportPreview guess = preview("t,tacho,axl,rad\n0,1,2,3\n");
    EXPECT_FALSE(guess.isSure);
    EXPECT_EQ(rolesOf(guess), "tk--");
    RecordingOptions options;
    options.y.column = "rad";
    EXPECT_EQ(rolesOf(preview("t,tacho,axl,rad\n0,1,2,3\n", options)), "tk-y");
}

TEST_F(ImportPreviewTest, IsNotSureWhichOfSeveralPlanesIsWanted) {
    const std::string table = "t,P1.X,P1.Y,P2.X,P2.Y\n0,1,2,3,4\n";
    EXPECT_FALSE(preview(table).isSure);
    EXPECT_EQ(rolesOf(preview(table)), "txy--");
    RecordingOptions second;
    second.x.column = "P2.X";
    second.y.column = "P2.Y";
    EXPECT_TRUE(preview(table, second).isSure);
}

TEST_F(ImportPreviewTest, TellsWhatTheHeaderSaysOfMachineAndPoint) {
    const ImportPreview told = preview("Machine Name,Kit\nPoint Name,Drive end\nt,x,y\n0,1,2\n");
    EXPECT_EQ(told.machine, "Kit");
    EXPECT_EQ(told.point, "Drive end");
}

TEST_F(ImportPreviewTest, IsSureWhenTheOptionsTell) {
    RecordingOptions options;
    options.x.column = "axl";
    options.y.column = "rad";
    const ImportPreview told = preview("t,tacho,axl,rad\n0,1,2,3\n", options);
    EXPECT_TRUE(told.isSure);
    EXPECT_EQ(rolesOf(told), "tkxy");
}

TEST_F(ImportPreviewTest, HasOneShapeForFilesOfOneOrigin) {
    const std::string first = shape("t,tacho,axl,rad\n0,1,2,3\n");
    EXPECT_EQ(shape("Machine Name,Kit\nt,tacho,axl,rad\n5,6,7,8\n"), first);
    EXPECT_NE(shape("t;tacho;axl;rad\n0;1;2;3\n"), first);
    EXPECT_NE(shape("t,tacho,axl,tan\n0,1,2,3\n"), first);
    EXPECT_NE(shape("t,tacho,axl,rad [um]\n0,1,2,3\n"), first);
    EXPECT_EQ(shape("1,2,3\n4,5,6\n"), shape("9,2,1\n4,5,6\n"));
}

TEST_F(ImportPreviewTest, ShowsTheFirstFramesOfAWavFile) {
    // Full scale of 16 bits is 32768: 16384 is a half.
    constexpr std::array<std::int16_t, 6> samples = {16384, -16384, 0, 8192, 0, -32768};
    const ImportPreview wav =
        previewOf(readBeginning(write("r.wav", wavBytes<std::int16_t>({1, 3, 8000, 16}, samples))));
    EXPECT_EQ(wav.rows,
              (std::vector<std::vector<std::string>>{{"0.5", "-0.5", "0"}, {"0.25", "0", "-1"}}));
    EXPECT_EQ(wav.rate, 8000.0);
    EXPECT_FALSE(wav.isSure);
}

TEST_F(ImportPreviewTest, ShowsTwelveRowsAtTheMost) {
    std::string text = "t,x,y\n";
    for (int i = 0; i < 20; ++i)
        text += std::to_string(i) + ",1,2\n\n";
    EXPECT_EQ(preview(text).rows.size(), 12u);
    EXPECT_EQ(preview(text).rows.back().front(), "11");
}

TEST_F(ImportPreviewTest, RefusesWhatIsNoRecording) {
    EXPECT_EQ(messageOf([&] { preview("hello\n"); }),
              "r.csv: found no row of numbers in 1 lines, allowed: rows of two or more numbers "
              "between commas, semicolons or tabs");
}

}  // namespace
}  // namespace Rotavue::Workbench
