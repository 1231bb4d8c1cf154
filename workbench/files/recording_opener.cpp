#include "workbench/files/recording_opener.h"

#include "workbench/analysis/replace_file.h"
#include "workbench/files/import_dialog.h"
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
}

void RecordingOpener::open(const std::filesystem::path& file, const RecordingOptions& options) {
    waiting_.push_back({file, options});
    if (!dialog_) takeNext();
}

// One dialog at a time: the others wait until it has been answered.
void RecordingOpener::takeNext() {
    while (!waiting_.empty() && !dialog_) {
        const LoadRequest request = std::move(waiting_.front());
        waiting_.pop_front();
        try {
            const ImportPreview preview = previewImport(request.file, request.options);
            if (!takeKnown(request, preview)) ask(request, preview);
        } catch (const RecordingError& error) {
            Q_EMIT failed(QString::fromUtf8(error.what()));
        }
    }
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

void RecordingOpener::ask(const LoadRequest& request, const ImportPreview& preview) {
    const auto remembered = memory_.find(preview.shape);
    const RecordingOptions known =
        remembered ? overlaid(remembered->options, request.options) : request.options;
    ImportPreview guessed = previewImport(request.file, known);
    guessed.shape = preview.shape;
    dialog_ = new ImportDialog(guessed, known, window_);
    dialog_->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog_, &QDialog::finished, this, [this, guessed](int result) {
        const QPointer<ImportDialog> answered = std::exchange(dialog_, nullptr);
        if (result == QDialog::Accepted) {
            takeAnswer(guessed, *answered);
        } else {
            Q_EMIT declined(guessed.file);
        }
        takeNext();
    });
    dialog_->open();
}

void RecordingOpener::takeAnswer(const ImportPreview& preview, const ImportDialog& dialog) {
    memory_.remember(preview.shape, {ofItsShape(dialog.options()), !dialog.isUsedWithoutAsking()});
    if (dialog.isKeptBeside()) keepBeside(preview.file, dialog.options());
    loader_.load({preview.file, dialog.options()});
}

// The recording opens whether that succeeds or not.
void RecordingOpener::keepBeside(const std::filesystem::path& file,
                                 const RecordingOptions& options) {
    const std::filesystem::path beside = machineFileOf(file);
    const std::error_code fault = replaceFile(beside, machineText(options));
    if (!fault) return;
    const RecordingError error({beside}, inQuotes(fault.message()), "a folder to write to");
    Q_EMIT failed(QString::fromUtf8(error.what()));
}

}  // namespace Rotavue::Workbench
