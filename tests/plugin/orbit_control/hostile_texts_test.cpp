#include "tests/plugin/orbit_control/full_frame.h"

#include <algorithm>
#include <array>
#include <map>
#include <stdexcept>

/// Texts that nobody means: from channels, from their properties, from the editor of a limit.
namespace Meridax::VisualControls::Rotavue {
namespace {

constexpr std::size_t Megabyte = 1'000'000;
constexpr std::array Curves{"orbit", "0", "1", "2", "3", "4"};

class HostileTexts : public FullFrame {
protected:
    Lines frame() {
        return callsOf([&] { draw(); }, drawing());
    }

    /// The longest text that a frame puts on the canvas.
    static std::size_t longest(const Lines& lines) {
        return std::ranges::max(lines, {}, &std::string::size).size();
    }

    const Lines sound = frame();
};

TEST_F(HostileTexts, NameAndUnitOfAMegabyteAreDrawnAndCopiedWhole) {
    channel("orbit").name = std::wstring(Megabyte, L'n');
    channel("orbit").unit = std::wstring(Megabyte, L'u');
    EXPECT_GT(longest(frame()), 2 * Megabyte) << "a line of the legend";
    EXPECT_GT(control.clipboardText().size(), 2 * Megabyte);
    channel("orbit").name = L"";
    channel("orbit").unit = L"";
    EXPECT_EQ(frame(), sound);
}

TEST_F(HostileTexts, KindOfAMegabyteIsARawOne) {
    channel("0").properties[L"OrbitType"] = std::wstring(Megabyte, L'A');
    EXPECT_LT(frame().size(), sound.size()) << "a raw channel that stands alone is not drawn";
}

TEST_F(HostileTexts, DirectionOfAMegabyteIsClockwise) {
    for (const char* id : Curves)
        channel(id).properties[L"Orbit Rotation Direction"] = std::wstring(Megabyte, L'C');
    EXPECT_EQ(frame(), sound);
}

/// A text for a number and whether it is out of range; otherwise the frame goes on with it.
struct OddNumber {
    std::wstring text;
    bool outOfRange;
};

class HostileProperties : public HostileTexts, public testing::WithParamInterface<OddNumber> {};

TEST_P(HostileProperties, EndTheFrameOrAreDrawnAndTheNextFrameIsWhole) {
    for (const wchar_t* property : {L"Orbit X Angle", L"Orbit Y Angle", L"Orbit Tacho Angle",
                                    L"Orbit Clearance Width", L"Orbit Clearance Height"}) {
        std::map<std::string, HostKit::ChannelDescription> before;
        for (const char* id : Curves) {
            before[id] = channel(id);
            channel(id).properties[property] = GetParam().text;
        }
        if (GetParam().outOfRange) {
            EXPECT_THROW(draw(), std::out_of_range);
        } else {
            EXPECT_FALSE(frame().empty());
            EXPECT_FALSE(control.clipboardText().empty());
        }
        for (const auto& [id, described] : before)
            channel(id) = described;
        EXPECT_EQ(frame(), sound);
    }
}

INSTANTIATE_TEST_SUITE_P(Numbers, HostileProperties,
                         testing::Values(OddNumber{L"inf", false}, OddNumber{L"-inf", false},
                                         OddNumber{L"3e38", false}, OddNumber{L"1.2e-38", false},
                                         OddNumber{L"1e308", true}, OddNumber{L"1e-320", true},
                                         OddNumber{std::wstring(Megabyte, L'9'), true},
                                         OddNumber{std::wstring(Megabyte, L'0'), false}));

class HostileEditor : public HostileTexts {
protected:
    void answer(const std::wstring& text) {
        host.description.host.editText = {true, text};
        control.onMouseMove({}, 65, 245);  // the label of xMin
        control.onMouseUp(0, {}, 65, 245);
    }

    void SetUp() override {
        key.graph.setManualLimits(1);
        key.graph.setAutoScaleType(1);
        draw();
    }
};

TEST_F(HostileEditor, NumberOfAMegabyteIsOutOfRangeAndChangesNothing) {
    const double before = key.graph.xMin();
    EXPECT_THROW(answer(std::wstring(Megabyte, L'9')), std::out_of_range);
    EXPECT_EQ(key.graph.xMin(), before);
}

TEST_F(HostileEditor, NumberInFrontOfAMegabyteIsTaken) {
    answer(L"-4" + std::wstring(Megabyte, L'x'));
    EXPECT_EQ(key.graph.xMin(), -4.0);
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
