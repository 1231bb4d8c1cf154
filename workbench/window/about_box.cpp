#include "workbench/window/about_box.h"

#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QSysInfo>
#include <QVBoxLayout>

namespace Rotavue::Workbench {

AboutBox::AboutBox(const QString& diagnostics, QWidget* parent) : QDialog(parent) {
    setObjectName("aboutBox");
    setWindowTitle(tr("About Rotavue"));
    setAttribute(Qt::WA_DeleteOnClose);
    auto* title = new QLabel(
        tr("<h2>Rotavue %1</h2>Orbit plots of rotating shafts").arg(QString(ROTAVUE_VERSION)),
        this);
    auto* facts = new QLabel(diagnostics, this);
    facts->setObjectName("diagnostics");
    facts->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    QPushButton* copy = buttons->addButton(tr("&Copy diagnostics"), QDialogButtonBox::ActionRole);
    connect(copy, &QPushButton::clicked, this,
            [diagnostics] { QGuiApplication::clipboard()->setText(diagnostics); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);
    auto* column = new QVBoxLayout(this);
    column->addWidget(title);
    column->addWidget(facts);
    column->addWidget(buttons);
}

QString diagnosticsText(const QWidget& window) {
    const QScreen* screen = window.screen();
    const QSize size = screen->size();
    return QStringList{
        "Rotavue " ROTAVUE_VERSION,
        QString("Qt %1, platform %2").arg(qVersion(), QGuiApplication::platformName()),
        QSysInfo::prettyProductName() + ", " + QSysInfo::currentCpuArchitecture(),
        QString("screen %1 x %2, scale %3")
            .arg(size.width())
            .arg(size.height())
            .arg(window.devicePixelRatioF())}
        .join('\n');
}

}  // namespace Rotavue::Workbench
