#include "workbench/window/open_at_once.h"

#include "workbench/files/recording_loader.h"
#include "workbench/files/view_file.h"
#include "workbench/files/view_keeper.h"
#include "workbench/setup/setup_rules.h"

namespace Rotavue::Workbench {

namespace {

void showRecording(MainWindow& window, const std::string& file, const WindowOrder& order) {
    PlaneSetup setup{.curves = order.show, .settings = orderedSettings(order)};
    setup.options.reference = order.recording;
    window.bench().addPlane(loadPlane({file, order.recording}), setup);
}

void showViewFile(MainWindow& window, const std::string& file) {
    const View view = readView(file);
    std::vector<std::shared_ptr<const PlaneSource>> sources;
    for (const ViewPlane& plane : view.planes)
        sources.push_back(loadPlane({plane.recording, plane.options, true, plane.compensation}));
    showView(window.bench(), view, sources);
    window.setViewName(QString::fromStdString(file));
}

}  // namespace

std::optional<Settings> orderedSettings(const WindowOrder& order) {
    if (!order.setup) return std::nullopt;
    Settings settings;
    for (const SetupEntry& entry : readCheckedSetup(*order.setup))
        settings[{entry.key.begin(), entry.key.end()}] = {entry.text.begin(), entry.text.end()};
    return settings;
}

void openAtOnce(MainWindow& window, const WindowOrder& order) {
    const std::string* view = nullptr;
    for (const std::string& file : order.recordings) {
        if (isViewName(file)) {
            view = &file;
        } else {
            showRecording(window, file, order);
        }
    }
    if (view != nullptr) showViewFile(window, *view);
    window.bench().finishWork();
    window.bench().undoStack().clear();
    if (order.at) window.bench().setCursor(*order.at);
}

}  // namespace Rotavue::Workbench
