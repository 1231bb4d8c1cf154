#include "workbench/files/import_preview.h"

#include <algorithm>
#include <utility>

#include "workbench/recording/column_roles.h"
#include "workbench/recording/fields.h"
#include "workbench/recording/line_reader.h"
#include "workbench/recording/option_items.h"
#include "workbench/recording/table_layout.h"
#include "workbench/recording/wav_file.h"

namespace Rotavue::Workbench {
namespace {

using Rows = std::vector<std::vector<std::string>>;

constexpr std::size_t MostLinesOfRows = 256;  // the first rows and blank lines between them
constexpr std::size_t ProbesOfAPlane = 2;

bool hasRole(const ImportPreview& preview, ColumnRole role) {
    return std::any_of(preview.columns.begin(), preview.columns.end(),
                       [&](const RecordingColumn& column) { return column.role == role; });
}

std::string shapeOf(const SourceHead& head, const std::string& kind) {
    std::string shape = kind + ' ' + std::to_string(head.columns.size());
    for (const RecordingColumn& column : head.columns) {
        if (head.namesGiven) shape += '|' + column.name + '[' + column.unit + ']';
    }
    return shape;
}

Rows rowsOf(const std::filesystem::path& file, const TableLayout& layout) {
    Rows rows;
    LineReader reader(file);
    const std::size_t end = layout.firstDataLine + MostLinesOfRows;
    while (rows.size() < ImportRowCount && reader.number() + 1 < end && reader.next()) {
        if (reader.number() < layout.firstDataLine || trimmed(reader.line()).empty()) continue;
        const auto fields = fieldsOf(reader.line(), layout.delimiter);
        rows.emplace_back(fields.begin(), fields.end());
        rows.back().resize(layout.columnCount);
    }
    return rows;
}

Rows rowsOf(WavFile& wav) {
    Rows rows;
    for (const std::vector<double>& frame : wav.firstFrames(ImportRowCount)) {
        rows.emplace_back();
        for (const double value : frame)
            rows.back().push_back(numberText(value));
    }
    return rows;
}

}  // namespace

void refuseSingleProbe(const ImportPreview& preview) {
    const auto times = std::count_if(
        preview.columns.begin(), preview.columns.end(),
        [](const RecordingColumn& column) { return column.role == ColumnRole::Time; });
    if (preview.columns.size() - static_cast<std::size_t>(times) >= ProbesOfAPlane) return;
    throw RecordingError({preview.file}, "one column of values",
                         "the two probes of a plane, side by side in one file");
}

FileBeginning readBeginning(const std::filesystem::path& file) {
    if (isWavFile(file) || file.extension() == ".wav") {
        WavFile wav(file);
        const std::string kind = "wav " + numberText(wav.head().rate.value_or(0.0));
        return {file, wav.head(), rowsOf(wav), shapeOf(wav.head(), kind)};
    }
    TableLayout layout = findTableLayout(file);
    Rows rows = rowsOf(file, layout);
    std::string shape = shapeOf(layout.head, std::string("table ") + layout.delimiter);
    return {file, std::move(layout.head), std::move(rows), std::move(shape)};
}

ImportPreview previewOf(const FileBeginning& beginning, const RecordingOptions& options) {
    const SourceHead& head = beginning.head;
    ImportPreview preview;
    preview.file = beginning.file;
    preview.columns = guessRoles(head, options);
    preview.rows = beginning.rows;
    preview.rate = head.rate;
    preview.unit = head.unit;
    preview.machine = head.machine;
    preview.point = head.point;
    preview.hasNames = head.namesGiven;
    const bool namesTell = head.namesGiven && furtherProbes(preview.columns).empty();
    const bool optionsTell = options.x.column && options.y.column;
    preview.isSure = (namesTell || optionsTell) && hasRole(preview, ColumnRole::X) &&
                     hasRole(preview, ColumnRole::Y) &&
                     (preview.rate || options.rate || hasRole(preview, ColumnRole::Time));
    return preview;
}

}  // namespace Rotavue::Workbench
