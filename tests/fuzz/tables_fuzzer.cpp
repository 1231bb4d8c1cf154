#include "tests/fuzz/memory_file.h"
#include "workbench/recording/csv_file.h"
#include "workbench/recording/recording_error.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstdlib>

namespace {

using namespace Rotavue;
/// The threads that read the parts take longer to begin and to end than to read so few rows.
constexpr std::size_t MostParts = 6;

using Columns = std::vector<Workbench::Samples>;

/// What a reading gives: columns, or the text of what is wrong.
struct Reading {
    Columns columns;
    std::string fault;
};

/// To the bit, gaps as well.
bool isSame(const Workbench::Samples& one, const Workbench::Samples& other) {
    const auto bits = [](double value) { return std::bit_cast<std::uint64_t>(value); };
    return std::ranges::equal(one, other, {}, bits, bits);
}

/// All columns, the first as a time and the others as vibration.
Reading readAll(const std::filesystem::path& file, unsigned threads, std::size_t chunk) try {
    Workbench::CsvFile table(file, threads, chunk);
    std::vector<Workbench::WantedColumn> wanted;
    for (std::size_t i = 0; i < table.head().columns.size(); ++i) {
        using enum Workbench::ColumnRole;
        wanted.push_back({i, i == 0 ? Time : X});
    }
    return {table.read(wanted), {}};
} catch (const Workbench::RecordingError& error) {
    return {{}, error.what()};
}

std::size_t longestLine(std::string_view text) {
    std::size_t longest = 0;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        longest = std::max(longest, end + 1);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return longest;
}

}  // namespace

/// A table. Read by several threads, a few rows each, it gives what one thread makes of it at once:
/// the same values to the bit, or the same fault at the same place.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text = Fuzz::textOf(data, size);
    const Fuzz::MemoryFile file(text);
    const Reading whole = readAll(file.path(), 1, size + 1);
    const Reading parts =
        readAll(file.path(), 3, std::max(longestLine(text), size / MostParts) + 1);
    const bool same = std::ranges::equal(whole.columns, parts.columns, isSame);
    if (!same || whole.fault != parts.fault) std::abort();
    return 0;
}
