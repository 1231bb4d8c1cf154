#include "workbench/recording/csv_file.h"

#include <algorithm>
#include <string>

#include "workbench/recording/fields.h"
#include "workbench/recording/line_reader.h"
#include "workbench/recording/number_field.h"
#include "workbench/recording/option_items.h"

namespace Rotavue::Workbench {
namespace {

bool mayHoldGaps(ColumnRole role) {
    return role == ColumnRole::X || role == ColumnRole::Y;
}

// Whether the byte of UTF-8 is the first of a character.
bool beginsCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
}

class RowReader {
public:
    RowReader(const std::filesystem::path& file, const TableLayout& layout,
              std::span<const WantedColumn> wanted);

    std::vector<std::vector<double>> read();

private:
    // What becomes of one field of each row; unused columns have no values.
    struct Slot {
        ColumnRole role = ColumnRole::Unused;
        std::vector<double>* values = nullptr;
    };

    void passHeader();
    void takeRow(std::string_view line);
    void takeField(std::string_view field, std::size_t index);
    void checkTime(std::string_view field, const Slot& slot, double value) const;
    void checkSampleCount(std::size_t rows) const;
    [[noreturn]] void refuseCount() const;
    [[noreturn]] void refuseField(std::string_view field, std::size_t index, FieldKind kind) const;
    FilePlace placeOf(std::string_view field) const;

    std::filesystem::path file_;
    const TableLayout& layout_;
    LineReader reader_;
    std::vector<std::vector<double>> values_;
    std::vector<Slot> slots_;
};

RowReader::RowReader(const std::filesystem::path& file, const TableLayout& layout,
                     std::span<const WantedColumn> wanted)
    : file_(file),
      layout_(layout),
      reader_(file),
      values_(wanted.size()),
      slots_(layout.columnCount) {
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        slots_[wanted[i].index] = {wanted[i].role, &values_[i]};
    }
}

std::vector<std::vector<double>> RowReader::read() {
    passHeader();
    for (std::size_t rows = 0; reader_.next();) {
        if (trimmed(reader_.line()).empty()) continue;
        checkSampleCount(++rows);
        takeRow(reader_.line());
    }
    return std::move(values_);
}

void RowReader::passHeader() {
    while (reader_.number() + 1 < layout_.firstDataLine && reader_.next()) {
    }
}

void RowReader::takeRow(std::string_view line) {
    std::size_t index = 0;
    for (FieldCursor cursor(line, layout_.delimiter); cursor.next(); ++index) {
        if (index == slots_.size()) refuseCount();
        if (slots_[index].values) takeField(cursor.field(), index);
    }
    if (index != slots_.size()) refuseCount();
}

void RowReader::takeField(std::string_view field, std::size_t index) {
    const NumberField number = readNumber(field);
    const Slot& slot = slots_[index];
    const bool taken = number.kind == FieldKind::Number ||
                       (number.kind == FieldKind::Gap && mayHoldGaps(slot.role));
    if (!taken) refuseField(field, index, number.kind);
    if (slot.role == ColumnRole::Time) checkTime(field, slot, number.value);
    slot.values->push_back(number.value);
}

void RowReader::checkTime(std::string_view field, const Slot& slot, double value) const {
    if (slot.values->empty() || value >= slot.values->back()) return;
    throw RecordingError(placeOf(field),
                         "time " + numberText(value) + " after " + numberText(slot.values->back()),
                         "time that does not run backward");
}

void RowReader::checkSampleCount(std::size_t rows) const {
    if (rows <= MaxSampleCount) return;
    throw RecordingError({file_, reader_.number()}, "more rows",
                         "at most " + std::to_string(MaxSampleCount));
}

// The place is the first field too many, or where the first missing one would stand.
void RowReader::refuseCount() const {
    const std::vector<std::string_view> fields = fieldsOf(reader_.line(), layout_.delimiter);
    const std::size_t found = fields.size();
    const bool tooMany = found > layout_.columnCount;
    const std::string_view end = reader_.line().substr(reader_.line().size());
    throw RecordingError(placeOf(tooMany ? fields[layout_.columnCount] : end),
                         std::to_string(found) + (found == 1 ? " field" : " fields"),
                         std::to_string(layout_.columnCount) + " as in line " +
                             std::to_string(layout_.firstDataLine));
}

void RowReader::refuseField(std::string_view field, std::size_t index, FieldKind kind) const {
    const bool gapAllowed = mayHoldGaps(slots_[index].role);
    const std::string found = field.empty() ? "nothing" : inQuotes(field);
    const std::string range = kind == FieldKind::OutOfRange ? " from -1e+30 to 1e+30" : "";
    throw RecordingError(placeOf(field),
                         found + " in column " + inQuotes(layout_.head.columns[index].name),
                         "a number" + range + (gapAllowed ? ", or nothing for a gap" : ""));
}

FilePlace RowReader::placeOf(std::string_view field) const {
    const std::string_view line = reader_.line();
    const auto before = line.substr(0, static_cast<std::size_t>(field.data() - line.data()));
    const auto characters = std::count_if(before.begin(), before.end(), beginsCharacter);
    return {file_, reader_.number(), static_cast<std::size_t>(characters) + 1};
}

}  // namespace

CsvFile::CsvFile(const std::filesystem::path& file) : file_(file), layout_(findTableLayout(file)) {}

std::vector<std::vector<double>> CsvFile::read(std::span<const WantedColumn> wanted) {
    return RowReader(file_, layout_, wanted).read();
}

}  // namespace Rotavue::Workbench
