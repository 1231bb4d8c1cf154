#include "workbench/recording/table_layout.h"

#include <algorithm>
#include <string>

#include "workbench/recording/column_name.h"
#include "workbench/recording/fields.h"
#include "workbench/recording/header_keys.h"
#include "workbench/recording/line_reader.h"
#include "workbench/recording/number_field.h"

namespace Rotavue::Workbench {
namespace {

constexpr std::size_t LongestHeader = 1000;
constexpr std::size_t MostColumns = 1024;

char delimiterOf(std::string_view line) {
    for (const char candidate : {'\t', ';'}) {
        if (line.find(candidate) != std::string_view::npos) return candidate;
    }
    return ',';
}

bool isNumber(std::string_view field) {
    return readNumber(field).kind == FieldKind::Number;
}

bool isText(std::string_view field) {
    return readNumber(field).kind == FieldKind::Text;
}

bool isRow(std::string_view line) {
    const auto fields = fieldsOf(line, delimiterOf(line));
    return fields.size() >= 2 && std::any_of(fields.begin(), fields.end(), isNumber) &&
           std::none_of(fields.begin(), fields.end(), isText);
}

class LayoutFinder {
public:
    explicit LayoutFinder(const std::filesystem::path& file) : file_(file), reader_(file) {}

    TableLayout find();

private:
    using Fields = std::vector<std::string_view>;

    void readToFirstRow();
    void takeFirstRow();
    [[noreturn]] void refuseTextOnly() const;
    std::size_t lineAbove(std::size_t number) const;
    Fields fieldsAt(std::size_t number) const;
    bool fits(std::size_t number) const;
    bool holdsUnits(std::size_t number) const;
    bool holdsNames(std::size_t number) const;
    void refuseSpoiltRow(std::size_t number, const Fields& fields) const;
    void refuseOtherCount(std::size_t number, std::size_t count) const;
    void takeNames(std::size_t number);
    void takeUnits(std::size_t number);
    void numberColumns();
    void takeKeys(std::size_t endLine);
    void readPreview();
    bool takePreviewRow(std::string_view line);

