#include "workbench/files/offer_bar.h"

#include <QHBoxLayout>
#include <QKeySequence>
#include <QLabel>
#include <QPushButton>
#include <QStyle>

#include <utility>

namespace Rotavue::Workbench {
namespace {

void setWords(QPushButton& button, const QString& words) {
    button.setText(words);
    const QString key = QKeySequence::mnemonic(words).toString(QKeySequence::NativeText);
    button.setToolTip(QString(words).remove(u'&') + " (" + key + ')');
}

}  // namespace

OfferBar::OfferBar(QWidget* parent)
    : QFrame(parent), text_(new QLabel(this)), yes_(new QPushButton), no_(new QPushButton) {
    setObjectName(QStringLiteral("offerBar"));
    setFrameShape(QFrame::StyledPanel);
    text_->setTextFormat(Qt::PlainText);
    text_->setWordWrap(true);
    yes_->setObjectName(QStringLiteral("offerYes"));
    no_->setObjectName(QStringLiteral("offerNo"));
    auto* row = new QHBoxLayout(this);
    auto* sign = new QLabel(this);
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
    sign->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxInformation).pixmap(size, size));
    row->addWidget(sign);
    row->addWidget(text_, 1);
    row->addWidget(yes_);
    row->addWidget(no_);
    connect(yes_, &QPushButton::clicked, this, [this] { answer(offer_.take); });
    connect(no_, &QPushButton::clicked, this, [this] { answer(offer_.decline); });
    hide();
}

void OfferBar::offer(Offer offer) {
    offer_ = std::move(offer);
    text_->setText(offer_.text);
    setWords(*yes_, offer_.yes);
    setWords(*no_, offer_.no);
    show();
}

// The answer may bring the next offer.
void OfferBar::answer(const std::function<void()>& deed) {
    const std::function<void()> kept = deed;
    hide();
    kept();
}

}  // namespace Rotavue::Workbench
