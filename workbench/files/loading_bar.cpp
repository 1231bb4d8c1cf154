#include "workbench/files/loading_bar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

#include "workbench/files/recording_loader.h"

namespace Rotavue::Workbench {
namespace {

constexpr int Steps = 1000;

QString nameOf(const LoadRequest& request) {
    return QString::fromStdString(request.file.filename().string());
}

}  // namespace

LoadingBar::LoadingBar(RecordingLoader& loader, QWidget* parent)
    : QFrame(parent), text_(new QLabel(this)), progress_(new QProgressBar(this)) {
    setObjectName(QStringLiteral("loadingBar"));
    setFrameShape(QFrame::StyledPanel);
    text_->setTextFormat(Qt::PlainText);
    progress_->setObjectName(QStringLiteral("loadingProgress"));
    progress_->setRange(0, Steps);
    auto* cancel = new QPushButton(tr("Cancel"), this);
    cancel->setObjectName(QStringLiteral("loadingCancel"));
    cancel->setToolTip(tr("Load no more of this recording, nor of those that wait"));
    connect(cancel, &QPushButton::clicked, &loader, &RecordingLoader::cancel);
    auto* row = new QHBoxLayout(this);
    row->addWidget(text_);
    row->addWidget(progress_, 1);
    row->addWidget(cancel);
    hide();
    connect(&loader, &RecordingLoader::progressed, this,
            [this](const LoadRequest& request, double part, qint64 elapsed) {
                text_->setText(tr("Reading %1").arg(nameOf(request)));
                progress_->setValue(static_cast<int>(part * Steps));
                if (elapsed >= Delay) show();
            });
    connect(&loader, &RecordingLoader::idle, this, &QWidget::hide);
}

}  // namespace Rotavue::Workbench
