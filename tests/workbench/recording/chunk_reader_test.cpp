#include "workbench/recording/chunk_reader.h"

#include "tests/workbench/recording/scratch_folder.h"

namespace Rotavue::Workbench {
namespace {

class ChunkReaderTest : public ScratchFolder {
protected:
    std::vector<std::string> chunksOf(std::string_view text, std::uint64_t offset = 0) const {
        ChunkReader reader(write("f", text), offset);
        std::vector<std::string> chunks;
        for (std::string chunk; reader.next(chunk);)
            chunks.push_back(chunk);
        EXPECT_EQ(reader.position(), text.size());
        EXPECT_EQ(reader.size(), text.size());
        return chunks;
    }
};

using Chunks = std::vector<std::string>;

TEST_F(ChunkReaderTest, GivesASmallFileInOne) {
    EXPECT_EQ(chunksOf("a\nb"), Chunks{"a\nb"});
    EXPECT_EQ(chunksOf("a\nb\n"), Chunks{"a\nb\n"});
    EXPECT_EQ(chunksOf(""), Chunks{});
}

TEST_F(ChunkReaderTest, BeginsWhereItIsTold) {
    EXPECT_EQ(chunksOf("head\na\n", 5), Chunks{"a\n"});
}

TEST_F(ChunkReaderTest, EndsChunksWithALine) {
    // The second line crosses the place where the first reading ends.
    const std::string first(ChunkReader::ReadSize - 5, 'a');
    EXPECT_EQ(chunksOf(first + "\nbbbbbbbb\nc"), (Chunks{first + '\n', "bbbbbbbb\nc"}));
}

TEST_F(ChunkReaderTest, CutsALineThatIsLongerThanWhatIsReadAtOnce) {
    const std::string line(ChunkReader::ReadSize, 'a');
    EXPECT_EQ(chunksOf(line + "bb\nc\n"), (Chunks{line, "bb\nc\n"}));
}

TEST_F(ChunkReaderTest, RefusesWhatCannotBeRead) {
    EXPECT_EQ(messageOf([&] { ChunkReader(at("none"), 0); }),
              "none: found no such file, allowed: a file that can be read");
}

}  // namespace
}  // namespace Rotavue::Workbench
