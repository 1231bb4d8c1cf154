#pragma once

#include <QObject>
#include <QTimer>

#include <deque>
#include <functional>

#include "workbench/bench/bench.h"
#include "workbench/files/offer_bar.h"
#include "workbench/files/unsaved_views.h"

namespace Rotavue::Workbench {

/// Keeps what a window has not saved, so that a crash loses the last moments alone, and offers what
/// a crash has left behind. Recordings are never kept: a view names them.
class Autosave : public QObject {
    Q_OBJECT

public:
    static constexpr int Interval = 5000;  ///< ms from a change until it is kept

    using MakeView = std::function<View()>;

    /// `view` says what the window shows; the bar offers. Bench and bar may go shortly before this
    /// does, as parts of a window that ends, but not while events are handled.
    Autosave(Bench& bench, OfferBar& bar, QString folder, MakeView view, QObject* parent = nullptr);

    /// An orderly end keeps nothing. Where an exception ends the window, what was kept stays.
    ~Autosave() override;

    /// Keeps the view now, if there are changes.
    void keepNow();

    /// Nothing of the window is to be kept: it has been saved, or its user does not want it.
    void forget() { views_.forget(); }

    /// A view that was wanted is shown in full: what was left behind is not needed any more.
    void restored();

    /// It could not be shown. It stays for the next start.
    void notRestored();

Q_SIGNALS:
    /// The user wants what a crash left behind.
    void wanted(const QString& file);

    void failed(const QString& line);

private:
    void offerNext();
    void take();
    void decline();

    Bench& bench_;
    OfferBar& bar_;
    UnsavedViews views_;
    MakeView view_;
    QTimer timer_;
    const int exceptions_;  ///< that were on their way when it was made
    std::deque<UnsavedViews::Left> left_;
};

}  // namespace Rotavue::Workbench
