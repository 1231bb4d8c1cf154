#include "plugin/orbit_control/orbit_kind.h"

#include "tests/plugin/orbit_control/control_test.h"

#include <limits>

namespace Meridax::VisualControls::Rotavue {
namespace {

struct Text {
    const wchar_t* text;
    OrbitKind kind;
};

const Text Texts[] = {
    {L"Raw", OrbitKind::Raw},
    {L"Average", OrbitKind::Average},
    {L"Harmonic", OrbitKind::Harmonic},
    {L"", OrbitKind::ShaftCenter},
    {L"Reference", OrbitKind::Reference},
    {L"SubSync", OrbitKind::SubSync},
    {L"ShaftCenter", OrbitKind::Raw},
    {L"average", OrbitKind::Raw},
    {L"Average ", OrbitKind::Raw},
    {L"no such kind", OrbitKind::Raw},
};

TEST(OrbitKindOf, KnowsSixTextsAndTakesAnyOtherForRaw) {
    for (const auto& [text, kind] : Texts)
        EXPECT_EQ(orbitKindOf(text), kind) << testing::PrintToString(std::wstring(text));
}

TEST(OrbitKindOf, UnknownTextsStayUnknownHoweverManyThereWere) {
    for (int i = 0; i < 1000; ++i)
        EXPECT_EQ(orbitKindOf(L"hostile " + std::to_wstring(i)), OrbitKind::Raw);
    EXPECT_EQ(orbitKindOf(L""), OrbitKind::ShaftCenter);
}

class OrbitKindTest : public ControlTest {};

TEST_F(OrbitKindTest, ChannelWithAnUnsetPropertyIsAShaftCenter) {
    channel("c").properties = {};
    EXPECT_EQ(readOrbitType(*host.channel("c")), OrbitKind::ShaftCenter);
    channel("c").properties = {{L"OrbitType", L"SubSync"}};
    EXPECT_EQ(readOrbitType(*host.channel("c")), OrbitKind::SubSync);
}

TEST_F(OrbitKindTest, AmplitudesAreReadExactlyAndPeakByDefault) {
    const std::pair<const wchar_t*, OrbitAmplitude> cases[] = {
        {L"peak", OrbitAmplitude::Peak},          {L"rms", OrbitAmplitude::Rms},
        {L"peak-peak", OrbitAmplitude::PeakPeak}, {L"", OrbitAmplitude::Peak},
        {L"RMS", OrbitAmplitude::Peak},           {L"Peak-Peak", OrbitAmplitude::Peak}};
    for (const auto& [text, amplitude] : cases) {
        channel("c").properties = {{L"Orbit Amplitude", text}};
        EXPECT_EQ(readOrbitAmplitude(*host.channel("c")), amplitude);
    }
}

TEST(AmplitudeFactor, MakesPeakValues) {
    EXPECT_EQ(amplitudeFactor(OrbitAmplitude::Peak), 1.0);
    EXPECT_EQ(amplitudeFactor(OrbitAmplitude::Rms), 1.4142135623730951);
    EXPECT_EQ(amplitudeFactor(OrbitAmplitude::PeakPeak), 0.5);
    EXPECT_EQ(amplitudeFactor(OrbitAmplitude{3}), 1.0);
    EXPECT_EQ(amplitudeFactor(OrbitAmplitude{-1}), 1.0);
}

TEST_F(OrbitKindTest, NullPropertiesAreAnInvalidPointer) {
    host.gate.setNulls(
        HostKit::Operations{}.set(indexOf(HostKit::operation("IHostChannel.getProperties"))));
    expectHostError(0x80004003, [&] { readOrbitType(*host.channel("c")); });
    expectHostError(0x80004003, [&] { readOrbitAmplitude(*host.channel("c")); });
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
