#pragma once

#include <QAction>
#include <QString>

namespace Rotavue::Workbench {

/// Switches an action on or off; while it is off its tool tip says why, behind what it said before.
inline void setUsable(QAction& action, bool usable, const QString& why) {
    constexpr const char* Told = "whyNotUsable";
    QString help = action.toolTip();
    const QString told = action.property(Told).toString();
    if (!told.isEmpty() && help.endsWith(told)) help.chop(told.size());
    const QString reason = usable ? QString() : ": " + why;
    action.setProperty(Told, reason);
    action.setToolTip(help + reason);
    action.setEnabled(usable);
}

}  // namespace Rotavue::Workbench
