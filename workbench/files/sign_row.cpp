#include "workbench/files/sign_row.h"

#include <QAbstractButton>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace Rotavue::Workbench {

SignRow::SignRow(const QString& name, QStyle::StandardPixmap sign, QWidget* parent)
    : QFrame(parent), name_(name), row_(new QHBoxLayout(this)), content_(new QVBoxLayout) {
    setObjectName(name + QStringLiteral("Bar"));
    setFrameShape(QFrame::StyledPanel);
    auto* picture = new QLabel(this);
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
    picture->setPixmap(style()->standardIcon(sign).pixmap(size, size));
    content_->setSpacing(2);
    row_->addWidget(picture);
    row_->addLayout(content_, 1);
    hide();
}

void SignRow::add(QAbstractButton& button, const QString& part) {
    button.setObjectName(name_ + part);
    row_->addWidget(&button);
}

}  // namespace Rotavue::Workbench
