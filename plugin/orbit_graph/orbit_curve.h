#pragma once

#include "plugin/orbit_graph/geometry.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace Meridax::VisualControls::Rotavue {

/// A colour in the host's encoding, passed on unchanged; 0 is black, 0xFFFFFF white.
using Color = std::uint32_t;

inline constexpr Color Black = 0;
inline constexpr Color White = 0xFFFFFF;

/// How a curve came about, and with it how it is drawn. Numbers outside the list can reach a curve
/// from nowhere in the plug-in; such a curve is not drawn.
enum class OrbitKind : std::int32_t {
    Raw = 0,          ///< polyline from `points`
    Average = 1,      ///< polyline from `samples`, with a dot and a gap at each revolution
    Harmonic = 2,     ///< closed curve from the phasor pairs in `points`
    ShaftCenter = 3,  ///< labelled dots joined by lines, from `samples`
    Reference = 4,    ///< polyline from `points`
    SubSync = 5,      ///< a kind of channel only: its curve carries Raw
};

/// The display data of a curve's channel.
struct ChannelInfo {
    Color color = 0xFFFFFF;
    double axisStart = 0.0;                    ///< array channels only
    double axisStep = 100.0;                   ///< array channels only
    std::array<double, 2> reserved{0.0, 1.0};  ///< carried, never written and never read
    double displayValue = 0.0;
    std::wstring unit;
    std::wstring name;

    bool operator==(const ChannelInfo&) const = default;
};

/// A point of a curve with its third value: the phase angle in degrees (Average), the speed in RPM
/// or the time in seconds (ShaftCenter).
struct CurveSample {
    double x = 0;
    double y = 0;
    double z = 0;

    bool operator==(const CurveSample&) const = default;
};

/// One curve of one frame, in data units. Acquisition makes it, the graph draws it.
struct OrbitCurve {
    std::vector<Point> points;         ///< Raw, SubSync, Reference; the phasors of Harmonic
    std::vector<CurveSample> samples;  ///< Average, ShaftCenter (newest first)
    ChannelInfo info;
    OrbitKind kind = OrbitKind::Raw;
};

}  // namespace Meridax::VisualControls::Rotavue
