#include "workbench/files/loading_bar.h"

#include "workbench/files/import_reader.h"
#include "workbench/files/recording_loader.h"

namespace Rotavue::Workbench {

LoadingBar::LoadingBar(RecordingLoader& loader, ImportReader& reader, QWidget* parent)
    : ProgressRow(QStringLiteral("loading"),
                  tr("Load no more of this recording, nor of those that wait"), parent) {
    connect(this, &ProgressRow::cancelled, &reader, &ImportReader::cancel);
    connect(this, &ProgressRow::cancelled, &loader, &RecordingLoader::cancel);
    connect(&loader, &RecordingLoader::progressed, this,
            [this](const LoadRequest& request, double part, qint64 elapsed) {
                tellOf(request.file, part, elapsed);
            });
    connect(
        &reader, &ImportReader::waited, this,
        [this](const std::filesystem::path& file, qint64 elapsed) { tellOf(file, 0.0, elapsed); });
    const auto end = [this, &loader, &reader] {
        if (!loader.isLoading() && !reader.isReading()) hide();
    };
    connect(&loader, &RecordingLoader::idle, this, end);
    connect(&reader, &ImportReader::arrived, this, end);
    connect(&reader, &ImportReader::failed, this, end);
    connect(&reader, &ImportReader::cancelled, this, end);
}

void LoadingBar::tellOf(const std::filesystem::path& file, double part, qint64 elapsed) {
    tell(tr("Reading %1").arg(QString::fromStdString(file.filename().string())), part);
    if (elapsed >= Delay) show();
}

}  // namespace Rotavue::Workbench
