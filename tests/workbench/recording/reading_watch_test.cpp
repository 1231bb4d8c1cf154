#include "workbench/recording/reading_watch.h"

#include <algorithm>

#include "tests/workbench/recording/scratch_folder.h"
#include "tests/workbench/recording/wav_bytes.h"
#include "workbench/recording/recording.h"

namespace Rotavue::Workbench {
namespace {

TEST(ReadingProgressTest, TellsPartsOfStretchesWithinStretches) {
    std::vector<double> parts;
    const ReadingProgress whole([&](double part) {
        parts.push_back(part);
        return true;
    });
    // A quarter of 0.5..1 is 0.5..0.625; half of that is 0.5625.
    const ReadingProgress inner = whole.between(0.5, 1.0).between(0.0, 0.25);
    whole.reach(0.25);
    inner.reach(0.5);
    EXPECT_EQ(parts, (std::vector<double>{0.25, 0.5625}));
}

TEST(ReadingProgressTest, GoesOnWithoutAWatch) {
    EXPECT_NO_THROW(ReadingProgress().reach(1.0));
}

class ReadingWatchTest : public ScratchFolder {
protected:
    // Some five chunks of text: 30,000 rows of 160 bytes and more.
    std::filesystem::path longTable() const {
        std::string text = "t,x,y,rest\n";
        for (int i = 0; i < 30'000; ++i)
            text += std::to_string(i) + ",1,2.5,0." + std::string(150, '0') + '\n';
        return write("long.csv", text);
    }
    std::filesystem::path longWav() const {
        return write("long.wav",
                     wavBytes<std::int16_t>({1, 2, 8000, 16}, std::vector<std::int16_t>(60'000)));
    }

    static std::vector<double> partsOf(const std::filesystem::path& file) {
        std::vector<double> parts;
        readRecording(file, {}, [&](double part) {
            parts.push_back(part);
            return true;
        });
        return parts;
    }
    static int callsUntilCancelled(const std::filesystem::path& file, int allowed) {
        int calls = 0;
        EXPECT_THROW(readRecording(file, {}, [&](double) { return ++calls <= allowed; }),
                     ReadingCancelled);
        return calls;
    }
};

void expectRiseToOne(const std::vector<double>& parts) {
    EXPECT_GE(parts.size(), 5u);
    EXPECT_TRUE(std::is_sorted(parts.begin(), parts.end()));
    EXPECT_GE(parts.front(), 0.0);
    EXPECT_EQ(parts.back(), 1.0);
}

TEST_F(ReadingWatchTest, HearsOfProgressUntilAllIsRead) {
    expectRiseToOne(partsOf(longTable()));
    expectRiseToOne(partsOf(longWav()));
}

TEST_F(ReadingWatchTest, IsNotAskedAgainOnceItHasCancelled) {
    for (const int allowed : {0, 1, 2}) {
        EXPECT_EQ(callsUntilCancelled(longTable(), allowed), allowed + 1);
        EXPECT_EQ(callsUntilCancelled(longWav(), allowed), allowed + 1);
    }
}

TEST_F(ReadingWatchTest, ErrorsOfTheFileComeBeforeCancelling) {
    const auto file = write("bad.csv", "t,x,y\n0,1,2\n1,a,3\n");
    EXPECT_EQ(messageOf([&] { readRecording(file, {}, [](double) { return false; }); }),
              "bad.csv:3:3: found \"a\" in column \"x\", allowed: a number, or nothing for a gap");
}

}  // namespace
}  // namespace Rotavue::Workbench
