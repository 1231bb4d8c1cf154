#include "workbench/recording/csv_file.h"

#include <algorithm>
#include <deque>
#include <future>
#include <memory>
#include <string>
#include <thread>

#include "workbench/recording/row_parser.h"

namespace Rotavue::Workbench {
namespace {

constexpr unsigned MostThreads = 8;
constexpr double RowsToSpare = 1.05;

unsigned threadCount(unsigned wanted) {
    return std::clamp(wanted != 0 ? wanted : std::thread::hardware_concurrency(), 1U, MostThreads);
}

// Reads the rows chunk by chunk, several at a time, and joins them in their order.
//
// A chunk is parsed as if the file began with it. Only where it is joined, what lies before it is
// known: a chunk with a fault, or one that may not stand there, is then parsed once more, and the
// error that this throws tells the true place.
class RowCollector {
public:
    RowCollector(const std::filesystem::path& file, const TableLayout& layout,
                 std::span<const WantedColumn> wanted, std::size_t chunkSize)
        : parser_(file, layout, wanted),
          chunks_(file, layout.firstDataOffset, chunkSize),
          values_(wanted.size()) {
        before_.lines = layout.firstDataLine - 1;
    }

    std::vector<std::vector<double>> read(unsigned threads, const ReadingProgress& progress);

private:
    struct Chunk {
        std::unique_ptr<std::string> text;
        std::future<std::optional<ParsedRows>> rows;  // nothing: there is a fault
    };

    void begin(unsigned threads);
    void join(Chunk chunk);
    void append(const ParsedRows& rows);
    void reserve(std::size_t firstChunk);

    RowParser parser_;
    ChunkReader chunks_;
    std::deque<Chunk> begun_;
    RowsBefore before_;
    bool reserved_ = false;
    std::vector<std::vector<double>> values_;
};

std::vector<std::vector<double>> RowCollector::read(unsigned threads,
                                                    const ReadingProgress& progress) {
    for (begin(threads); !begun_.empty(); begin(threads)) {
        Chunk first = std::move(begun_.front());
        begun_.pop_front();
        join(std::move(first));
        progress.reach(static_cast<double>(chunks_.position()) /
                       static_cast<double>(std::max<std::uint64_t>(chunks_.size(), 1)));
    }
    return std::move(values_);
}

// Gives every thread a chunk. Where the system has no more threads, the one that joins parses.
void RowCollector::begin(unsigned threads) {
    while (begun_.size() < threads) {
        auto text = std::make_unique<std::string>();
        if (!chunks_.next(*text)) return;
        const auto parse = [this, &text = *text]() -> std::optional<ParsedRows> {
            try {
                return parser_.parse(text, {});
            } catch (const RecordingError&) {
                return std::nullopt;
            }
        };
        auto rows = std::async(std::launch::async | std::launch::deferred, parse);
        begun_.push_back({std::move(text), std::move(rows)});
    }
}

void RowCollector::join(Chunk chunk) {
    const std::optional<ParsedRows> rows = chunk.rows.get();
    const bool joins = rows && parser_.follows(*rows, before_);
    append(joins ? *rows : parser_.parse(*chunk.text, before_));
    if (!reserved_) reserve(chunk.text->size());
}

// The first chunk tells how many rows to expect, with some to spare. Values that have to move on
// the way take their memory twice.
void RowCollector::reserve(std::size_t firstChunk) {
    reserved_ = true;
    const double chunks = static_cast<double>(chunks_.size()) / static_cast<double>(firstChunk);
    const double rows = static_cast<double>(before_.rows) * chunks * RowsToSpare;
    const double most = std::min(rows, static_cast<double>(MaxSampleCount));
    for (std::vector<double>& values : values_)
        values.reserve(static_cast<std::size_t>(most));
}

void RowCollector::append(const ParsedRows& rows) {
    before_ = parser_.behind(rows, before_);
    for (std::size_t i = 0; i < values_.size(); ++i)
        values_[i].insert(values_[i].end(), rows.values[i].begin(), rows.values[i].end());
}

}  // namespace

CsvFile::CsvFile(const std::filesystem::path& file, unsigned threads, std::size_t chunkSize)
    : file_(file),
      layout_(findTableLayout(file)),
      threads_(threadCount(threads)),
      chunkSize_(chunkSize) {}

std::vector<Samples> CsvFile::read(std::span<const WantedColumn> wanted,
                                   const ReadingProgress& progress) {
    auto columns = RowCollector(file_, layout_, wanted, chunkSize_).read(threads_, progress);
    std::vector<Samples> samples;
    for (std::vector<double>& column : columns)
        samples.emplace_back(std::move(column));
    return samples;
}

}  // namespace Rotavue::Workbench
