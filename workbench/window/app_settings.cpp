#include "workbench/window/app_settings.h"

#include "host_kit/loader/platform.h"

#include <QFileInfo>

namespace Rotavue::Workbench {

std::unique_ptr<QSettings> appSettings() {
    const auto beside = HostKit::programFolder() / "rotavue.ini";
    const QString portable = QString::fromStdString(beside.string());
    if (QFileInfo::exists(portable)) {
        return std::make_unique<QSettings>(portable, QSettings::IniFormat);
    }
    return std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope, "rotavue",
                                       "rotavue");
}

QString unsavedFolder() {
    return QFileInfo(appSettings()->fileName()).path() + "/unsaved";
}

}  // namespace Rotavue::Workbench
