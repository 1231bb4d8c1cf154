#include "workbench/files/autosave.h"

#include <exception>
#include <iterator>
#include <utility>

namespace Rotavue::Workbench {

Autosave::Autosave(Bench& bench, OfferBar& bar, QString folder, MakeView view, QObject* parent)
    : QObject(parent),
      bench_(bench),
      bar_(bar),
      views_(std::move(folder)),
      view_(std::move(view)),
      exceptions_(std::uncaught_exceptions()) {
    timer_.setSingleShot(true);
    timer_.setInterval(Interval);
    connect(&timer_, &QTimer::timeout, this, &Autosave::keepNow);
    // A user who changes things without a pause is kept up with all the same.
    const auto begin = [this] {
        if (!timer_.isActive()) timer_.start();
    };
    connect(&bench_.undoStack(), &QUndoStack::indexChanged, this, begin);
    connect(&bench_.undoStack(), &QUndoStack::cleanChanged, this, begin);
    auto left = views_.takeLeft();
    left_.assign(std::make_move_iterator(left.begin()), std::make_move_iterator(left.end()));
    offerNext();
}

Autosave::~Autosave() {
    if (std::uncaught_exceptions() == exceptions_) views_.forget();
}

void Autosave::keepNow() {
    timer_.stop();
    if (bench_.undoStack().isClean()) return views_.forget();
    try {
        views_.keep(view_());
    } catch (const std::exception& error) {
        Q_EMIT failed(QString::fromUtf8(error.what()));
    }
}

void Autosave::offerNext() {
    if (left_.empty()) return;
    bar_.offer(
        {.text =
             tr("The program ended without saving what was changed, %1.").arg(left_.front().when),
         .yes = tr("&Restore it"),
         .no = tr("&Discard it"),
         .take = [this] { take(); },
         .decline = [this] { decline(); }});
}

void Autosave::take() {
    Q_EMIT wanted(left_.front().file);
}

void Autosave::decline() {
    restored();
}

void Autosave::restored() {
    if (left_.empty()) return;
    UnsavedViews::drop(std::move(left_.front()));
    left_.pop_front();
    offerNext();
}

void Autosave::notRestored() {
    if (left_.empty()) return;
    left_.pop_front();
    offerNext();
}

}  // namespace Rotavue::Workbench
