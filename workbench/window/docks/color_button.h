#pragma once

#include <QColor>
#include <QPushButton>

namespace Rotavue::Workbench {

/// A button that shows a colour and its code, and opens a dialog to choose another one.
class ColorButton final : public QPushButton {
    Q_OBJECT

public:
    explicit ColorButton(QWidget* parent = nullptr);

    const QColor& color() const { return color_; }

    /// Shows that colour; tells nobody.
    void setColor(const QColor& color);

    /// The user has decided: shows the colour, and tells where it is another one.
    void choose(const QColor& color);

Q_SIGNALS:
    void colorChosen(const QColor& color);

protected:
    void changeEvent(QEvent* event) override;

private:
    void openDialog();
    void showColor();

    QColor color_ = Qt::black;
};

}  // namespace Rotavue::Workbench
