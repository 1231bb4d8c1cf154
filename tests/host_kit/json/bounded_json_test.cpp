#include "host_kit/json/bounded_json.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace Rotavue::HostKit {
namespace {

constexpr JsonBounds Bounds = {3, 8};

std::optional<JsonFault> faultOf(std::string_view text,
                                 RepeatedMembers repeated = RepeatedMembers::Refused) {
    try {
        parseBounded(text, Bounds, repeated);
    } catch (const JsonFault& fault) {
        return fault;
    }
    return std::nullopt;
}

TEST(BoundedJsonTest, GivesEachKindOfValue) {
    const std::string text = R"({"a": [null, true, -1, 18446744073709551615, 0.5, "b"], "c": {}})";
    EXPECT_EQ(
        parseBounded(text, Bounds, RepeatedMembers::Refused),
        (Json{{"a", {nullptr, true, -1, 18446744073709551615U, 0.5, "b"}}, {"c", Json::object()}}));
    EXPECT_EQ(parseBounded("7", Bounds, RepeatedMembers::Refused), Json(7));
}

TEST(BoundedJsonTest, AMemberGivenTwiceIsRefusedOrReplaced) {
    const std::string text = R"({"a": {"b": [1], "b": 2}})";
    const auto fault = faultOf(text);
    ASSERT_TRUE(fault);
    EXPECT_EQ(fault->kind, JsonFault::Kind::RepeatedMember);
    EXPECT_EQ(fault->pointer, "/a");
    EXPECT_EQ(fault->detail, "b");
    EXPECT_EQ(parseBounded(text, Bounds, RepeatedMembers::LastHolds), (Json{{"a", {{"b", 2}}}}));
}

TEST(BoundedJsonTest, TheSameNameInAnotherObjectIsNoRepetition) {
    EXPECT_FALSE(faultOf(R"([{"a": 1}, {"a": {"a": 1}}])"));
}

TEST(BoundedJsonTest, WhatIsNoJsonHasAPlace) {
    struct Case {
        const char* text;
        std::size_t byte, line, column;
        const char* pointer;
    };
    const Case cases[] = {
        {"", 0, 1, 1, ""},                         // the end is what is wrong
        {"{\n \"a\": x}", 8, 2, 7, ""},            // 2 bytes of the first line, x behind 6 others
        {"[1]\n]", 4, 2, 1, ""},                   // behind a whole value
        {"[0, {\"a\": [x]}]", 11, 1, 12, "/1/a"},  // in a list within an object within a list
    };
    for (const Case& one : cases) {
        const auto fault = faultOf(one.text);
        ASSERT_TRUE(fault) << one.text;
        EXPECT_EQ(fault->kind, JsonFault::Kind::NoJson) << one.text;
        EXPECT_EQ(fault->byte, one.byte) << one.text;
        EXPECT_EQ(fault->line, one.line) << one.text;
        EXPECT_EQ(fault->column, one.column) << one.text;
        EXPECT_EQ(fault->pointer, one.pointer) << one.text;
        EXPECT_FALSE(fault->detail.empty()) << one.text;
    }
}

TEST(BoundedJsonTest, ANumberBeyondAllBoundsIsToldApartFromNoJson) {
    const auto fault = faultOf("[\n-1e999]");
    ASSERT_TRUE(fault);
    EXPECT_EQ(fault->kind, JsonFault::Kind::NumberBeyondBounds);
    EXPECT_EQ(fault->line, 2U);
}

TEST(BoundedJsonTest, TakesWhatIsAtItsBoundsAndNoMore) {
    EXPECT_FALSE(faultOf("[[[0]]]"));
    EXPECT_EQ(faultOf("[[[[]]]]")->kind, JsonFault::Kind::TooDeep);
    EXPECT_EQ(faultOf("[[[[]]]]")->pointer, "/0/0");
    EXPECT_FALSE(faultOf(R"([{"a": "b", "c": []}, "", []])"));  // 2 + 2 + 2 + 2
    EXPECT_EQ(faultOf(R"([{"a": "b", "c": []}, "", [], ""])")->kind, JsonFault::Kind::TooManyParts);
    EXPECT_FALSE(faultOf("[0, 0, 0, 0, 0, 0, 0, 0, 0, 0]"));
}

TEST(BoundedJsonTest, MembersThatReplaceEachOtherAreCounted) {
    EXPECT_EQ(
        faultOf(R"({"a":0,"a":0,"a":0,"a":0,"a":0,"a":0,"a":0,"a":0})", RepeatedMembers::LastHolds)
            ->kind,
        JsonFault::Kind::TooManyParts);
}

}  // namespace
}  // namespace Rotavue::HostKit
