#pragma once

#include "workbench/files/sign_row.h"

#include <QString>

#include <functional>

class QLabel;
class QPushButton;

namespace Rotavue::Workbench {

/// Offers something in one line with two buttons, above what is shown. It takes no focus, waits for
/// as long as it likes, and is hidden while there is nothing to offer.
class OfferBar : public SignRow {
    Q_OBJECT

public:
    struct Offer {
        QString text;
        QString yes;  ///< a button's words with its key, "&Restore"
        QString no;
        std::function<void()> take;
        std::function<void()> decline;
    };

    explicit OfferBar(QWidget* parent = nullptr);

    /// In the place of the last offer, if there is one.
    void offer(Offer offer);

private:
    void answer(const std::function<void()>& deed);

    Offer offer_;
    QLabel* text_;
    QPushButton* yes_;
    QPushButton* no_;
};

}  // namespace Rotavue::Workbench
