#include "plugin/module/portable/supplied_clipboard.h"

#include "plugin/framework/clipboard_copy.h"
#include "tests/plugin/module/doubles/host_clipboard.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <utility>

namespace Meridax::VisualControls::Rotavue {
namespace {

using Host::Ref;

class SuppliedClipboardTest : public testing::Test {
protected:
    SuppliedClipboardTest() { clipboard.supply(Ref<Api::IHostClipboard>::share(&host)); }

    HostClipboard host;
    SuppliedClipboard clipboard;
};

TEST_F(SuppliedClipboardTest, HandsTheFinishedTextToTheHost) {
    Api::copyToClipboard(clipboard, L"X\tY \u00B5 \U0001F600\r\n");
    EXPECT_EQ(host.texts, std::vector<std::wstring>{L"X\tY \u00B5 \U0001F600\r\n"});
}

TEST_F(SuppliedClipboardTest, EmptyTextIsHandedOverToo) {
    Api::copyToClipboard(clipboard, L"");
    EXPECT_EQ(host.texts, std::vector<std::wstring>{L""});
}

TEST_F(SuppliedClipboardTest, TextEndsAtItsFirstZero) {
    Api::copyToClipboard(clipboard, std::wstring_view(L"ab\0cd", 5));
    EXPECT_EQ(host.texts, std::vector<std::wstring>{L"ab"});
}

TEST_F(SuppliedClipboardTest, WithoutAClipboardACopyGoesNowhere) {
    clipboard.supply(nullptr);
    Api::copyToClipboard(clipboard, L"text");
    EXPECT_TRUE(host.texts.empty());
    EXPECT_EQ(host.count, 0);
}

TEST_F(SuppliedClipboardTest, FailureOfTheHostGoesNowhere) {
    host.during = [] { throw std::runtime_error("the clipboard is busy"); };
    EXPECT_NO_THROW(Api::copyToClipboard(clipboard, L"text"));
    EXPECT_EQ(host.texts.size(), 1U);
}

TEST_F(SuppliedClipboardTest, HostMayTakeItsClipboardAwayInsideTheCall) {
    host.during = [this] {
        clipboard.supply(nullptr);
        EXPECT_EQ(host.count, 1);
    };
    Api::copyToClipboard(clipboard, L"text");
    EXPECT_EQ(host.count, 0);
}

TEST_F(SuppliedClipboardTest, CopyInsideACopyKeepsBothTexts) {
    bool inside = false;
    host.during = [&] {
        if (!std::exchange(inside, true)) Api::copyToClipboard(clipboard, L"inner");
    };
    Api::copyToClipboard(clipboard, L"outer");
    EXPECT_EQ(host.texts, (std::vector<std::wstring>{L"outer", L"inner"}));
}

TEST_F(SuppliedClipboardTest, NullBlockIsNoText) {
    clipboard.setUnicodeText(nullptr);
    clipboard.free(nullptr);
    EXPECT_TRUE(host.texts.empty());
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
