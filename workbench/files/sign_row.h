#pragma once

#include <QFrame>
#include <QStyle>

class QAbstractButton;
class QHBoxLayout;
class QVBoxLayout;

namespace Rotavue::Workbench {

/// A frame above what is shown: a sign, lines of text, and buttons at its end. Hidden at first. It
/// is called NAMEBar.
class SignRow : public QFrame {
protected:
    SignRow(const QString& name, QStyle::StandardPixmap sign, QWidget* parent);

    /// Where the lines stand, one below the other.
    QVBoxLayout& content() const { return *content_; }

    /// Puts a button behind those that are there, and owns it from then on. It is called NAME and
    /// then `part`.
    void add(QAbstractButton& button, const QString& part);

private:
    QString name_;
    QHBoxLayout* row_;
    QVBoxLayout* content_;
};

}  // namespace Rotavue::Workbench
