#include "workbench/files/loading_bar.h"

#include "workbench/files/recording_loader.h"

namespace Rotavue::Workbench {
namespace {

QString nameOf(const LoadRequest& request) {
    return QString::fromStdString(request.file.filename().string());
}

}  // namespace

LoadingBar::LoadingBar(RecordingLoader& loader, QWidget* parent)
    : ProgressRow(QStringLiteral("loading"),
                  tr("Load no more of this recording, nor of those that wait"), parent) {
    connect(this, &ProgressRow::cancelled, &loader, &RecordingLoader::cancel);
    connect(&loader, &RecordingLoader::progressed, this,
            [this](const LoadRequest& request, double part, qint64 elapsed) {
                tell(tr("Reading %1").arg(nameOf(request)), part);
                if (elapsed >= Delay) show();
            });
    connect(&loader, &RecordingLoader::idle, this, &QWidget::hide);
}

}  // namespace Rotavue::Workbench
