// What the panel and the clipboard raise when there is no memory left for a text.

#include "tests/support/exhausted_memory.h"

#include "plugin/settings/widget_forms.h"
#include "tests/plugin/orbit_control/control_test.h"
#include "tests/plugin/settings/strange_panel.h"

namespace Meridax::VisualControls::Rotavue {
namespace {

using Tests::statusWithMemoryFor;

constexpr std::uint32_t OutOfMemory = 0x8007000E;

class ExhaustedControl : public ControlTest {
protected:
    Host::Ref<Host::IHostPropertyPanel> panel() {
        return Host::Ref<Host::IHostPropertyPanel>::share(&panel_);
    }

private:
    StrangePanel panel_{nullptr};
};

TEST_F(ExhaustedControl, FailsForTheNameOfEveryPageAndWidgetWhileFilling) {
    const auto fill = [&] { control.fillProperties(panel()); };
    // Two pages and twelve widgets, all of them longer than a text that needs no memory.
    for (std::size_t granted = 0; granted < 14; ++granted)
        EXPECT_EQ(statusWithMemoryFor(granted, fill), OutOfMemory) << granted;
    EXPECT_EQ(statusWithMemoryFor(14, fill), Tests::Succeeded);
    key.propertyRoot = nullptr;
}

TEST_F(ExhaustedControl, FailsForEveryNameAndCaptionWhileBuilding) {
    const auto build = [&] { control.buildProperties(panel()); };
    // The page, its group, the first widget's name and caption; that widget then is null.
    for (std::size_t granted = 0; granted < 4; ++granted)
        EXPECT_EQ(statusWithMemoryFor(granted, build), OutOfMemory) << granted;
    EXPECT_EQ(statusWithMemoryFor(4, build), 0x80004003U);
    key.propertyRoot = nullptr;
}

// A page that adds one combo box, which takes no memory for its items.
class ComboPage final : public StrangePanel, public Host::IHostComboBox {
public:
    ComboPage() : StrangePanel(nullptr) {}

    void retain() noexcept override {}
    void release() noexcept override {}
    void* offer(const Host::Guid&) override { return nullptr; }

    Host::Ref<Host::IHostComboBox> AddComboBox(const std::wstring&, const std::wstring&) override {
        return Host::Ref<Host::IHostComboBox>::share(this);
    }
    std::int32_t GetIndex() override { return 0; }
    void SetIndex(std::int32_t) override {}
    void AddItem(const std::wstring&) override { ++items; }

    int items = 0;
};

TEST(ExhaustedComboBox, FailsForEveryItem) {
    ComboPage page;
    const ComboBox form{{L"Absolute", L"Relative"}};
    const std::wstring name = L"AutoScaleType";
    const auto add = [&] { form.add(page, name, name); };
    EXPECT_EQ(statusWithMemoryFor(0, add), OutOfMemory);
    EXPECT_EQ(page.items, 0);
    EXPECT_EQ(statusWithMemoryFor(1, add), OutOfMemory);
    EXPECT_EQ(page.items, 1);
    EXPECT_EQ(statusWithMemoryFor(2, add), Tests::Succeeded);
}

TEST_F(ExhaustedControl, FailsWhereverTheTextOfTheClipboardEnds) {
    describeOrbit("orbit", {1, 3, 5}, {2, 4, 6});
    assignGroup({"orbit"});
    key.graph.setHistoryType(1);
    key.displayTime = 0.25;
    const std::wstring whole = control.clipboardText();
    std::wstring text;
    std::size_t granted = 0;
    const auto copy = [&] { text = control.clipboardText(); };
    for (; statusWithMemoryFor(granted, copy) != Tests::Succeeded; ++granted) {
        ASSERT_EQ(statusWithMemoryFor(granted, copy), OutOfMemory) << granted;
        ASSERT_LT(granted, 1000U);
    }
    EXPECT_GT(granted, 3U);
    EXPECT_EQ(text, whole);
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
