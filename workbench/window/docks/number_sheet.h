#pragma once

#include "workbench/analysis/shaft_track.h"
#include "workbench/analysis/time_span.h"
#include "workbench/recording/recording.h"
#include "workbench/scene/curve_options.h"

#include <QString>

#include <memory>
#include <vector>

namespace Rotavue::Workbench {

/// The stretch of one plane's recording that its orbit shows.
struct ShownTurns {
    QString plane;
    std::shared_ptr<const Recording> recording;
    std::shared_ptr<const ShaftTrack> track;
    TimeSpan span;
    bool isAnyShown = true;              ///< false: by turns, and there is no whole one
    ShaftCenterChoice shaftCenter = {};  ///< how the shaft rests
};

/// One quantity. A plane has two cells, X and Y; where the second one is empty the first is that of
/// the orbit as a whole.
struct NumberRow {
    QString name;
    QString help;
    std::vector<QString> cells;
};

/// What a column's cells are of.
struct NumberColumn {
    QString plane;
    QString probe;  ///< with the unit

    bool operator==(const NumberColumn&) const = default;
};

/// The numbers of all planes as texts, two columns for each plane.
struct NumberSheet {
    std::vector<NumberColumn> columns;
    std::vector<NumberRow> rows;
    std::vector<QString> notes;  ///< why something is missing or doubtful, one line each
};

/// Peak-to-peak, Smax, gap and position, 1X and 2X with lag and ellipse, and speed of each. What
/// cannot be had is
/// "-", and a note says why.
NumberSheet numberSheet(const std::vector<ShownTurns>& planes);

}  // namespace Rotavue::Workbench
