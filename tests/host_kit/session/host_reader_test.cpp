#include "host_kit/session/host_reader.h"

#include "host_kit/memory/memory_host.h"

#include <gtest/gtest.h>

namespace Rotavue::HostKit {
namespace {

/// A host that is described by the text of a session and then patched.
class ReadHost : public testing::Test {
protected:
    void describe(const std::string& text) { reader_.readSession(Field(Json::parse(text), "")); }
    void patch(const std::string& text) { reader_.readPatch(Field(Json::parse(text), "", true)); }

    HostDescription& described() { return host_.description; }
    ChannelDescription& channel(const std::string& id) { return described().channels.record(id); }

    MemoryHost host_;
    HostReader reader_{host_};
};

TEST_F(ReadHost, TakesEveryMemberOfTheHost) {
    describe(R"({"host": {"version": [3, 8, 19051300], "acquiring": false, "wholeDataset": true,
        "blockSize": 7, "sampleRate": 2.5, "currentPosition": [1, 2], "firstPosition": [3, 4],
        "lastPosition": [5, 6], "acquiredSampleCount": 8,
        "editText": {"accepted": true, "text": "ä"}}})");
    const HostFacts& facts = described().host;
    EXPECT_EQ(facts.version.build, 19051300);
    EXPECT_FALSE(facts.acquiring);
    EXPECT_TRUE(facts.wholeDataset);
    EXPECT_EQ(facts.blockSize, 7);
    EXPECT_EQ(facts.sampleRate, 2.5);
    EXPECT_EQ(facts.currentPosition, (Host::DataPosition{1, 2}));
    EXPECT_EQ(facts.firstPosition, (Host::DataPosition{3, 4}));
    EXPECT_EQ(facts.lastPosition, (Host::DataPosition{5, 6}));
    EXPECT_EQ(facts.acquiredSampleCount, 8);
    EXPECT_TRUE(facts.editText.accepted);
    EXPECT_EQ(facts.editText.text, L"\u00e4");
}

TEST_F(ReadHost, TakesEveryMemberOfAChannel) {
    describe(R"({"channels": {"a": {"name": "n", "unit": "u", "color": -1, "displayValue": 1.5,
        "decimals": 2, "asynchronous": true, "array": true, "arraySize": 3, "storageKind": 1,
        "sampleCount": 4, "writePosition": 5, "sampleCounter": 6, "bufferSize": 7,
        "rateDivider": 8, "sampleRate": 9.5, "scale": [2, 3], "timestamps": [0, 1.5],
        "axes": [[1, 0.5]], "properties": {"p": "q"}, "values": {"4": [1, 2.5], "-1": [3]}}}})");
    const ChannelDescription& a = channel("a");
    EXPECT_EQ(a.name + a.unit, L"nu");
    EXPECT_EQ(a.color, 0xFFFFFFFF);
    EXPECT_EQ(a.displayValue, 1.5);
    EXPECT_TRUE(a.asynchronous && a.array);
    const std::vector<std::int32_t> numbers{a.decimals,    a.arraySize,     a.storageKind,
                                            a.sampleCount, a.writePosition, a.sampleCounter,
                                            *a.bufferSize, a.rateDivider};
    EXPECT_EQ(numbers, (std::vector<std::int32_t>{2, 3, 1, 4, 5, 6, 7, 8}));
    EXPECT_EQ(a.sampleRate, 9.5);
    EXPECT_EQ(a.scale.factor * 10 + a.scale.offset, 23.0);
    EXPECT_EQ(a.timestamps.list(), (std::vector<double>{0.0, 1.5}));
    ASSERT_EQ(a.axes->size(), 1U);
    EXPECT_EQ(a.axes->front().step, 0.5);
    EXPECT_EQ(a.properties.at(L"p"), L"q");
    EXPECT_EQ(a.values.at(1, 4), 2.5);
    EXPECT_EQ(a.values.at(0, -1), 3.0);
}

TEST_F(ReadHost, TakesAssignmentCanvasSetupPanelAndNulls) {
    describe(R"({"channels": {"a": {}}, "assigned": {"channels": ["a", null],
        "groups": [{"channels": ["a"], "properties": {"OrbitType": "Raw"}}, {}],
        "slots": [{"kind": 1}, {}]}, "canvas": {"fontHeight": -9, "charWidth": 5, "textHeight": 6},
        "setup": {"k": "v"}, "panel": {"hidden": ["w"]}, "nulls": ["IHostApp.getData"]})");
    EXPECT_EQ(described().assigned.channels, (std::vector<ChannelItem>{"a", std::nullopt}));
    ASSERT_EQ(described().assigned.groups.size(), 2U);
    EXPECT_EQ(described().assigned.groups[0].properties.at(L"OrbitType"), L"Raw");
    EXPECT_EQ(described().assigned.slots[0].kind, 1);
    EXPECT_EQ(described().assigned.slots[1].kind, 0);
    EXPECT_EQ(described().canvas.fontHeight, -9);
    EXPECT_EQ(described().setup.at(L"k"), L"v");
    EXPECT_TRUE(described().panel.hidden.contains(L"w"));
    EXPECT_FALSE(host_.app()->getData());
}

