#include "plugin/orbit_control/orbit_kind.h"

#include "plugin/orbit_control/text_property.h"

#include <array>
#include <numbers>
#include <string>
#include <utility>

namespace Meridax::VisualControls::Rotavue {
namespace {

constexpr std::array<std::pair<std::wstring_view, OrbitKind>, 6> KindTexts{{
    {L"Raw", OrbitKind::Raw},
    {L"Average", OrbitKind::Average},
    {L"Harmonic", OrbitKind::Harmonic},
    {L"", OrbitKind::ShaftCenter},
    {L"Reference", OrbitKind::Reference},
    {L"SubSync", OrbitKind::SubSync},
}};

}  // namespace

OrbitKind orbitKindOf(std::wstring_view text) {
    for (const auto& [known, kind] : KindTexts) {
        if (text == known) return kind;
    }
    return OrbitKind::Raw;
}

OrbitKind readOrbitType(Host::IHostChannel& channel) {
    return orbitKindOf(readTextProperty(channel.getProperties(), L"OrbitType"));
}

OrbitAmplitude readOrbitAmplitude(Host::IHostChannel& channel) {
    const std::wstring text = readTextProperty(channel.getProperties(), L"Orbit Amplitude");
    if (text == L"rms") return OrbitAmplitude::Rms;
    if (text == L"peak-peak") return OrbitAmplitude::PeakPeak;
    return OrbitAmplitude::Peak;
}

double amplitudeFactor(OrbitAmplitude amplitude) {
    if (amplitude == OrbitAmplitude::Rms) return std::numbers::sqrt2;
    if (amplitude == OrbitAmplitude::PeakPeak) return 0.5;
    return 1.0;
}

}  // namespace Meridax::VisualControls::Rotavue
