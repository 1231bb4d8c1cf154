#pragma once

#include <QString>

namespace Rotavue::Workbench {

/// A name as any file system takes it, without an ending; empty where nothing is left.
QString safeName(const QString& name);

}  // namespace Rotavue::Workbench
