#include "workbench/files/recording_opener.h"

#include <algorithm>
#include <exception>
#include <set>
#include <span>

#include "workbench/analysis/replace_file.h"
#include "workbench/recording/column_roles.h"
#include "workbench/recording/far_mean.h"
#include "workbench/recording/machine_file.h"
#include "workbench/recording/recording_error.h"

namespace Rotavue::Workbench {
namespace {

// The names belong to one recording, whatever others look like.
RecordingOptions ofItsShape(RecordingOptions options) {
    options.machine.reset();
    options.point.reset();
    return options;
}

const std::string& unitOf(const Recording& recording, ColumnRole role) {
    const auto column =
        std::find_if(recording.columns.begin(), recording.columns.end(),
                     [role](const RecordingColumn& one) { return one.role == role; });
    static const std::string none;
    return column != recording.columns.end() ? column->unit : none;
}

// Where the volts of a gap have been, the shaft may well have rested; a person sees it and decides.
void fillRestOf(ProbeOptions& probe, SampleView values, const std::string& unit) {
    constexpr std::size_t Enough = 1'000'000;  // a millisecond's worth
    if (probe.rest || (unit != "V" && unit != "mV")) return;
    const auto far = farMean(values.part(0, std::min(values.size(), Enough)));
    if (far) probe.rest = inThreeDigits(far->mean * probe.sensitivity.value_or(1.0));
}

void fillRest(RecordingOptions& known, const Recording& recording) {
    if (recording.coupling == Coupling::Ac) return;
    fillRestOf(known.x, recording.x, unitOf(recording, ColumnRole::X));
    fillRestOf(known.y, recording.y, unitOf(recording, ColumnRole::Y));
}

std::set<std::string> probesOf(const std::vector<RecordingColumn>& columns) {
    std::set<std::string> names;
    for (const RecordingColumn& column : columns)
        if (column.role == ColumnRole::X || column.role == ColumnRole::Y) names.insert(column.name);
    return names;
}

}  // namespace

RecordingOpener::RecordingOpener(QSettings& settings, QWidget* window, ImportReader::Read read)
    : QObject(window), memory_(settings), window_(window), reader_(std::move(read)) {
    connect(&reader_, &ImportReader::arrived, this, &RecordingOpener::takeFacts);
    connect(&reader_, &ImportReader::failed, this, [this](const QString& line) {
        Q_EMIT failed(line);
        takeNext();
    });
    connect(&reader_, &ImportReader::cancelled, this, &RecordingOpener::dropWaiting);
    connect(&loader_, &RecordingLoader::failed, this, &RecordingOpener::takeUnread);
    connect(&loader_, &RecordingLoader::loaded, this, [this](const LoadRequest& request) {
        if (request.isToBeKept) keepBeside(request.file, request.options);
    });
    connect(&loader_, &RecordingLoader::idle, this, &RecordingOpener::tellIfIdle);
}

void RecordingOpener::open(const std::filesystem::path& file, const RecordingOptions& options) {
    enqueue({.request = {.file = file, .options = options}});
}

void RecordingOpener::correct(std::shared_ptr<const PlaneSource> source) {
    enqueue(
        {.request = {.file = source->recording.file, .options = source->options, .instead = source},
         .purpose = ImportPurpose::Correct});
}

void RecordingOpener::openFurtherPlane(const PlaneSource& source) {
    enqueue({.request = {.file = source.recording.file,
                         .options = source.options,
                         .isFurtherPlane = true},
             .purpose = ImportPurpose::FurtherPlane});
}

void RecordingOpener::mend(const LoadRequest& request) {
    enqueue({.request = request, .purpose = ImportPurpose::Mend});
}

void RecordingOpener::afterwards(std::function<void()> act) {
    enqueue({.act = std::move(act)});
}

void RecordingOpener::enqueue(Waiting waiting) {
    waiting_.push_back(std::move(waiting));
    takeNext();
}

// One at a time: the others wait until it has been read and its question answered.
void RecordingOpener::takeNext() {
    while (!waiting_.empty() && !dialog_ && !reader_.isReading()) {
        current_ = std::move(waiting_.front());
        waiting_.pop_front();
        if (current_.act) {
            std::exchange(current_.act, {})();
        } else {
            reader_.read(current_.request.file, current_.request.options);
        }
    }
    tellIfIdle();
}

void RecordingOpener::tellIfIdle() {
    if (waiting_.empty() && !dialog_ && !isReading()) Q_EMIT idle();
}

void RecordingOpener::takeFacts(const ImportFacts& facts) {
    try {
        if (current_.purpose == ImportPurpose::Open) {
            openNew(facts);
        } else {
            askAgain(facts);
        }
    } catch (const std::exception& error) {
        Q_EMIT failed(QString::fromUtf8(error.what()));
    }
    takeNext();
}

// Nobody waits for what was cancelled, nor for what was to come behind it.
void RecordingOpener::dropWaiting() {
    std::deque<Waiting> dropped = std::exchange(waiting_, {});
    dropped.push_front(std::exchange(current_, {}));
    for (const Waiting& waiting : dropped)
        if (!waiting.act) Q_EMIT declined(waiting.request.file);
    tellIfIdle();
}

void RecordingOpener::openNew(const ImportFacts& facts) {
    const LoadRequest& request = current_.request;
    const ImportPreview preview = previewOf(facts.beginning, request.options);
    if (takeKnown(request, preview, facts)) return;
    refuseSingleProbe(preview);
    const auto remembered = memory_.find(facts.beginning.shape);
    const RecordingOptions known =
        remembered ? overlaid(remembered->options, request.options) : request.options;
    ask(current_, facts.beginning.shape, previewOf(facts.beginning, known), known);
}

void RecordingOpener::askAgain(const ImportFacts& facts) {
    RecordingOptions known = facts.known;
    if (current_.purpose == ImportPurpose::Correct) {
        const PlaneSource& source = *current_.request.instead;
        current_.request.isFurtherPlane = isFurtherPlane(source, facts);
        fillRest(known, source.recording);
    }
    ImportPreview preview = previewOf(facts.beginning, known);
    if (current_.purpose == ImportPurpose::FurtherPlane) {
        preview.columns = nextPlane(std::move(preview.columns));
        known.point.reset();
    }
    ask(current_, facts.beginning.shape, preview, known);
}

// Whether the file would open with other columns, by its machine file, what is remembered for its
// shape, or its names.
bool RecordingOpener::isFurtherPlane(const PlaneSource& source, const ImportFacts& facts) const {
    const auto remembered = memory_.find(facts.beginning.shape);
    const bool isRemembered = remembered && !facts.hasMachineFile;
    const auto others = probesOf(
        previewOf(facts.beginning, isRemembered ? remembered->options : facts.usual).columns);
    const auto own = probesOf(source.recording.columns);
    const bool shared = std::any_of(others.begin(), others.end(),
                                    [&](const auto& name) { return own.contains(name); });
    return !others.empty() && !shared;
}

bool RecordingOpener::takeKnown(const LoadRequest& request, const ImportPreview& preview,
                                const ImportFacts& facts) {
    if (request.options.machineFile || facts.hasMachineFile || preview.isSure) {
        loader_.load(request);
        return true;
    }
    const auto remembered = memory_.find(facts.beginning.shape);
    const bool isTold = remembered && !remembered->askAgain && preview.hasNames;
    if (!isTold) return false;
    LoadRequest known = request;
    known.options = overlaid(remembered->options, request.options);
    known.isRemembered = true;
    loader_.load(std::move(known));
    return true;
}

// A recording of a view comes with the view, or not at all. No answer helps what is no table.
void RecordingOpener::takeUnread(const LoadRequest& request, const QString& line, bool mayBeTold) {
    if (request.isOfView || !mayBeTold) return Q_EMIT failed(line);
    Q_EMIT misread(request, line);
}

void RecordingOpener::ask(const Waiting& waiting, const std::string& shape,
                          const ImportPreview& preview, const RecordingOptions& known) {
    dialog_ = new ImportDialog(preview, known, window_, waiting.purpose);
    if (waiting.request.isFurtherPlane) dialog_->keepNothing();
    dialog_->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog_, &QDialog::finished, this, [this, waiting, shape](int result) {
        const QPointer<ImportDialog> answered = std::exchange(dialog_, nullptr);
        if (result == QDialog::Accepted) {
            takeAnswer(waiting, shape, *answered);
        } else {
            Q_EMIT declined(waiting.request.file);
        }
        takeNext();
    });
    dialog_->open();
}

void RecordingOpener::takeAnswer(const Waiting& waiting, const std::string& shape,
                                 const ImportDialog& dialog) {
    const RecordingOptions& told = dialog.options();
    // Other columns of one file say nothing about what the next one holds.
    if (!waiting.request.isFurtherPlane)
        memory_.remember(shape, {ofItsShape(told), !dialog.isUsedWithoutAsking()});
    LoadRequest request = waiting.request;
    request.isRemembered = false;
    request.options = told;
    request.options.machineFile = "";  // what was left open there is open
    request.isToBeKept = dialog.isKeptBeside();
    loader_.load(std::move(request));
}

// Written once the recording has been read with it: a wrong answer leaves what was there. The
// recording opens whether that succeeds or not.
void RecordingOpener::keepBeside(const std::filesystem::path& file,
                                 const RecordingOptions& options) {
    const std::filesystem::path beside = machineFileOf(file);
    const std::error_code fault = replaceFile(beside, machineText(options));
    if (!fault) return;
    const RecordingError error({beside}, inQuotes(fault.message()), "a folder to write to");
    Q_EMIT failed(QString::fromUtf8(error.what()));
}

}  // namespace Rotavue::Workbench
