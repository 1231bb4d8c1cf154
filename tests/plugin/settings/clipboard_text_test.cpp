// The shape of the clipboard text: which orbits it holds, and what stands between their rows.

#include "tests/plugin/orbit_control/control_test.h"
#include "tests/plugin/setup_document/c_locale.h"

namespace Meridax::VisualControls::Rotavue {
namespace {

class ClipboardText : public ControlTest {
protected:
    ClipboardText() {
        key.graph.setHistoryType(1);
        // 10,000 Hz * 0.00025 s = 2.5, cut to 2 samples.
        key.displayTime = 0.25;
    }

    // A raw orbit of two samples, oldest first: (1, 2), (3, 4).
    HostKit::ChannelDescription& describeShaft(const std::string& id) {
        HostKit::ChannelDescription& described = describeOrbit(id, {1, 3}, {2, 4});
        described.name = L"Shaft";
        described.unit = L"um";
        return described;
    }
};

TEST_F(ClipboardText, IsEmptyWithNothingAssigned) {
    EXPECT_EQ(control.clipboardText(), L"");
}

TEST_F(ClipboardText, CanAlwaysBeCopied) {
    EXPECT_TRUE(control.canCopyToClipboard());
}

TEST_F(ClipboardText, HasTitleColumnsRowsAndAnEmptyLine) {
    describeShaft("orbit");
    assignGroup({"orbit"});
    EXPECT_EQ(control.clipboardText(),
              L"Shaft (um)\r\nX\tY\r\n3.000\t4.000\r\n1.000\t2.000\r\n\r\n");
}

TEST_F(ClipboardText, IsEmptyWhereBearingsDiffer) {
    assignChannel("a", L"Reference");
    assignChannel("b", L"Reference").properties[L"Orbit X Angle"] = L"45";
    EXPECT_EQ(control.clipboardText(), L"");
}

TEST_F(ClipboardText, TurnsTheValuesIntoTheFrameOfTheMachine) {
    describeShaft("orbit").properties = {{L"Orbit X Angle", L"0"}, {L"Orbit Y Angle", L"90"}};
    assignGroup({"orbit"});
    EXPECT_EQ(control.clipboardText(),
              L"Shaft (um)\r\nX\tY\r\n4.000\t3.000\r\n2.000\t1.000\r\n\r\n");
}

TEST_F(ClipboardText, HasGroupsBeforeChannels) {
    assignChannel("plain", L"Raw").name = L"First assigned";
    describeShaft("orbit");
    assignGroup({"orbit"});
    EXPECT_EQ(control.clipboardText(),
              L"Shaft (um)\r\nX\tY\r\n3.000\t4.000\r\n1.000\t2.000\r\n\r\n"
              L"First assigned ()\r\n\r\n");
}

TEST_F(ClipboardText, LeavesAnUnusableGroupOutWithoutATrace) {
    describeShaft("orbit");
    assignGroup({});
    assignGroup({std::nullopt, "tacho"});
    assignGroup({"orbit"});
    EXPECT_EQ(control.clipboardText(),
              L"Shaft (um)\r\nX\tY\r\n3.000\t4.000\r\n1.000\t2.000\r\n\r\n");
}

TEST_F(ClipboardText, HasTitleAndEmptyLineAloneForAPlainRawChannel) {
    for (const wchar_t* type : {L"Raw", L"of no known kind"}) {
        host.description.assigned.channels.clear();
        HostKit::ChannelDescription& described = assignChannel("raw", type);
        described.name = L"Shaft";
        described.unit = L"mil";
        EXPECT_EQ(control.clipboardText(), L"Shaft (mil)\r\n\r\n");
    }
}

TEST_F(ClipboardText, KeepsTheColumnsOfAnEmptyHistory) {
    describeShaft("orbit");
    assignGroup({"orbit"});
    key.graph.setHistoryType(0);  // by revolutions, and there is no tacho
    EXPECT_EQ(control.clipboardText(), L"Shaft (um)\r\nX\tY\r\n\r\n");
}

TEST_F(ClipboardText, IsClampedByTheTachoOfAGroupOfTwo) {
    describeShaft("orbit");
    describeTacho("tacho", {0, 10});
    assignGroup({"orbit", "tacho"});
    // Two samples of tacho less one: one row.
    EXPECT_EQ(control.clipboardText(), L"Shaft (um)\r\nX\tY\r\n3.000\t4.000\r\n\r\n");
}

TEST_F(ClipboardText, KnowsNoTachoInAGroupOfThree) {
    describeShaft("orbit");
    describeTacho("tacho", {0, 10});
    assignGroup({"orbit", "tacho", "tacho"});
    EXPECT_EQ(control.clipboardText(),
              L"Shaft (um)\r\nX\tY\r\n3.000\t4.000\r\n1.000\t2.000\r\n\r\n");
    key.graph.setHistoryType(0);
    EXPECT_EQ(control.clipboardText(), L"Shaft (um)\r\nX\tY\r\n\r\n");
}

TEST_F(ClipboardText, ReadsAlsoWhatTheDrawingLeavesOutOnStoredData) {
    HostKit::ChannelDescription& orbit = describeShaft("orbit");
    orbit.storageKind = 1;
    orbit.sampleRate = 10000.0;
    assignGroup({"orbit"});
    host.description.host.acquiring = false;
    // The cursor stands at the very start: every sample back falls on the oldest one.
    EXPECT_EQ(control.clipboardText(),
              L"Shaft (um)\r\nX\tY\r\n1.000\t2.000\r\n1.000\t2.000\r\n\r\n");
}

TEST_F(ClipboardText, EndsANameAtItsFirstZeroCharacter) {
    HostKit::ChannelDescription& described = assignChannel("raw", L"Raw");
    described.name = std::wstring(L"Sh\0aft", 6);
    described.unit = std::wstring(L"u\0m", 3);
    EXPECT_EQ(control.clipboardText(), L"Sh (u)\r\n\r\n");
}

TEST_F(ClipboardText, HasTheDecimalPointOfTheCLocaleAndNoGroupsOfThousands) {
    describeOrbit("orbit", {1.5, 12345.6789}, {-0.25, 1e-9});
    assignGroup({"orbit"});
    const std::wstring withPoint = L" ()\r\nX\tY\r\n12345.679\t0.000\r\n1.500\t-0.250\r\n\r\n";
    const std::wstring withComma = L" ()\r\nX\tY\r\n12345,679\t0,000\r\n1,500\t-0,250\r\n\r\n";
    for (const auto& [name, text] :
         {std::pair{"C", withPoint}, {"en_US.UTF-8", withPoint}, {"de_DE.UTF-8", withComma}}) {
        const Tests::CLocale locale(name);
        ASSERT_TRUE(locale.isSet()) << name;
        EXPECT_EQ(control.clipboardText(), text) << name;
    }
}

TEST_F(ClipboardText, PrintsNumbersOfAnySize) {
    const double huge = std::numeric_limits<double>::max();
    describeOrbit("orbit", {std::nan(""), -huge}, {0, 0});
    channel("orbit").properties.clear();  // x = 0 * X + 0 * Y, y = X + Y
    assignGroup({"orbit"});
    const std::wstring text = control.clipboardText();
    // 309 digits and the sign.
    EXPECT_NE(text.find(L"\t-179769313486231"), std::wstring::npos);
    EXPECT_NE(text.find(L"nan"), std::wstring::npos);
}

TEST_F(ClipboardText, LeavesTheBearingOfTheLastOrbit) {
    HostKit::ChannelDescription& described = assignChannel("raw", L"Raw");
    described.properties[L"Orbit Y Angle"] = L"12";
    described.properties[L"Orbit Clearance Width"] = L"7";
    control.clipboardText();
    EXPECT_EQ(key.bearing.xAngle, 90.0);
    EXPECT_EQ(key.graph.yAngle(), 12.0);
    EXPECT_EQ(key.graph.clearanceRadiusX(), 3.5);
}

TEST_F(ClipboardText, FailsWithTheHost) {
    describeShaft("orbit");
    assignGroup({"orbit"});
    for (const char* operation :
         {"IHostChannel.getName", "IHostChannel.getUnit", "IHostChannel.getValue",
          "IHostVisualControl.getGroups", "IHostChannel.getProperties"}) {
        host.fail(HostKit::findOperation(operation).value(), 1);
        expectHostError(0x80004005, [&] { control.clipboardText(); });
    }
    EXPECT_NE(control.clipboardText(), L"");
}

TEST_F(ClipboardText, FailsOnANullChannelAndBeforeAttachment) {
    host.description.assigned.channels = {std::nullopt};
    expectHostError(0x80004003, [&] { control.clipboardText(); });
    RotavueVisualControl unattached;
    expectHostError(0x80004003, [&] { unattached.clipboardText(); });
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
