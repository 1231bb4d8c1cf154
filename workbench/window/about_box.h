#pragma once

#include <QDialog>

namespace Rotavue::Workbench {

/// Name and versions, and a button that copies what a fault report should tell.
class AboutBox : public QDialog {
    Q_OBJECT

public:
    AboutBox(const QString& diagnostics, QWidget* parent);
};

/// The versions of program and Qt, the platform, and the screen of a window.
QString diagnosticsText(const QWidget& window);

}  // namespace Rotavue::Workbench
