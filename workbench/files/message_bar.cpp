#include "workbench/files/message_bar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

#include <utility>

namespace Rotavue::Workbench {

MessageBar::MessageBar(QWidget* parent)
    : SignRow(QStringLiteral("message"), QStyle::SP_MessageBoxWarning, parent) {
    auto* close = new QToolButton(this);
    close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    close->setToolTip(tr("Close these messages"));
    close->setAccessibleName(tr("Close these messages"));
    close->setAutoRaise(true);
    add(*close, QStringLiteral("Close"));
    connect(close, &QToolButton::clicked, this, &MessageBar::clear);
}

QStringList MessageBar::lines() const {
    QStringList lines;
    for (const Message& message : messages_)
        lines += message.line;
    return lines;
}

void MessageBar::tell(const QString& line, MessageRemedy remedy) {
    drop(line);
    messages_.push_back({line, std::move(remedy)});
    if (messages_.size() > MostLines) messages_.erase(messages_.begin());
    show();
}

void MessageBar::clear() {
    messages_.clear();
    show();
}

void MessageBar::drop(const QString& line) {
    std::erase_if(messages_, [&](const Message& message) { return message.line == line; });
}

// A button may be what asks for this: rows go once it has been served.
void MessageBar::show() {
    while (QLayoutItem* item = content().takeAt(0)) {
        item->widget()->setParent(nullptr);
        item->widget()->deleteLater();
        delete item;
    }
    for (const Message& message : messages_)
        content().addWidget(makeRow(message));
    setVisible(!messages_.empty());
}

QWidget* MessageBar::makeRow(const Message& message) {
    auto* row = new QWidget(this);
    auto* line = new QHBoxLayout(row);
    line->setContentsMargins(0, 0, 0, 0);
    auto* text = new QLabel(message.line, row);
    text->setObjectName(QStringLiteral("messageText"));
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    line->addWidget(text, 1);
    if (!message.remedy.run) return row;
    auto* button = new QPushButton(message.remedy.name, row);
    button->setObjectName(QStringLiteral("messageRemedy"));
    button->setAutoDefault(false);
    line->addWidget(button, 0, Qt::AlignTop);
    connect(button, &QPushButton::clicked, this, [this, message] {
        drop(message.line);
        show();
        message.remedy.run();
    });
    return row;
}

}  // namespace Rotavue::Workbench
