// What a shaft-centre section leaves behind for those that follow, and in which order the host is
// asked.

#include "tests/plugin/settings/clipboard_section.h"

namespace Meridax::VisualControls::Rotavue {
namespace {

TEST_F(ClipboardSection, AfterAShaftCenterKeepsTheColumnOfItsLabel) {
    describeShaftCenter("center");
    describeArray("reference", L"Reference", {1.4}, {5});
    EXPECT_EQ(lines(),
              (WideLines{L" ()", L"RPM\tX\tY", L"3000\t2.000\t1.000", L"3000\t4.000\t3.000", L"",
                         L" ()", L"X\tY", L"1\t5.000\t", L""}));
}

TEST_F(ClipboardSection, OfASecondShaftCenterHasAnotherColumnInFront) {
    describeShaftCenter("first");
    describeShaftCenter("second");
    const WideLines found = lines();
    EXPECT_EQ(found[6], L"RPM\tX\tY");
    EXPECT_EQ(found[7], L"3000\t2\t1.000\t");
    EXPECT_EQ(found[8], L"3000\t4\t3.000\t");
    EXPECT_EQ(lines(), found) << "the next copy begins anew";
}

TEST_F(ClipboardSection, OfAGroupNeverSeesTheColumnOfALabel) {
    describeShaftCenter("center");
    describeOrbit("orbit", {1, 2}, {3, 4});
    assignGroup({"orbit"});
    key.graph.setHistoryType(1);
    key.displayTime = 0.1;
    EXPECT_EQ(lines()[2], L"2.000\t4.000");
}

TEST_F(ClipboardSection, AfterAShaftCenterHasOneColumnMoreThanItHasNumbersWhateverItsKind) {
    // The label's column comes first and takes the first number, without decimals.
    describeShaftCenter("center");
    describeArray("average", L"Average", {1.6}, {5});
    describeArray("harmonic", L"Harmonic", {0, 3}, {2, 0});
    describeOrbit("sub", {1, 1.7}, {3, 4}).properties[L"OrbitType"] = L"SubSync";
    host.description.assigned.channels.emplace_back("sub");
    key.graph.setHistoryType(1);
    key.displayTime = 0.1;
    const WideLines found = lines();
    EXPECT_EQ(found[6], L"X\tY");
    EXPECT_EQ(found[7], L"2\t5.000\t");
    EXPECT_EQ(found[10], L"X\tY");
    EXPECT_EQ(found[11 + 60], L"3\t1.000\t");  // 3 sin 60 = 2.598; 2 sin 150
    EXPECT_EQ(found[11 + 340 + 2], L"X\tY");
    EXPECT_EQ(found[11 + 340 + 3], L"2\t4.000\t");
}

TEST_F(ClipboardSection, AfterAShaftCenterByTimeHasTheLabelsDecimal) {
    describeShaftCenter("center");
    describeArray("reference", L"Reference", {1.44}, {5});
    key.graph.setDisplayType(1);
    EXPECT_EQ(lines()[7], L"1.4\t5.000\t");
}

TEST_F(ClipboardSection, AfterManyShaftCentersHasAColumnForEach) {
    for (int i = 0; i < 2000; ++i)
        describeShaftCenter("center " + std::to_string(i)).sampleCount = 0;
    describeArray("reference", L"Reference", {1.4}, {5});
    const WideLines found = lines();
    // Title, columns and an empty line for each; two numbers and an empty end in each column else.
    EXPECT_EQ(found[6000 + 2], L"1\t5" + std::wstring(2000, L'\t'));
}

// The lines that show in which order an orbit is read, without what they gave.
Lines readingOrder(const Lines& calls) {
    Lines found;
    for (const std::string& line : calls)
        for (const char* beginning :
             {"IHostVisualControl.", "IHostChannel.getProperties", "IHostChannel.getName",
              "IHostChannel.getUnit", "IHostChannel.getValue", "IHostChannel.getAxes",
              "IHostProperties.getValue(\"OrbitType\")", "IHostAxis.getSt"})
            if (line.starts_with(beginning)) found.push_back(line.substr(0, line.find(" -> ")));
    return found;
}

TEST_F(ClipboardSection, IsReadAfterItsTitleAndTheBearingOfItsChannel) {
    describeArray("average", L"Average", {1, 2}, {4, 5});
    describeOrbit("orbit", {1, 2}, {3, 4});
    assignGroup({"orbit"});
    key.graph.setHistoryType(1);
    key.displayTime = 0.1;
    EXPECT_EQ(readingOrder(callsOf([&] { control.clipboardText(); })),
              (Lines{
                  // The check: channels, then groups.
                  "IHostVisualControl.getChannels()",
                  "IHostChannel.getProperties[average]()",
                  "IHostVisualControl.getGroups()",
                  "IHostChannel.getProperties[orbit]()",
                  // The text: groups, then channels.
                  "IHostVisualControl.getGroups()",
                  "IHostChannel.getProperties[orbit]()",
                  "IHostChannel.getName[orbit]()",
                  "IHostChannel.getUnit[orbit]()",
                  "IHostChannel.getValue[orbit](1, 4)",
                  "IHostChannel.getValue[orbit](1, 5)",
                  "IHostVisualControl.getChannels()",
                  "IHostChannel.getProperties[average]()",
                  "IHostChannel.getProperties[average]()",
                  "IHostProperties.getValue(\"OrbitType\")",
                  "IHostChannel.getName[average]()",
                  "IHostChannel.getUnit[average]()",
                  "IHostChannel.getValue[average](0, 4)",
                  "IHostChannel.getValue[average](0, 5)",
                  "IHostChannel.getAxes[average]()",
                  "IHostAxis.getStart()",
                  "IHostAxis.getStep()",
                  "IHostChannel.getValue[average](1, 4)",
                  "IHostChannel.getValue[average](1, 5)",
                  "IHostChannel.getAxes[average]()",
                  "IHostAxis.getStart()",
                  "IHostAxis.getStep()",
              }));
}

TEST_F(ClipboardSection, OfAShaftCenterIsReadOldestFirstAndItsLabelLast) {
    const auto values = [&] {
        return linesOf(callsOf([&] { control.clipboardText(); }), "IHostChannel.getValue[");
    };
    describeShaftCenter("center");
    // Four elements a sample: gaps 0 and 1, speed 2, time 3.
    EXPECT_EQ(values(), (Lines{"IHostChannel.getValue[center](0, 0) -> 1",
                               "IHostChannel.getValue[center](1, 0) -> 2",
                               "IHostChannel.getValue[center](2, 0) -> 2999.6",
                               "IHostChannel.getValue[center](4, 0) -> 3",
                               "IHostChannel.getValue[center](5, 0) -> 4",
                               "IHostChannel.getValue[center](6, 0) -> 3000.4"}));
    key.graph.setDisplayType(1);
    EXPECT_EQ(values()[2], "IHostChannel.getValue[center](3, 0) -> 1.25");
}

TEST_F(ClipboardSection, OfAHarmonicReadsTheTwoPhasorsOfAnOrderSideBySide) {
    describeArray("h", L"Harmonic", {0, 0, 1, 1, 9}, {5, 7, 0, 0, 9});
    // Five elements, two orders: elements 0 and 2, then 1 and 3.
    EXPECT_EQ(
        linesOf(callsOf([&] { control.clipboardText(); }), "IHostChannel.getValue["),
        (Lines{"IHostChannel.getValue[h](0, 4) -> 0", "IHostChannel.getValue[h](0, 5) -> 5",
               "IHostChannel.getValue[h](2, 4) -> 1", "IHostChannel.getValue[h](2, 5) -> 0",
               "IHostChannel.getValue[h](1, 4) -> 0", "IHostChannel.getValue[h](1, 5) -> 7",
               "IHostChannel.getValue[h](3, 4) -> 1", "IHostChannel.getValue[h](3, 5) -> 0"}));
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
