#include "workbench/window/docks/property_link.h"

namespace Rotavue::Workbench {

namespace {

PanelMessages messagesOf(HostKit::DrivenControl& control) {
    return {.build = [&control](const auto& panel) { control.buildPanel(panel); },
            .fill = [&control](const auto& panel) { control.fillPanel(panel); },
            .read =
                [&control](const auto& widget) {
                    control.readWidget(widget->GetName(),
                                       Host::Ref<Host::IHostObject>::share(widget.get()));
                }};
}

}  // namespace

PropertyLink::PropertyLink(Bench& bench, PropertyPanel& panel, QObject* parent)
    : QObject(parent), bench_(bench), panel_(panel), run_([&bench] { return bench.beginRun(); }) {
    connect(&panel, &PropertyPanel::changed, this, [this](const QWidget* editor) {
        const QString caption = editor != nullptr ? editor->accessibleName() : QString();
        const int run = run_.numberFor(editor);
        if (plane_ != nullptr) bench_.noticeSettings(*plane_, caption, run);
    });
    connect(&panel, &PropertyPanel::failed, &bench, &Bench::report);
    connect(&bench, &Bench::planesChanged, this, &PropertyLink::tellTitle);
    connect(&bench, &Bench::settingsChanged, this, [this](const Plane* plane) {
        if (plane == plane_) panel_.refresh();
    });
}

void PropertyLink::setCurrent(Plane* plane) {
    if (plane == plane_) return;
    plane_ = plane;
    run_.end();
    if (plane_ == nullptr) return panel_.clear();
    panel_.show(QString::fromStdString(bench_.titleOf(*plane_).text()),
                messagesOf(plane_->control()));
}

// A plane that goes is no longer the current one once everybody has heard of it.
void PropertyLink::tellTitle() {
    const bool isThere = plane_ != nullptr && bench_.has(*plane_);
    if (isThere) panel_.rename(QString::fromStdString(bench_.titleOf(*plane_).text()));
}

}  // namespace Rotavue::Workbench
