#include <array>
#include <random>

#include "tests/workbench/recording/scratch_folder.h"
#include "tests/workbench/recording/wav_bytes.h"
#include "workbench/recording/recording.h"

namespace Rotavue::Workbench {
namespace {

constexpr int MutationCount = 1500;

const std::string Table =
    "Machine Name,Kit\nSample Rate [kHz],5\nt [s],x [um],y [um],keyphasor [V]\n"
    "0,1,2,-5\n0.1,2,3,-1\n0.2,nan,4,-5\n0.3,\"4\",5,-5\n0.4,5,6,-1\n0.5,6,,-5\n";
const std::string Machine =
    R"({"x": {"angle": "45 R", "sensitivity": 0.5}, "y": {"angle": -45}, "rotation": "CCW",
        "keyphasor": {"edge": "falling", "level": -3, "pulsesPerTurn": 2}})";

// Every reading ends in a recording or in a RecordingError; any other end fails the test.
class HostileRecording : public ScratchFolder {
protected:
    std::string mutated(std::string bytes) {
        for (std::size_t n = 1 + random() % 4; n > 0; --n) {
            const std::size_t place = random() % bytes.size();
            switch (random() % 4) {
                case 0:
                    bytes[place] = static_cast<char>(random());
                    break;
                case 1:
                    bytes.erase(place, 1 + random() % 8);
                    break;
                case 2:
                    bytes.insert(place, bytes.substr(random() % bytes.size(), 8));
                    break;
                default:
                    bytes.insert(place, 1, ",;\t\n\".-eE0\0{}"[random() % 14]);
            }
            if (bytes.empty()) bytes.push_back('0');
        }
        return bytes;
    }

    void expectRecordingOrError(const std::filesystem::path& file) const {
        try {
            const Recording recording = readRecording(file);
            ASSERT_EQ(recording.x.size(), recording.y.size());
            ASSERT_TRUE(recording.angle.empty() || recording.angle.size() == recording.x.size());
            for (const double angle : recording.angle)
                ASSERT_TRUE(angle >= 0.0 && angle < 360.0);
            ASSERT_GT(recording.sampleRate, 0.0);
        } catch (const RecordingError& error) {
            ASSERT_EQ(std::string_view(error.what()).find('\n'), std::string_view::npos);
        }
    }

    std::mt19937 random{20240711};
};

TEST_F(HostileRecording, TablesEndInARecordingOrAnError) {
    for (int i = 0; i < MutationCount; ++i)
        expectRecordingOrError(write("r.csv", mutated(Table)));
}

TEST_F(HostileRecording, MachineFilesEndInARecordingOrAnError) {
    const auto file = write("r.csv", Table);
    for (int i = 0; i < MutationCount; ++i) {
        write("r.machine.json", mutated(Machine));
        expectRecordingOrError(file);
    }
}

TEST_F(HostileRecording, WavFilesEndInARecordingOrAnError) {
    constexpr std::array<std::int16_t, 12> samples = {1, 2, -900, 3, 4, 900, 5, 6, -900, 7, 8, 900};
    const std::string bytes = wavBytes<std::int16_t>({1, 3, 8000, 16}, samples);
    for (int i = 0; i < MutationCount; ++i)
        expectRecordingOrError(write("r.wav", mutated(bytes)));
}

TEST_F(HostileRecording, HeadersThatClaimTheWorldTakeNoMemory) {
    constexpr std::array<std::int16_t, 6> samples = {1, 2, 3, 4, 5, 6};
    const Recording recording =
        readRecording(write("r.wav", wavBytes<std::int16_t>({}, samples, 0xFFFFFFF0)));
    EXPECT_EQ(recording.sampleCount(), 3u);
    EXPECT_LT(recording.x.memoryUse(), 80'000u);
}

}  // namespace
}  // namespace Rotavue::Workbench
