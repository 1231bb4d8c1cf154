#include "host_kit/memory/memory_host.h"

#include <gtest/gtest.h>

namespace Rotavue::HostKit {
namespace {

TEST(MemoryPanel, KeepsPagesByName) {
    MemoryHost host;
    EXPECT_FALSE(host.panel()->GetPage(L"Axis"));
    const auto page = host.panel()->AddPage(L"Axis");
    EXPECT_EQ(host.panel()->GetPage(L"Axis"), page);
}

TEST(MemoryPanel, MakesAPageFreshThatIsAddedAgain) {
    MemoryHost host;
    const auto before = host.panel()->AddPage(L"Axis");
    before->AddCheckBox(L"w", L"");
    const auto after = host.panel()->AddPage(L"Axis");
    EXPECT_FALSE(after->FindControl(L"w"));
    EXPECT_TRUE(before->FindControl(L"w")) << "a page that is still held goes on";
    EXPECT_FALSE(host.setWidget(L"w", true));
}

TEST(MemoryPanel, FindsWidgetsOfThePageUnlessTheyAreHidden) {
    MemoryHost host;
    const auto page = host.panel()->AddPage(L"Axis");
    const auto other = host.panel()->AddPage(L"Advanced");
    const auto box = page->AddComboBox(L"w", L"");
    EXPECT_EQ(page->FindControl(L"w").offered<Host::IHostComboBox>(), box);
    EXPECT_FALSE(page->FindControl(L"w").offered<Host::IHostCheckBox>());
    EXPECT_FALSE(other->FindControl(L"w"));
    host.description.panel.hidden = {L"w"};
    EXPECT_FALSE(page->FindControl(L"w"));
}

TEST(MemoryWidgets, GiveZeroUntilTheyAreSet) {
    MemoryHost host;
    const auto page = host.panel()->AddPage(L"p");
    EXPECT_FALSE(page->AddCheckBox(L"a", L"")->GetChecked());
    EXPECT_EQ(page->AddComboBox(L"b", L"")->GetIndex(), 0);
    EXPECT_EQ(page->AddFloatEdit(L"c", L"")->GetValue(), 0.0);
    EXPECT_EQ(page->AddColorEdit(L"d", L"")->GetColor(), 0);
    EXPECT_EQ(page->AddNumberEdit(L"e", L"")->GetValue(), 0);
}

TEST(MemoryWidgets, GiveWhatThePlugInOrTheUserSetLast) {
    MemoryHost host;
    const auto page = host.panel()->AddPage(L"p");
    const auto box = page->AddCheckBox(L"a", L"");
    const auto edit = page->AddFloatEdit(L"c", L"");
    box->SetChecked(true);
    EXPECT_TRUE(box->GetChecked());
    EXPECT_TRUE(host.setWidget(L"a", false));
    EXPECT_FALSE(box->GetChecked());
    edit->SetValue(1.5);
    EXPECT_TRUE(host.setWidget(L"c", 2.5));
    EXPECT_EQ(edit->GetValue(), 2.5);
    edit->SetValue(3.5);
    EXPECT_EQ(edit->GetValue(), 3.5);
}

struct EnteredCase {
    WidgetValue value;
    bool checked;
    std::int32_t integer;
    double number;
};

class EnteredValue : public testing::TestWithParam<EnteredCase> {};

TEST_P(EnteredValue, IsTakenAsWhatItMeansToTheWidget) {
    MemoryHost host;
    const auto page = host.panel()->AddPage(L"p");
    const auto checkBox = page->AddCheckBox(L"a", L"");
    const auto comboBox = page->AddComboBox(L"b", L"");
    const auto floatEdit = page->AddFloatEdit(L"c", L"");
    const auto colorEdit = page->AddColorEdit(L"d", L"");
    const auto numberEdit = page->AddNumberEdit(L"e", L"");
    for (const wchar_t* name : {L"a", L"b", L"c", L"d", L"e"})
        EXPECT_TRUE(host.setWidget(name, GetParam().value));
    EXPECT_EQ(checkBox->GetChecked(), GetParam().checked);
    EXPECT_EQ(comboBox->GetIndex(), GetParam().integer);
    EXPECT_EQ(floatEdit->GetValue(), GetParam().number);
    EXPECT_EQ(colorEdit->GetColor(), GetParam().integer);
    EXPECT_EQ(numberEdit->GetValue(), GetParam().integer);
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, EnteredValue,
    testing::Values(EnteredCase{true, true, 1, 1.0}, EnteredCase{false, false, 0, 0.0},
                    EnteredCase{std::int64_t{-3}, true, -3, -3.0},
                    EnteredCase{std::int64_t{0x1'0000'0005}, true, 5, 4294967301.0},
                    EnteredCase{-2.75, true, -2, -2.75}, EnteredCase{1e300, true, 0, 1e300}));

TEST(MemoryWidgets, OfferWhatTheyShareAndKeepTheirName) {
    MemoryHost host;
    const auto box = host.panel()->AddPage(L"p")->AddCheckBox(L"w", L"caption");
    const auto shared = box.offered<Host::IHostPropertyControl>();
    EXPECT_EQ(shared->GetName(), L"w");
    EXPECT_EQ(shared.offered<Host::IHostCheckBox>(), box);
    EXPECT_EQ(host.widget(L"w").offered<Host::IHostCheckBox>(), box);
}

TEST(MemoryWidgets, ThatThePlugInDidNotMakeAreBare) {
    MemoryHost host;
    const auto bare = host.widget(L"other");
    EXPECT_EQ(bare.offered<Host::IHostPropertyControl>()->GetName(), L"other");
    EXPECT_FALSE(bare.offered<Host::IHostCheckBox>());
    EXPECT_EQ(host.widget(L"other"), bare);
    EXPECT_FALSE(host.setWidget(L"other", true));
}

TEST(MemoryWidgets, AreToldApartByName) {
    MemoryHost host;
    host.record();
    const auto page = host.panel()->AddPage(L"p");
    page->AddNumberEdit(L"TickCount", L"Ticks")->SetMax(20);
    EXPECT_EQ(
        host.calls(),
        (std::vector<std::string>{
            R"(IHostPropertyPanel.AddPage("p") -> "page:p")",
            R"(IHostPropertyPage.AddNumberEdit[p]("TickCount", "Ticks") -> "widget:TickCount")",
            "IHostNumberEdit.SetMax[TickCount](20)"}));
}

TEST(MemoryWidgets, ShowTheirColoursWithASign) {
    MemoryHost host;
    const auto edit = host.panel()->AddPage(L"p")->AddColorEdit(L"c", L"");
    host.record();
    edit->SetColor(-1);
    EXPECT_EQ(edit->GetColor(), -1);
    EXPECT_EQ(host.calls(), (std::vector<std::string>{"IHostColorEdit.SetColor[c](-1)",
                                                      "IHostColorEdit.GetColor[c]() -> -1"}));
}

}  // namespace
}  // namespace Rotavue::HostKit
