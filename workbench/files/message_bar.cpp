#include "workbench/files/message_bar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>
#include <QToolButton>

#include <algorithm>

namespace Rotavue::Workbench {

MessageBar::MessageBar(QWidget* parent)
    : QFrame(parent), text_(new QLabel(this)), close_(new QToolButton(this)) {
    setObjectName(QStringLiteral("messageBar"));
    setFrameShape(QFrame::StyledPanel);
    text_->setObjectName(QStringLiteral("messageText"));
    text_->setTextFormat(Qt::PlainText);
    text_->setWordWrap(true);
    text_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    close_->setObjectName(QStringLiteral("messageClose"));
    close_->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    close_->setToolTip(tr("Close these messages"));
    close_->setAccessibleName(tr("Close these messages"));
    close_->setAutoRaise(true);
    connect(close_, &QToolButton::clicked, this, &MessageBar::clear);
    auto* row = new QHBoxLayout(this);
    auto* sign = new QLabel(this);
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
    sign->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(size, size));
    row->addWidget(sign);
    row->addWidget(text_, 1);
    row->addWidget(close_);
    hide();
}

void MessageBar::tell(const QString& line) {
    QStringList lines = lines_;
    lines.removeAll(line);
    lines.append(line);
    show(lines.mid(std::max<qsizetype>(0, lines.size() - MostLines)));
}

void MessageBar::clear() {
    show({});
}

void MessageBar::show(const QStringList& lines) {
    lines_ = lines;
    text_->setText(lines.join(u'\n'));
    setVisible(!lines.isEmpty());
}

}  // namespace Rotavue::Workbench
