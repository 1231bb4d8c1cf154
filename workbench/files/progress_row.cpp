#include "workbench/files/progress_row.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

namespace Rotavue::Workbench {
namespace {

constexpr int Steps = 1000;

}  // namespace

ProgressRow::ProgressRow(const QString& name, const QString& cancelTip, QWidget* parent)
    : QFrame(parent), text_(new QLabel(this)), progress_(new QProgressBar(this)) {
    setObjectName(name + QStringLiteral("Bar"));
    setFrameShape(QFrame::StyledPanel);
    text_->setTextFormat(Qt::PlainText);
    progress_->setObjectName(name + QStringLiteral("Progress"));
    progress_->setRange(0, Steps);
    auto* cancel = new QPushButton(tr("Cancel"), this);
    cancel->setObjectName(name + QStringLiteral("Cancel"));
    cancel->setToolTip(cancelTip);
    connect(cancel, &QPushButton::clicked, this, &ProgressRow::cancelled);
    auto* row = new QHBoxLayout(this);
    row->addWidget(text_);
    row->addWidget(progress_, 1);
    row->addWidget(cancel);
    hide();
}

void ProgressRow::tell(const QString& text, double part) {
    text_->setText(text);
    progress_->setValue(static_cast<int>(part * Steps));
}

}  // namespace Rotavue::Workbench
