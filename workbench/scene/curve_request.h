#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace Rotavue::Workbench {

/// The kinds of curve that are made of a recording.
enum class CurveKind : std::uint8_t {
    Raw,          ///< samples as they are
    ByAngle,      ///< the same by the shaft's angle: whole turns, with the keyphasor's dots
    NotFirst,     ///< what is left of these turns without 1X
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

/// Whether the curve is made by the shaft's angle, which a keyphasor tells.
bool needsKeyphasor(CurveKind kind);

/// Whether the curve is that of the shown turns, and not of a stretch of its own.
bool isOfShownTurns(CurveKind kind);

/// "raw", "direct by angle", "not 1X", "average", "1X, 2X", "below 1X", "reference slow-roll" or
/// "shaft centre".
std::string wordsOf(const CurveRequest& request);

}  // namespace Rotavue::Workbench
