#include "workbench/window/docks/property_panel.h"

#include "host_kit/memory/call.h"
#include "workbench/window/docks/elided_label.h"
#include "workbench/window/docks/host_panel.h"

#include <QTabWidget>
#include <QVBoxLayout>

namespace Rotavue::Workbench {

PropertyPanel::PropertyPanel(QWidget* parent)
    : QWidget(parent), title_(new ElidedLabel), tabs_(new QTabWidget) {
    setObjectName("PropertyPanel");
    tabs_->setDocumentMode(true);
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(title_);
    rows->addWidget(tabs_);
    clear();
}

PropertyPanel::~PropertyPanel() = default;

void PropertyPanel::show(const QString& controlName, PanelMessages messages) {
    const QString front = tabs_->currentWidget() ? tabs_->currentWidget()->objectName() : QString();
    clear();
    title_->setName(controlName);
    tabs_->setVisible(true);
    messages_ = std::move(messages);
    panel_ = Host::Ref<HostPanel>::share(
        new HostPanel(*tabs_, [this](const auto& widget) { take(widget); }));
    guard([this] {
        messages_.build(Host::Ref<Host::IHostPropertyPanel>::share(panel_.get()));
        messages_.fill(Host::Ref<Host::IHostPropertyPanel>::share(panel_.get()));
    });
    if (auto* page = tabs_->findChild<QWidget*>(front)) tabs_->setCurrentWidget(page);
}

void PropertyPanel::rename(const QString& controlName) {
    title_->setName(controlName);
}

void PropertyPanel::clear() {
    title_->setName(tr("Nothing is open"));
    tabs_->setVisible(false);
    while (tabs_->count() > 0)
        removePage(*tabs_, 0);
    panel_ = {};
    messages_ = {};
}

void PropertyPanel::refresh() {
    if (!panel_) return;
    guard([this] { messages_.fill(Host::Ref<Host::IHostPropertyPanel>::share(panel_.get())); });
}

void PropertyPanel::take(const Host::Ref<Host::IHostPropertyControl>& widget) {
    guard([&] {
        messages_.read(widget);
        messages_.fill(Host::Ref<Host::IHostPropertyPanel>::share(panel_.get()));
        changed(editorOf(widget));
    });
}

void PropertyPanel::guard(const std::function<void()>& messages) {
    try {
        messages();
    } catch (const Host::HostError& error) {
        failed(tr("the plug-in failed: a call of the host gave %1")
                   .arg(QString::fromStdString(HostKit::statusText(error.status))));
    } catch (const std::exception& error) {
        failed(QString::fromUtf8(error.what()));
    }
}

const QWidget* PropertyPanel::editorOf(const Host::Ref<Host::IHostPropertyControl>& widget) const {
    return tabs_->findChild<QWidget*>(QString::fromStdWString(widget->GetName()));
}

}  // namespace Rotavue::Workbench
