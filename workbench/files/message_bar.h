#pragma once

#include <QFrame>
#include <QStringList>

class QLabel;
class QToolButton;

namespace Rotavue::Workbench {

/// Tells what went wrong, line by line, above what is shown, and stands in nobody's way: it takes
/// no focus, and is gone with a click or when it is cleared. Hidden while there is nothing to tell.
class MessageBar : public QFrame {
    Q_OBJECT

public:
    /// Lines that are told at once; of more, the newest.
    static constexpr int MostLines = 5;

    explicit MessageBar(QWidget* parent = nullptr);

    /// Adds a line, or moves one that is there to the end.
    void tell(const QString& line);

    void clear();

    const QStringList& lines() const { return lines_; }

private:
    void show(const QStringList& lines);

    QStringList lines_;
    QLabel* text_;
    QToolButton* close_;
};

}  // namespace Rotavue::Workbench
