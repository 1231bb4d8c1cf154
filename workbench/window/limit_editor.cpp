#include "workbench/window/limit_editor.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QRegularExpressionValidator>

#include <algorithm>

namespace Rotavue::Workbench {

namespace {

/// What a control reads as a number, with a point or a comma.
const QRegularExpression Number(R"([-+]?([0-9]+[.,]?[0-9]*|[.,][0-9]+)([eE][-+]?[0-9]{1,2})?)");

constexpr int LeastCharacters = 8;

}  // namespace

LimitEditor::LimitEditor(QWidget& below) : QLineEdit(&below), below_(below) {
    setObjectName("limitEditor");
    setAccessibleName(tr("Limit of the axis"));
    setToolTip(tr("Return accepts, Escape does not; Tab and Shift+Tab go to the next limit"));
    setValidator(new QRegularExpressionValidator(Number, this));
    setAlignment(Qt::AlignCenter);
    hide();
    connect(this, &QLineEdit::returnPressed, this, [this] { loop_.exit(Accepted); });
}

LimitEditor::~LimitEditor() {
    cancel();
}

void LimitEditor::placeAt(QPoint place, const QString& text) {
    const int characters = std::max(LeastCharacters, static_cast<int>(text.size()) + 2);
    resize(characters * fontMetrics().averageCharWidth() + 12, sizeHint().height());
    const QPoint corner = place - rect().center();
    move(std::clamp(corner.x(), 0, std::max(0, below_.width() - width())),
         std::clamp(corner.y(), 0, std::max(0, below_.height() - height())));
}

HostKit::EditAnswer LimitEditor::edit(QPoint place, const QString& text) {
    cancel();
    way_ = Way::Nowhere;
    setText(text);
    placeAt(place, text);
    selectAll();
    show();
    setFocus(Qt::PopupFocusReason);
    const int result = run();
    const bool hadFocus = hasFocus();
    hide();
    if (hadFocus) below_.setFocus(Qt::PopupFocusReason);
    return {.accepted = result == Accepted && isModified(), .text = this->text().toStdWString()};
}

int LimitEditor::run() {
    ++calls_;
    const int result = loop_.exec();
    if (--calls_ == 0) Q_EMIT returned();
    return result;
}

void LimitEditor::cancel() {
    if (loop_.isRunning()) loop_.exit(Cancelled);
}

void LimitEditor::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) return cancel();
    QLineEdit::keyPressEvent(event);
}

// An open number, "-" say, stays where it is, as it does with Return.
bool LimitEditor::focusNextPrevChild(bool next) {
    if (!loop_.isRunning() || !hasAcceptableInput()) return true;
    way_ = next ? Way::Next : Way::Previous;
    loop_.exit(Accepted);
    return true;
}

void LimitEditor::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    // A menu of the editor's own, or another window, does not end it.
    const Qt::FocusReason reason = event->reason();
    if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason) cancel();
}

}  // namespace Rotavue::Workbench
