#include "workbench/recording/wav_file.h"

#include <array>
#include <cmath>
#include <limits>

#include "tests/workbench/recording/scratch_folder.h"
#include "tests/workbench/recording/wav_bytes.h"

namespace Rotavue::Workbench {
namespace {

using Columns = std::vector<Samples>;

const std::vector<WantedColumn> BothProbes = {{0, ColumnRole::X}, {1, ColumnRole::Y}};

constexpr std::array<std::int16_t, 6> SixSamples = {16384, -32768, 0, 8192, -16384, 4096};
const std::string Damaged = ", allowed: a WAV file of whole numbers or floating-point numbers";

class WavFileTest : public ScratchFolder {
protected:
    Columns read(const std::string& bytes) const {
        return WavFile(write("f.wav", bytes)).read(BothProbes);
    }
    std::string faultOf(const std::string& bytes) const {
        return messageOf([&] { read(bytes); });
    }
};

TEST_F(WavFileTest, GivesWholeNumbersAsPartsOfFullScale) {
    // 32,768 is full scale.
    EXPECT_EQ(read(wavBytes<std::int16_t>({}, SixSamples)),
              (Columns{{0.5, 0, -0.5}, {-1, 0.25, 0.125}}));
}

TEST_F(WavFileTest, GivesFloatingPointNumbersAsTheyStand) {
    constexpr std::array<float, 4> volts = {-9.5F, 12.25F, 1e4F, 0.0F};
    EXPECT_EQ(read(wavBytes<float>({3, 2, 8000, 32}, volts)), (Columns{{-9.5, 1e4}, {12.25, 0}}));
}

// 32 bits less one: what single precision would round to full scale.
TEST_F(WavFileTest, KeepsWhatSinglePrecisionHoldsInItAndMoreInDoubles) {
    constexpr std::array<std::int32_t, 4> fine = {0x7FFFFFFF, 0, -0x7FFFFFFF, 1};
    const Columns wide = read(wavBytes<std::int32_t>({1, 2, 8000, 32}, fine));
    EXPECT_EQ(wide, (Columns{{2147483647.0 / 2147483648.0, -2147483647.0 / 2147483648.0},
                             {0, 1.0 / 2147483648.0}}));
    EXPECT_EQ(wide[0].memoryUse(), 2 * sizeof(double));
    for (const Samples& narrow : read(wavBytes<std::int16_t>({}, SixSamples)))
        EXPECT_EQ(narrow.memoryUse(), 3 * sizeof(float));
}

TEST_F(WavFileTest, TellsRateAndChannels) {
    const WavFile file(write("f.wav", wavBytes<std::int16_t>({1, 3, 51200, 16}, SixSamples)));
    EXPECT_EQ(file.head().rate, 51200.0);
    EXPECT_FALSE(file.head().namesGiven);
    ASSERT_EQ(file.head().columns.size(), 3u);
    EXPECT_EQ(file.head().columns[2].name, "3");
}

TEST_F(WavFileTest, CanBeReadTwice) {
    WavFile file(write("f.wav", wavBytes<std::int16_t>({}, SixSamples)));
    const Columns first = file.read(BothProbes);
    EXPECT_EQ(file.read(BothProbes), first);
}

TEST_F(WavFileTest, ReadsOnAcrossItsBlocks) {
    // Two channels of 5000 frames, sample number n: more than one block of 4096 frames.
    std::vector<std::int16_t> samples(10'000);
    for (std::size_t i = 0; i < samples.size(); ++i)
        samples[i] = static_cast<std::int16_t>(i);
    const Columns columns = read(wavBytes<std::int16_t>({}, samples));
    ASSERT_EQ(columns[0].size(), 5000u);
    EXPECT_EQ(columns[0][4096], 8192.0 / 32768);
    EXPECT_EQ(columns[1][4999], 9999.0 / 32768);
}

TEST_F(WavFileTest, LeavesAGapWhereAFloatIsNoNumber) {
    constexpr float none = std::numeric_limits<float>::quiet_NaN();
    constexpr std::array<float, 4> volts = {none, 1.0F, 2.0F,
                                            std::numeric_limits<float>::infinity()};
    const std::string bytes = wavBytes<float>({3, 2, 8000, 32}, volts);
    const Columns columns = read(bytes);
    EXPECT_TRUE(std::isnan(columns[0][0]));
    EXPECT_EQ(columns[0][1], 2.0);
    EXPECT_TRUE(std::isnan(columns[1][1]));
    const std::vector<WantedColumn> keyphasor = {{1, ColumnRole::Keyphasor}};
    EXPECT_EQ(messageOf([&] { WavFile(at("f.wav")).read(keyphasor); }),
              "f.wav: found a value that is no number at sample 2 of channel 2, allowed: numbers");
}

TEST_F(WavFileTest, RefusesADamagedFile) {
    const std::string whole = wavBytes<std::int16_t>({}, SixSamples);
    for (const std::size_t length : {4u, 12u, 20u, 35u}) {
        const std::string fault = faultOf(whole.substr(0, length));
        EXPECT_TRUE(fault.starts_with("f.wav: found \"")) << fault;
        EXPECT_TRUE(fault.ends_with(Damaged)) << fault;
    }
    EXPECT_TRUE(faultOf(wavBytes<std::int16_t>({1, 0, 8000, 16}, SixSamples)).ends_with(Damaged));
    EXPECT_TRUE(faultOf("no wav at all").ends_with(Damaged));
    EXPECT_EQ(faultOf(wavBytes<std::int16_t>({}, {})),
              "f.wav: found no samples, allowed: at least one");
}

TEST_F(WavFileTest, RefusesCompressedSamples) {
    // Format 7 is 8-bit mu-law.
    constexpr std::array<std::uint8_t, 4> coded = {1, 2, 3, 4};
    EXPECT_EQ(faultOf(wavBytes<std::uint8_t>({7, 2, 8000, 8}, coded)),
              "f.wav: found samples of another kind" + Damaged);
}

TEST_F(WavFileTest, BelievesTheSamplesAndNotTheHeader) {
    // The data chunk tells 2 GB and holds 12 bytes.
    EXPECT_EQ(read(wavBytes<std::int16_t>({}, SixSamples, 0x7FFFFFF0))[0].size(), 3u);
}

TEST_F(WavFileTest, IsKnownByItsBeginning) {
    EXPECT_TRUE(isWavFile(write("a", wavBytes<std::int16_t>({}, SixSamples))));
    EXPECT_TRUE(isWavFile(write("b", "RF64....")));
    EXPECT_FALSE(isWavFile(write("c", "RIF")));
    EXPECT_FALSE(isWavFile(write("d", "")));
    EXPECT_FALSE(isWavFile(write("e", "t,x,y\n")));
}

}  // namespace
}  // namespace Rotavue::Workbench