    std::filesystem::path file_;
    LineReader reader_;
    std::vector<std::string> lines_;  // above the first row
    bool openEnd_ = false;            // the first row ends with a delimiter
    TableLayout layout_;
};

TableLayout LayoutFinder::find() {
    readToFirstRow();
    takeFirstRow();
    std::size_t names = lineAbove(layout_.firstDataLine);
    const std::size_t units = holdsUnits(names) ? names : 0;
    if (units) names = lineAbove(units);
    if (holdsNames(names)) {
        takeNames(names);
        takeUnits(units);
    } else {
        numberColumns();
        readPreview();
    }
    takeKeys(layout_.headerLine ? layout_.headerLine : layout_.firstDataLine);
    return std::move(layout_);
}

void LayoutFinder::readToFirstRow() {
    while (lines_.size() < LongestHeader && reader_.next()) {
        if (isRow(reader_.line())) return;
        lines_.emplace_back(reader_.line());
        if (lines_.front().starts_with("BEGIN_")) {
            throw RecordingError({file_, 1, 1}, inQuotes(lines_.front()),
                                 "a table; blocks that begin so are not read");
        }
    }
    refuseTextOnly();
}

void LayoutFinder::takeFirstRow() {
    layout_.firstDataLine = reader_.number();
    layout_.firstDataOffset = reader_.offset();
    layout_.delimiter = delimiterOf(reader_.line());
    const Fields fields = fieldsOf(reader_.line(), layout_.delimiter);
    layout_.columnCount = fields.size();
    openEnd_ = fields.back().empty();
    if (layout_.columnCount > MostColumns) {
        throw RecordingError({file_, reader_.number()},
                             std::to_string(layout_.columnCount) + " columns",
                             "at most " + std::to_string(MostColumns));
    }
}

// The likeliest row with a fault is the first line of numbers and texts.
void LayoutFinder::refuseTextOnly() const {
    for (std::size_t i = 0; i < lines_.size(); ++i) {
        const auto fields = fieldsOf(lines_[i], delimiterOf(lines_[i]));
        if (std::count_if(fields.begin(), fields.end(), isNumber) >= 2) {
            refuseSpoiltRow(i + 1, fields);
        }
    }
    throw RecordingError({file_},
                         "no row of numbers in " + std::to_string(lines_.size()) + " lines",
                         "rows of two or more numbers between commas, semicolons or tabs");
}

// The nearest line above that is not blank; 0 if there is none.
std::size_t LayoutFinder::lineAbove(std::size_t number) const {
    while (number > 1 && trimmed(lines_[number - 2]).empty())
        --number;
    return number > 0 ? number - 1 : 0;
}

LayoutFinder::Fields LayoutFinder::fieldsAt(std::size_t number) const {
    return number ? fieldsOf(lines_[number - 1], layout_.delimiter) : Fields();
}

// A delimiter behind the last name, or behind the last number, is no column of its own.
bool LayoutFinder::fits(std::size_t number) const {
    const Fields fields = fieldsAt(number);
    const std::size_t count = layout_.columnCount;
    return fields.size() == count || (fields.size() == count + 1 && fields.back().empty()) ||
           (fields.size() + 1 == count && openEnd_);
}

bool LayoutFinder::holdsUnits(std::size_t number) const {
    const Fields fields = fieldsAt(number);
    return !fields.empty() && fits(number) && fits(lineAbove(number)) &&
           std::all_of(fields.begin(), fields.end(),
                       [](std::string_view field) { return field.empty() || isUnitText(field); });
}

bool LayoutFinder::holdsNames(std::size_t number) const {
    const Fields fields = fieldsAt(number);
    if (!fits(number)) {
        refuseOtherCount(number, fields.size());
        return false;
    }
    const auto isFigure = [](std::string_view field) { return isNumber(field); };
    if (std::none_of(fields.begin(), fields.end(), isFigure)) return !fields.empty();
    const bool keyAndValue = layout_.columnCount == 2 && !isNumber(fields.front());
    if (isNumber(fields.front()) || (!keyAndValue && fits(lineAbove(number)))) {
        refuseSpoiltRow(number, fields);
    }
    return !keyAndValue;
}

void LayoutFinder::refuseSpoiltRow(std::size_t number, const Fields& fields) const {
    for (const std::string_view field : fields) {
        if (readNumber(field).kind != FieldKind::Text) continue;
        const auto column = static_cast<std::size_t>(field.data() - lines_[number - 1].data()) + 1;
        throw RecordingError({file_, number, column}, inQuotes(field), "a number");
    }
}

// One or two fields are a title or a key with its value; more are names, and then too few or many.
void LayoutFinder::refuseOtherCount(std::size_t number, std::size_t count) const {
    if (count < 3) return;
    throw RecordingError(
        {file_, layout_.firstDataLine}, std::to_string(layout_.columnCount) + " fields",
        std::to_string(count) + " as in line " + std::to_string(number) +
            "; decimal commas need semicolons or tabs between the columns, or quotes");
}

void LayoutFinder::takeNames(std::size_t number) {
    layout_.headerLine = number;
    for (std::string_view field : fieldsAt(number)) {
        if (layout_.head.columns.empty()) {
            field.remove_prefix(std::min(field.find_first_not_of("#% "), field.size()));
        }
        NameWithUnit name = splitUnit(field);
        layout_.head.columns.push_back({std::move(name.name), std::move(name.unit)});
    }
    layout_.head.columns.resize(layout_.columnCount);
    for (std::size_t i = 0; i < layout_.columnCount; ++i) {
        std::string& name = layout_.head.columns[i].name;
        if (name.empty()) name = std::to_string(i + 1);
    }
}

void LayoutFinder::takeUnits(std::size_t number) {
    const Fields units = fieldsAt(number);
    for (std::size_t i = 0; i < std::min(units.size(), layout_.columnCount); ++i) {
        layout_.head.columns[i].unit = withoutBrackets(units[i]);
    }
}

void LayoutFinder::numberColumns() {
    layout_.head.namesGiven = false;
    for (std::size_t i = 0; i < layout_.columnCount; ++i) {
        layout_.head.columns.push_back({std::to_string(i + 1), ""});
    }
}

void LayoutFinder::takeKeys(std::size_t endLine) {
    for (std::size_t number = 1; number < endLine; ++number) {
        const std::string& line = lines_[number - 1];
        const Fields fields = fieldsOf(line, delimiterOf(line));
        if (fields.size() >= 2) takeHeaderKey(fields[0], fields[1], layout_.head);
    }
}

void LayoutFinder::readPreview() {
    layout_.head.preview.resize(layout_.columnCount);
    std::size_t rows = 0;
    do {
        if (!takePreviewRow(reader_.line())) return;
    } while (++rows < PreviewRowCount && reader_.next());
}

// False at a row with another number of fields: reading the rows will say what is wrong.
bool LayoutFinder::takePreviewRow(std::string_view line) {
    const Fields fields = fieldsOf(line, layout_.delimiter);
    if (fields.size() != layout_.columnCount) return false;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        layout_.head.preview[i].push_back(readNumber(fields[i]).value);
    }
    return true;
}

}  // namespace

TableLayout findTableLayout(const std::filesystem::path& file) {
    return LayoutFinder(file).find();
}

}  // namespace Rotavue::Workbench
