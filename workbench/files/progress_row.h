#pragma once

#include <QFrame>

class QLabel;
class QProgressBar;

namespace Rotavue::Workbench {

/// A line that tells what is being done and how much of it is, with a button that cancels; hidden
/// at first. Its parts are called NAMEBar, NAMEProgress and NAMECancel.
class ProgressRow : public QFrame {
    Q_OBJECT

public:
    ProgressRow(const QString& name, const QString& cancelTip, QWidget* parent = nullptr);

    /// `part` is from 0 to 1.
    void tell(const QString& text, double part);

Q_SIGNALS:
    void cancelled();

private:
    QLabel* text_;
    QProgressBar* progress_;
};

}  // namespace Rotavue::Workbench
