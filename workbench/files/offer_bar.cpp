#include "workbench/files/offer_bar.h"

#include <QKeySequence>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

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
    : SignRow(QStringLiteral("offer"), QStyle::SP_MessageBoxInformation, parent),
      text_(new QLabel(this)),
      yes_(new QPushButton),
      no_(new QPushButton) {
    text_->setTextFormat(Qt::PlainText);
    text_->setWordWrap(true);
    content().addWidget(text_);
    add(*yes_, QStringLiteral("Yes"));
    add(*no_, QStringLiteral("No"));
    connect(yes_, &QPushButton::clicked, this, [this] { answer(offer_.take); });
    connect(no_, &QPushButton::clicked, this, [this] { answer(offer_.decline); });
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
