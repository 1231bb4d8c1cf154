#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace Rotavue::Workbench {

/// The kinds of curve that the plug-in draws.
enum class CurveKind : std::uint8_t {
    Raw,          ///< samples as they are
    Average,      ///< mean of whole turns, by the shaft's angle
    Harmonic,     ///< ellipses of orders of the shaft
    SubSync,      ///< what is below the first order
    Reference,    ///< an averaged orbit from elsewhere
    ShaftCenter,  ///< where the shaft lies in its bearing, over time
};

/// One curve, or one set of ellipses, that is to be shown of a recording.
struct CurveRequest {
    CurveKind kind = CurveKind::Raw;
    std::vector<double> orders = {};  ///< of `CurveKind::Harmonic`
    std::string file = {};            ///< of `CurveKind::Reference`

    bool operator==(const CurveRequest&) const = default;
};

/// Whether the curve is that of the shown turns, and not of a stretch of its own.
bool isOfShownTurns(CurveKind kind);

/// "raw", "average", "1X, 2X", "below 1X", "reference slow-roll" or "shaft centre".
std::string wordsOf(const CurveRequest& request);

}  // namespace Rotavue::Workbench
