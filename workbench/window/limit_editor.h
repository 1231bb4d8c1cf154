#pragma once

#include "host_kit/memory/description.h"

#include <QEventLoop>
#include <QLineEdit>
#include <QPoint>

#include <utility>

namespace Rotavue::Workbench {

/// A line edit that lies over a text of a control while the user changes it. Return accepts,
/// Escape and a click elsewhere do not; Tab and Shift+Tab accept and ask for a neighbour. A text
/// that nobody has touched counts as not accepted: it is shorter than the number that it stands
/// for. Afterwards the widget below has the focus again.
class LimitEditor : public QLineEdit {
    Q_OBJECT

public:
    /// Over `below`, which owns it and takes the focus afterwards.
    explicit LimitEditor(QWidget& below);
    ~LimitEditor() override;

    /// Lets the user change the text, the editor's middle at a point of the widget below but inside
    /// it. Returns when the user has finished; until then the application goes on, and everything
    /// else is drawn and answers. One at a time: a second call ends the first.
    HostKit::EditAnswer edit(QPoint place, const QString& text);

    bool isEditing() const { return loop_.isRunning(); }

    /// Whether a call of `edit` has not returned yet, even though its editing may have ended: who
    /// owns the editor must keep it until `returned`.
    bool isInUse() const { return calls_ > 0; }

    enum class Way { Nowhere, Next, Previous };

    /// Where the user wanted to go from the last text; after that, nowhere.
    Way takeWay() { return std::exchange(way_, Way::Nowhere); }

    /// Ends the editing as Escape does.
    void cancel();

Q_SIGNALS:
    /// No call of `edit` waits any more.
    void returned();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    enum Result { Cancelled, Accepted };

    void placeAt(QPoint place, const QString& text);
    int run();

    QWidget& below_;
    QEventLoop loop_;
    int calls_ = 0;
    Way way_ = Way::Nowhere;
};

}  // namespace Rotavue::Workbench
