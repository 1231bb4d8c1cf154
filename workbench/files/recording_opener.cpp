#include "workbench/files/recording_opener.h"

#include "workbench/analysis/replace_file.h"
#include "workbench/recording/column_roles.h"
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

}  // namespace

RecordingOpener::RecordingOpener(QSettings& settings, QWidget* window)
    : QObject(window), memory_(settings), window_(window) {
    connect(&loader_, &RecordingLoader::failed, this,
            [this](const LoadRequest&, const QString& line) { Q_EMIT failed(line); });
    connect(&loader_, &RecordingLoader::loaded, this, [this](const LoadRequest& request) {
        if (request.isToBeKept) keepBeside(request.file, request.options);
    });
}

void RecordingOpener::open(const std::filesystem::path& file, const RecordingOptions& options) {
    enqueue({{.file = file, .options = options}});
}

void RecordingOpener::correct(std::shared_ptr<const PlaneSource> source) {
    enqueue({{.file = source->recording.file, .options = source->options, .instead = source},
             ImportPurpose::Correct});
}

void RecordingOpener::openFurtherPlane(const PlaneSource& source) {
    enqueue(
        {{.file = source.recording.file, .options = source.options}, ImportPurpose::FurtherPlane});
}

void RecordingOpener::enqueue(Waiting waiting) {
    waiting_.push_back(std::move(waiting));
    if (!dialog_) takeNext();
}

// One dialog at a time: the others wait until it has been answered.
void RecordingOpener::takeNext() {
    while (!waiting_.empty() && !dialog_) {
        const Waiting waiting = std::move(waiting_.front());
        waiting_.pop_front();
        try {
            take(waiting);
        } catch (const RecordingError& error) {
            Q_EMIT failed(QString::fromUtf8(error.what()));
        }
    }
}

void RecordingOpener::take(const Waiting& waiting) {
    const LoadRequest& request = waiting.request;
    if (waiting.purpose == ImportPurpose::Open) {
        const ImportPreview preview = previewImport(request.file, request.options);
        if (takeKnown(request, preview)) return;
        const auto remembered = memory_.find(preview.shape);
        const RecordingOptions known =
            remembered ? overlaid(remembered->options, request.options) : request.options;
        return ask(waiting, previewImport(request.file, known), known);
    }
    RecordingOptions known = withMachineFile(request.file, request.options);
    ImportPreview preview = previewImport(request.file, known);
    if (waiting.purpose == ImportPurpose::FurtherPlane) {
        preview.columns = nextPlane(std::move(preview.columns));
        known.point.reset();
    }
    ask(waiting, preview, known);
}

bool RecordingOpener::takeKnown(const LoadRequest& request, const ImportPreview& preview) {
    std::error_code fault;
    const bool told =
        request.options.machineFile || std::filesystem::exists(machineFileOf(request.file), fault);
    if (told || preview.isSure) {
        loader_.load(request);
        return true;
    }
    const auto remembered = memory_.find(preview.shape);
    if (!remembered || remembered->askAgain) return false;
    loader_.load({request.file, overlaid(remembered->options, request.options)});
    return true;
}

void RecordingOpener::ask(const Waiting& waiting, const ImportPreview& preview,
                          const RecordingOptions& known) {
    dialog_ = new ImportDialog(preview, known, window_, waiting.purpose);
    dialog_->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog_, &QDialog::finished, this, [this, waiting, shape = preview.shape](int result) {
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
    if (waiting.purpose != ImportPurpose::FurtherPlane)
        memory_.remember(shape, {ofItsShape(told), !dialog.isUsedWithoutAsking()});
    LoadRequest request = waiting.request;
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
