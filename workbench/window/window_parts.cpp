#include "workbench/window/window_parts.h"

#include "workbench/window/dock_part.h"
#include "workbench/window/file_part.h"
#include "workbench/window/out_part.h"

#include <vector>

namespace Rotavue::Workbench {

namespace {

/// One line for each part. Docks of one area come in this order.
const std::vector<WindowPart>& windowParts() {
    static const std::vector<WindowPart> Parts{addFiles, addDocks, addOut};
    return Parts;
}

}  // namespace

void addWindowParts(MainWindow& window) {
    for (const WindowPart& add : windowParts())
        add(window);
}

}  // namespace Rotavue::Workbench
