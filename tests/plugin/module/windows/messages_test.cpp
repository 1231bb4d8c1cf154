#include "tests/plugin/module/windows/doubles/plugin_fixture.h"
#include "tests/plugin/module/windows/doubles/raw_object.h"
#include "tests/plugin/module/windows/doubles/variant_list.h"

#include <gtest/gtest.h>

/// Messages as a host sends them through the component model.
namespace Meridax::VisualControls::Rotavue {
namespace {

using Host::Binary::failureOf;
using Host::Binary::RawObject;
using MessagesTest = PluginFixture;

struct Version {
    LONG major;
    LONG minor;
    LONG build;
    bool passes;
};

class VersionGate : public MessagesTest, public testing::WithParamInterface<Version> {};

TEST_P(VersionGate, DecidesOnAttachment) {
    const Version& version = GetParam();
    RawObject app;
    RawObject control;
    app.numbers = {version.major, version.minor, version.build};
    app.put<&Host::IHostApp::getVersion>(
        [](IDispatch* self, auto, LONG* major, LONG* minor, LONG* build, auto) -> HRESULT {
            const auto& numbers = RawObject::of(self).numbers;
            *major = static_cast<LONG>(numbers[0]);
            *minor = static_cast<LONG>(numbers[1]);
            *build = static_cast<LONG>(numbers[2]);
            return S_OK;
        });
    app.put<&Host::IHostApp::showMessage>([](IDispatch* self, BSTR text) -> HRESULT {
        RawObject::of(self).texts.emplace_back(text);
        return S_OK;
    });
    const VariantList list({objectVariant(app.get()), objectVariant(control.get())});
    EXPECT_EQ(send(2, list.value()), version.passes ? S_OK : E_ABORT);
    EXPECT_EQ(app.texts.empty(), version.passes);
    EXPECT_EQ(record.calls.empty(), !version.passes);  // `onAttached`
    EXPECT_EQ(send(18), S_OK);                         // a refused host's messages go on
    EXPECT_FALSE(record.calls.empty());
    object = ComRef<IUnknown>();
    EXPECT_EQ(app.references + control.references, 2U);  // the list's own
}

INSTANTIATE_TEST_SUITE_P(Versions, VersionGate,
                         testing::Values(Version{3, 8, 19051299, false},
                                         Version{3, 8, 19051300, true}, Version{3, 9, 0, true},
                                         Version{4, 0, 0, true}, Version{2, 99, 0, false}),
                         [](const auto& parameter) {
                             return std::to_string(parameter.param.major) + "_" +
                                    std::to_string(parameter.param.minor) + "_" +
                                    std::to_string(parameter.param.build);
                         });

/// The list of message 42 for an area of 10, 20 to 110, 220.
std::vector<VARIANT> drawArguments(RawObject& canvas, LONG scheme) {
    std::vector<VARIANT> elements{objectVariant(canvas.get())};
    for (const LONG number : {10L, 20L, 110L, 220L, 0L, 0L, scheme})
        elements.push_back(integerVariant(number));
    return elements;
}

TEST_F(MessagesTest, SchemeOneAndThoseAboveAHundredDrawLight) {
    RawObject canvas;
    for (const auto& [scheme, background] : std::vector<std::pair<LONG, std::uint32_t>>{
             {0, 0}, {1, 0xFFFFFF}, {100, 0}, {101, 0xFFFFFF}, {-1, 0}}) {
        const VariantList list(drawArguments(canvas, scheme));
        EXPECT_EQ(send(42, list.value()), S_OK);
        EXPECT_EQ(record.lastContext.backgroundColor, background) << scheme;
        EXPECT_EQ(record.lastContext.width, 100);
        EXPECT_EQ(record.lastContext.height, 200);
        record.lastContext = {};
    }
    EXPECT_EQ(canvas.references, 0U);
}

TEST_F(MessagesTest, DrawWithSevenElementsIsRefusedAndGivesTheCanvasBack) {
    RawObject canvas;
    std::vector<VARIANT> elements = drawArguments(canvas, 1);
    elements.pop_back();
    const VariantList list(elements);
    EXPECT_EQ(failureOf([&] { send(42, list.value()); }).status, 0x80070057U);
    EXPECT_TRUE(record.calls.empty());
    EXPECT_EQ(canvas.asked, std::vector<Host::Guid>{Host::IHostCanvas::Identifier});
    EXPECT_EQ(canvas.references, 1U);
}

TEST_F(MessagesTest, SetupWithoutANodeDoesNothing) {
    RawObject document;
    const VariantList list(
        {objectVariant(document.get()), objectVariant(nullptr), integerVariant(0xFFFF, VT_UI2)});
    EXPECT_EQ(send(33, list.value()), S_OK);
    EXPECT_TRUE(record.calls.empty());
}

TEST_F(MessagesTest, OnlyAWordOfAllOnesWritesTheSetup) {
    for (const auto& [word, mode] :
         std::vector<std::pair<LONG, std::int64_t>>{{0xFFFF, 1}, {1, 0}, {0, 0}}) {
        RawObject document;
        RawObject node;
        document.put<&Host::IHostXmlDocument::SetMode>(
            [](IDispatch* self, VARIANT_BOOL write) -> HRESULT {
                RawObject::of(self).numbers.push_back(write);
                return S_OK;
            });
        document.put<&Host::IHostXmlDocument::GetMode>([](IDispatch* self, LONG* now) -> HRESULT {
            *now = static_cast<LONG>(RawObject::of(self).numbers.back());
            return S_OK;
        });
        const VariantList list({objectVariant(document.get()), objectVariant(node.get()),
                                integerVariant(word, VT_UI2)});
        EXPECT_EQ(send(33, list.value()), S_OK);
        EXPECT_EQ(document.numbers, std::vector<std::int64_t>{mode}) << word;
        EXPECT_EQ(document.references + node.references, 2U);
    }
}

TEST_F(MessagesTest, MessageWithoutArgumentsDoesNotLookAtADamagedList) {
    VARIANT damaged{};
    damaged.vt = VT_ARRAY | VT_VARIANT;
    damaged.parray = reinterpret_cast<SAFEARRAY*>(std::uintptr_t{1});
    const std::vector<std::pair<ULONG, HRESULT>> answers{
        {0, 0}, {1, 0}, {6, 0}, {7, 1}, {18, 0}, {25, 0}, {26, 0}, {30, 0}, {31, 0}, {46, 0}};
    for (const auto& [code, answer] : answers) {
        EXPECT_EQ(send(code, damaged), answer) << code;
        ::VariantClear(&result);
    }
}

// A lone surrogate, which is no text, goes where the platform's own programs would let it go.
TEST_F(MessagesTest, TextGoesToTheClipboardUnitByUnit) {
    record.text = {wchar_t{0xD800}, L'a', wchar_t{0xDC00}};
    EXPECT_EQ(send(31), S_OK);
    EXPECT_EQ(clipboard.units, (std::u16string{char16_t{0xD800}, u'a', char16_t{0xDC00}, u'\0'}));
}

TEST_F(MessagesTest, ObjectThatIsStoredAgainIsRetainedAndReleasedOnce) {
    RawObject app;
    const VariantList list({objectVariant(app.get())});
    const auto attach = [&] { send(2, list.value()); };
    EXPECT_EQ(failureOf(attach).status, 0x80070057U);
    const ULONG held = app.references;
    EXPECT_EQ(failureOf(attach).status, 0x80070057U);
    EXPECT_EQ(app.references, held);
}

TEST_F(MessagesTest, EighthBitOfAShiftStateIsNotLookedAt) {
    for (const ULONG code : {8UL, 9UL}) {
        const VariantList list(
            {integerVariant(0x0080, VT_UI2), integerVariant(3), integerVariant(-4)});
        EXPECT_EQ(send(code, list.value()), S_OK);
        EXPECT_NE(record.calls.back().find("0000000"), std::string::npos) << record.calls.back();
    }
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