TEST_F(ReadHost, TakesWholeNumbersInAnySpelling) {
    describe(R"({"host": {"blockSize": 2e1, "acquiredSampleCount": -0.0}})");
    EXPECT_EQ(described().host.blockSize, 20);
    EXPECT_EQ(described().host.acquiredSampleCount, 0);
}

TEST_F(ReadHost, HasNoAxesWhereTheyAreNullAtTheStart) {
    describe(R"({"channels": {"a": {"axes": null}}})");
    EXPECT_FALSE(channel("a").axes);
    patch(R"({"channels": {"a": {"axes": null}}})");
    EXPECT_TRUE(channel("a").axes) << "a patch takes the member away: the default is a list";
}

TEST_F(ReadHost, MergesAPatchMemberByMember) {
    describe(R"({"host": {"blockSize": 7, "editText": {"accepted": true, "text": "x"}},
                 "channels": {"a": {"name": "n", "values": {"4": [1, 2], "5": [3]}}, "b": {}}})");
    patch(R"({"host": {"editText": {"text": "y"}},
              "channels": {"a": {"values": {"4": [9]}}, "c": {"name": "new"}}})");
    EXPECT_EQ(described().host.blockSize, 7);
    EXPECT_TRUE(described().host.editText.accepted);
    EXPECT_EQ(described().host.editText.text, L"y");
    EXPECT_EQ(channel("a").name, L"n");
    EXPECT_EQ(channel("a").values.at(0, 4), 9.0);
    EXPECT_EQ(channel("a").values.at(1, 4), 0.0) << "a list takes the place of the other";
    EXPECT_EQ(channel("a").values.at(0, 5), 3.0);
    EXPECT_TRUE(described().channels.contains("b"));
    EXPECT_EQ(channel("c").name, L"new");
}

TEST_F(ReadHost, GoesBackToTheDefaultWhereAPatchHasNull) {
    describe(R"({"host": {"version": [1, 2, 3], "acquiring": false},
        "channels": {"a": {"bufferSize": 9, "properties": {"p": "q"}, "values": {"4": [1]}},
                     "b": {}},
        "assigned": {"channels": ["a"], "slots": [{"kind": 1}]},
        "canvas": {"fontHeight": 9}, "setup": {"k": "v", "l": "w"},
        "panel": {"hidden": ["x"]}, "nulls": ["IHostApp.getData"]})");
    patch(R"({"host": {"version": null}, "assigned": {"slots": null}, "canvas": null,
              "channels": {"a": {"bufferSize": null, "properties": {"p": null},
                                 "values": {"4": null}}, "b": null},
              "setup": {"k": null}, "panel": null, "nulls": null})");
    EXPECT_EQ(described().host.version.major, 4);
    EXPECT_FALSE(described().host.acquiring);
    EXPECT_TRUE(described().assigned.slots.empty());
    EXPECT_EQ(described().assigned.channels.size(), 1U);
    EXPECT_EQ(described().canvas.fontHeight, 16);
    EXPECT_FALSE(channel("a").bufferSize);
    EXPECT_TRUE(channel("a").properties.empty());
    EXPECT_EQ(channel("a").values.at(0, 4), 0.0);
    EXPECT_FALSE(described().channels.contains("b"));
    EXPECT_EQ(described().setup.size(), 1U);
    EXPECT_TRUE(described().panel.hidden.empty());
    EXPECT_TRUE(host_.app()->getData());
    patch(R"({"host": null, "setup": null, "assigned": null})");
    EXPECT_TRUE(described().host.acquiring);
    EXPECT_TRUE(described().setup.empty());
    patch(R"({"channels": null})");
    EXPECT_TRUE(described().channels.ids().empty());
}

TEST_F(ReadHost, MayTakeAChannelAwayTogetherWithItsAssignment) {
    describe(R"({"channels": {"a": {"name": "n"}}, "assigned": {"channels": ["a"]}})");
    const auto held = host_.channel("a");
    patch(R"({"channels": {"a": null}, "assigned": {"channels": []}})");
    EXPECT_EQ(held->getName(), L"");
    patch(R"({"channels": {"a": {"name": "m"}}, "assigned": {"channels": ["a"]}})");
    EXPECT_EQ(held->getName(), L"m");
}

TEST_F(ReadHost, MergesTheSetupOverWhatTheNodeHoldsNow) {
    describe(R"({"setup": {"a": "1", "b": "2"}})");
    host_.document()->WriteValue(*host_.node(), L"c", L"3", L"");
    host_.document()->WriteValue(*host_.node(), L"b", L"", L"");
    patch(R"({"setup": {"a": "9"}})");
    EXPECT_EQ(described().setup,
              (std::map<std::wstring, std::wstring>{{L"a", L"9"}, {L"c", L"3"}}));
}

TEST_F(ReadHost, SetsTheHeightOfTheFontByAPatchThatNamesIt) {
    host_.canvas()->GetFont()->SetHeight(40);
    patch(R"({"canvas": {"charWidth": 3}})");
    EXPECT_EQ(host_.canvas()->GetFont()->GetHeight(), 40);
    patch(R"({"canvas": {"fontHeight": 20}})");
    EXPECT_EQ(host_.canvas()->GetFont()->GetHeight(), 20);
}

}  // namespace
}  // namespace Rotavue::HostKit
