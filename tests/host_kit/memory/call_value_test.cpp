#include "host_kit/memory/call_value.h"

#include "host_kit/memory/call.h"
#include "host_kit/memory/memory_host.h"
#include "host_kit/memory/utf8.h"
#include "tests/plugin/setup_document/c_locale.h"

#include <gtest/gtest.h>

#include <limits>
#include <locale>

namespace Rotavue::HostKit {
namespace {

std::string jsonOf(const CallValue& value) {
    std::string text;
    appendJson(text, value);
    return text;
}

struct JsonCase {
    CallValue value;
    const char* json;
};

class CallValueAsJson : public testing::TestWithParam<JsonCase> {};

TEST_P(CallValueAsJson, HasOneForm) {
    EXPECT_EQ(jsonOf(GetParam().value), GetParam().json);
}

constexpr double Infinity = std::numeric_limits<double>::infinity();

INSTANTIATE_TEST_SUITE_P(
    Numbers, CallValueAsJson,
    testing::Values(JsonCase{toCallValue(0.1), "0.1"}, JsonCase{toCallValue(100.0), "100"},
                    JsonCase{toCallValue(-0.0), "-0"},
                    JsonCase{toCallValue(1.0 / 3), "0.3333333333333333"},
                    JsonCase{toCallValue(0.1 + 0.2), "0.30000000000000004"},
                    JsonCase{toCallValue(1e23), "1e+23"}, JsonCase{toCallValue(5e-324), "5e-324"},
                    JsonCase{toCallValue(1.7976931348623157e308), "1.7976931348623157e+308"},
                    JsonCase{toCallValue(Infinity), "\"inf\""},
                    JsonCase{toCallValue(-Infinity), "\"-inf\""},
                    JsonCase{toCallValue(std::numeric_limits<double>::quiet_NaN()), "\"nan\""},
                    JsonCase{toCallValue(std::uint32_t{0xFFFFFFFF}), "4294967295"},
                    JsonCase{toCallValue(std::int32_t{-1}), "-1"}));

INSTANTIATE_TEST_SUITE_P(
    Others, CallValueAsJson,
    testing::Values(JsonCase{toCallValue(true), "true"}, JsonCase{CallValue{}, "null"},
                    JsonCase{toCallValue(std::wstring(L"a\"\\/\n\t\x01\x7f")),
                             "\"a\\\"\\\\/\\n\\t\\u0001\x7f\""},
                    JsonCase{toCallValue(std::wstring(L"\u00b5 \u20ac \U0001F600")),
                             "\"\u00b5 \u20ac \U0001F600\""},
                    JsonCase{toCallValue(std::wstring(1, L'\0')), "\"\\u0000\""},
                    JsonCase{toCallValue(std::wstring(1, static_cast<wchar_t>(0xD800))),
                             "\"\uFFFD\""},
                    JsonCase{toCallValue(Host::DataPosition{3, -4}), "[3, -4]"},
                    JsonCase{toCallValue(Host::HostVersion{3, 8, 1}), "[3, 8, 1]"},
                    JsonCase{toCallValue(std::vector<std::int32_t>{}), "[]"}));

TEST(CallValue, OfAnObjectIsItsNameOrNull) {
    MemoryHost host;
    EXPECT_EQ(jsonOf(toCallValue(host.canvas())), "\"canvas\"");
    EXPECT_EQ(jsonOf(toCallValue(Host::Ref<Host::IHostCanvas>())), "null");
}

TEST(CallValue, OfAForeignObjectSaysNoMoreThanThat) {
    struct Foreign final : Host::IHostObject {
        void retain() noexcept override {}
        void release() noexcept override {}
        void* offer(const Host::Guid&) override { return nullptr; }
    };
    EXPECT_EQ(nameOf(Foreign()), "object");
}

TEST(CallValue, HasADecimalPointInEveryLocale) {
    struct Comma : std::numpunct<char> {
        char do_decimal_point() const override { return ','; }
    };
    const std::locale before = std::locale::global(std::locale(std::locale(), new Comma));
    {
        const Meridax::Tests::CLocale german("de_DE.UTF-8");
        ASSERT_TRUE(german.isSet());
        EXPECT_EQ(jsonOf(toCallValue(1.5)), "1.5");
    }
    std::locale::global(before);
}

TEST(CallText, NamesObjectResultAndFailure) {
    Call call{operation("IHostChannelList.getItem"), toCallValue(std::int32_t{2}), {}, {}, {}};
    call.arguments = {toCallValue(std::int32_t{0})};
    call.result = CallValue{};
    EXPECT_EQ(toText(call), "IHostChannelList.getItem[2](0) -> null");
    call.result.reset();
    call.failed = 0x80004005;
    EXPECT_EQ(toText(call), "IHostChannelList.getItem[2](0) failed 0x80004005");
}

TEST(Utf8, CountsCodePoints) {
    EXPECT_EQ(codePointCount(L"a\u00b5\U0001F600"), 3U);
    EXPECT_EQ(codePointCount(L""), 0U);
}

TEST(Utf8, IsKeptWhereItIsWellFormed) {
    EXPECT_EQ(wellFormed("\u00b5"), "\u00b5");
    EXPECT_EQ(wellFormed("a\xff"), "a?");
}

}  // namespace
}  // namespace Rotavue::HostKit
