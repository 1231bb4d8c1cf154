#include "workbench/recording/row_parser.h"

#include <algorithm>
#include <string>

#include "workbench/recording/fields.h"
#include "workbench/recording/line_reader.h"
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

// Takes the first line off the text, without its end.
std::string_view takeLine(std::string_view& text) {
    const std::size_t feed = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, feed);
    text.remove_prefix(std::min(feed + 1, text.size()));
    if (line.ends_with('\r')) line.remove_suffix(1);
    return line;
}

}  // namespace

// One pass over one stretch of text.
class RowParser::Run {
public:
    Run(const RowParser& parser, const RowsBefore& before);

    ParsedRows parse(std::string_view text);

private:
    // What becomes of one field of each row; unused columns have no values.
    struct Slot {
        ColumnRole role = ColumnRole::Unused;
        std::vector<double>* values = nullptr;
    };

    void checkLine() const;
    void takeRow();
    void takeField(std::string_view field, std::size_t index);
    void checkTime(std::string_view field, double value);
    [[noreturn]] void refuseCount() const;
    [[noreturn]] void refuseField(std::string_view field, std::size_t index, FieldKind kind) const;
    FilePlace placeOf(std::string_view field) const;
    std::size_t lineNumber() const { return before_.lines + rows_.lines; }

    const std::filesystem::path& file_;
    const TableLayout& layout_;
    RowsBefore before_;
    ParsedRows rows_;
    std::vector<Slot> slots_;
    std::string_view line_;
};

RowParser::Run::Run(const RowParser& parser, const RowsBefore& before)
    : file_(parser.file_),
      layout_(parser.layout_),
      before_(before),
      slots_(parser.layout_.columnCount) {
    rows_.values.resize(parser.wanted_.size());
    for (std::size_t i = 0; i < parser.wanted_.size(); ++i) {
        slots_[parser.wanted_[i].index] = {parser.wanted_[i].role, &rows_.values[i]};
    }
}

ParsedRows RowParser::Run::parse(std::string_view text) {
    while (!text.empty()) {
        line_ = takeLine(text);
        ++rows_.lines;
        checkLine();
        if (!trimmed(line_).empty()) takeRow();
    }
    return std::move(rows_);
}

void RowParser::Run::checkLine() const {
    if (line_.size() <= LineReader::LongestLine) return;
    throw RecordingError({file_, lineNumber()}, "a longer line",
                         "lines of at most " + std::to_string(LineReader::LongestLine) + " bytes");
}

void RowParser::Run::takeRow() {
    if (before_.rows + ++rows_.rows > MaxSampleCount) {
        throw RecordingError({file_, lineNumber()}, "more rows",
                             "at most " + std::to_string(MaxSampleCount));
    }
    std::size_t index = 0;
    for (FieldCursor cursor(line_, layout_.delimiter); cursor.next(); ++index) {
        if (index == slots_.size()) refuseCount();
        if (slots_[index].values) takeField(cursor.field(), index);
    }
    if (index != slots_.size()) refuseCount();
}

void RowParser::Run::takeField(std::string_view field, std::size_t index) {
    const NumberField number = readNumber(field);
    const Slot& slot = slots_[index];
    const bool taken = number.kind == FieldKind::Number ||
                       (number.kind == FieldKind::Gap && mayHoldGaps(slot.role));
    if (!taken) refuseField(field, index, number.kind);
    if (slot.role == ColumnRole::Time) checkTime(field, number.value);
    slot.values->push_back(number.value);
}

void RowParser::Run::checkTime(std::string_view field, double value) {
    if (before_.time && value < *before_.time) {
        throw RecordingError(placeOf(field),
                             "time " + numberText(value) + " after " + numberText(*before_.time),
                             "time that does not run backward");
    }
    before_.time = value;
}

// The place is the first field too many, or where the first missing one would stand.
void RowParser::Run::refuseCount() const {
    const std::vector<std::string_view> fields = fieldsOf(line_, layout_.delimiter);
    const std::size_t found = fields.size();
    const bool tooMany = found > layout_.columnCount;
    const std::string_view end = line_.substr(line_.size());
    throw RecordingError(placeOf(tooMany ? fields[layout_.columnCount] : end),
                         std::to_string(found) + (found == 1 ? " field" : " fields"),
                         std::to_string(layout_.columnCount) + " as in line " +
                             std::to_string(layout_.firstDataLine));
}

void RowParser::Run::refuseField(std::string_view field, std::size_t index, FieldKind kind) const {
    const bool gapAllowed = mayHoldGaps(slots_[index].role);
    const std::string found = field.empty() ? "nothing" : inQuotes(field);
    const std::string range = kind == FieldKind::OutOfRange ? " from -1e+30 to 1e+30" : "";
    throw RecordingError(placeOf(field),
                         found + " in column " + inQuotes(layout_.head.columns[index].name),
                         "a number" + range + (gapAllowed ? ", or nothing for a gap" : ""));
}

FilePlace RowParser::Run::placeOf(std::string_view field) const {
    const auto before = line_.substr(0, static_cast<std::size_t>(field.data() - line_.data()));
    const auto characters = std::count_if(before.begin(), before.end(), beginsCharacter);
    return {file_, lineNumber(), static_cast<std::size_t>(characters) + 1};
}

RowParser::RowParser(const std::filesystem::path& file, const TableLayout& layout,
                     std::span<const WantedColumn> wanted)
    : file_(file), layout_(layout), wanted_(wanted.begin(), wanted.end()) {
    for (std::size_t i = 0; i < wanted_.size(); ++i) {
        if (wanted_[i].role == ColumnRole::Time) time_ = i;
    }
}

ParsedRows RowParser::parse(std::string_view text, const RowsBefore& before) const {
    return Run(*this, before).parse(text);
}

bool RowParser::follows(const ParsedRows& rows, const RowsBefore& before) const {
    if (before.rows + rows.rows > MaxSampleCount) return false;
    if (!time_ || !before.time || rows.rows == 0) return true;
    return rows.values[*time_].front() >= *before.time;
}

RowsBefore RowParser::behind(const ParsedRows& rows, const RowsBefore& before) const {
    RowsBefore next{before.lines + rows.lines, before.rows + rows.rows, before.time};
    if (time_ && rows.rows > 0) next.time = rows.values[*time_].back();
    return next;
}

}  // namespace Rotavue::Workbench
