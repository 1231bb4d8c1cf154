#include "workbench/recording/json_text.h"

#include <nlohmann/json.hpp>

#include "tests/workbench/recording/scratch_folder.h"

namespace Rotavue::Workbench {
namespace {

using Json = nlohmann::json;

class JsonTextTest : public ScratchFolder {
protected:
    static constexpr JsonBounds Bounds = {3, 8};

    std::string faultOf(std::string_view text) const {
        return messageOf([&] { parseJson("f", text, Bounds); });
    }
};

TEST_F(JsonTextTest, GivesEachKindOfValue) {
    const Json json = parseJson(
        "f", R"({"a": [null, true, -1, 18446744073709551615, 0.5, "b"], "c": {}})", Bounds);
    EXPECT_EQ(json, (Json{{"a", {nullptr, true, -1, 18446744073709551615U, 0.5, "b"}},
                          {"c", Json::object()}}));
    EXPECT_EQ(parseJson("f", "7", Bounds), Json(7));
}

TEST_F(JsonTextTest, TheLastOfMembersOfOneNameHolds) {
    EXPECT_EQ(parseJson("f", R"({"a": [1], "a": 2})", Bounds), (Json{{"a", 2}}));
}

TEST_F(JsonTextTest, NamesLineAndColumnOfWhatIsNoJson) {
    EXPECT_EQ(faultOf(""), "f:1:1: found the end of the file, allowed: a JSON object");
    EXPECT_EQ(faultOf("{\n \"a\": x}"), "f:2:7: found \"x\", allowed: a JSON object");
    EXPECT_EQ(faultOf("[1]\n]"), "f:2:1: found \"]\", allowed: a JSON object");
    EXPECT_EQ(faultOf("[-1e999]"), "f: found a number beyond all bounds, allowed: a JSON object");
}

TEST_F(JsonTextTest, TakesWhatIsAtItsBoundsAndNoMore) {
    EXPECT_EQ(faultOf("[[[0]]]"), "no error");
    EXPECT_EQ(faultOf("[[[[]]]]"), "f: found values nested too deep, allowed: 3 levels");
    const std::string tooMany = "f: found too many lists, objects and texts, allowed: at most 8";
    EXPECT_EQ(faultOf(R"([{"a": "b", "c": []}, "", []])"), "no error");  // 2 + 2 + 2 + 2
    EXPECT_EQ(faultOf(R"([{"a": "b", "c": []}, "", [], ""])"), tooMany);
    EXPECT_EQ(faultOf(R"({"a": 0, "b": 0, "c": 0, "d": 0, "e": 0, "f": 0, "g": 0})"), "no error");
    EXPECT_EQ(faultOf(R"({"a": 0, "a": 0, "a": 0, "a": 0, "a": 0, "a": 0, "a": 0, "a": 0})"),
              tooMany);
    EXPECT_EQ(faultOf("[0, 0, 0, 0, 0, 0, 0, 0, 0, 0]"), "no error");
}

TEST_F(JsonTextTest, AMillionObjectsInAListEnd) {
    // To walk through the list behind each of them would take an hour.
    std::string text = "[{}";
    for (int i = 1; i < 1'000'000; ++i)
        text += ",{}";
    EXPECT_EQ(parseJson("f", text + ']', {2, 1'000'001}).size(), 1'000'000U);
}

}  // namespace
}  // namespace Rotavue::Workbench
