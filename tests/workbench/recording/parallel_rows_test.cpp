#include <cmath>
#include <random>

#include "tests/workbench/recording/scratch_folder.h"
#include "workbench/recording/chunk_reader.h"
#include "workbench/recording/csv_file.h"

// A table of several chunks gives the same values and the same faults whatever the number of
// threads.
namespace Rotavue::Workbench {
namespace {

using Columns = std::vector<Samples>;

const std::vector<WantedColumn> Wanted = {
    {0, ColumnRole::Time}, {1, ColumnRole::X}, {2, ColumnRole::Y}};
constexpr unsigned ThreadCounts[] = {1, 2, 8};
constexpr int RowCount = 20'000;                         // 170 bytes and more each: four chunks
const std::string Rest = ",0." + std::string(150, '0');  // a column that nobody wants

class ParallelRows : public ScratchFolder {
protected:
    ParallelRows() {
        rows_.reserve(RowCount);
        for (int i = 0; i < RowCount; ++i)
            rows_.push_back(std::to_string(i) + ',' + std::to_string(i * 0.125) + ",-7.25e-3" +
                            Rest);
    }

    std::filesystem::path table() const {
        std::string text = "t,x,y,rest\n";
        for (const std::string& row : rows_)
            text += row + '\n';
        EXPECT_GT(text.size(), 3 * ChunkReader::ReadSize);
        return write("f", text);
    }
    std::string faultOf(const std::filesystem::path& file, unsigned threads) const {
        return messageOf([&] { CsvFile(file, threads).read(Wanted); });
    }
    void expectFault(const std::string& message) const {
        const auto file = table();
        for (const unsigned threads : ThreadCounts)
            EXPECT_EQ(faultOf(file, threads), message) << threads << " threads";
    }

    std::vector<std::string> rows_;
};

TEST_F(ParallelRows, GiveTheSameValuesWhateverTheNumberOfThreads) {
    const auto file = table();
    for (const unsigned threads : ThreadCounts) {
        const Columns columns = CsvFile(file, threads).read(Wanted);
        ASSERT_EQ(columns[0].size(), static_cast<std::size_t>(RowCount)) << threads;
        for (std::size_t i = 0; i < RowCount; ++i) {
            ASSERT_EQ(columns[0][i], static_cast<double>(i));
            ASSERT_EQ(columns[1][i], 0.125 * static_cast<double>(i));
            ASSERT_EQ(columns[2][i], -7.25e-3);
        }
    }
}

TEST_F(ParallelRows, NameTheLineOfAFaultInALaterChunk) {
    // Row 15,000 from 0 stands in line 15,002: the header is line 1.
    rows_[15'000] = "15000,abc,1" + Rest;
    expectFault(
        "f:15002:7: found \"abc\" in column \"x\", allowed: a number, or nothing for a gap");
}

TEST_F(ParallelRows, NameTheFirstOfSeveralFaults) {
    rows_[19'000] = "19000,1";
    rows_[8'000] = "8000,1,2,3,4";
    expectFault("f:8002:12: found 5 fields, allowed: 4 as in line 2");
}

TEST_F(ParallelRows, NoticeTimeThatFallsFromOneChunkToTheNext) {
    std::size_t bytes = 0;
    std::size_t row = 0;
    while ((bytes += rows_[row].size() + 1) <= ChunkReader::ReadSize)
        ++row;
    // The row that begins the second chunk, whatever chunk begins with it, falls back behind the
    // one before it; from there on time rises again.
    for (std::size_t i = row; i < rows_.size(); ++i)
        rows_[i] = std::to_string(i - row) + ",1,-7.25e-3" + Rest;
    expectFault("f:" + std::to_string(row + 2) + ":1: found time 0 after " +
                std::to_string(row - 1) + ", allowed: time that does not run backward");
}

TEST_F(ParallelRows, CountBlankLinesAsLines) {
    rows_[10] += "\n\n \n";
    rows_[12'000] = "12000,1,b" + Rest;
    expectFault("f:12005:9: found \"b\" in column \"y\", allowed: a number, or nothing for a gap");
}

TEST_F(ParallelRows, SpoiltAnywhereEndInTheSameFault) {
    std::mt19937 random(7);
    const std::vector<std::string> whole = rows_;
    for (int round = 0; round < 6; ++round) {
        rows_ = whole;
        for (int i = 0; i < 3; ++i)
            rows_[random() % rows_.size()].insert(random() % 4, 1, ",x-"[random() % 3]);
        const auto file = table();
        EXPECT_EQ(faultOf(file, 8), faultOf(file, 1));
        EXPECT_NE(faultOf(file, 1), "no error");
    }
}

}  // namespace
}  // namespace Rotavue::Workbench
