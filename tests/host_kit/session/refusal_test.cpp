#include "host_kit/session/session.h"
#include "host_kit/session/session_error.h"

#include <gtest/gtest.h>

namespace Rotavue::HostKit {
namespace {

std::string refusalOf(const std::string& text) {
    try {
        const Session session(text);
        return "taken";
    } catch (const SessionError& error) {
        return error.what();
    }
}

struct Refusal {
    const char* name;
    std::string text;
    std::string line;
};

class RefusedSession : public testing::TestWithParam<Refusal> {};

TEST_P(RefusedSession, IsNamedByPlaceFaultAndWhatIsAllowed) {
    EXPECT_EQ(refusalOf(GetParam().text), GetParam().line);
}

std::string nameOfCase(const testing::TestParamInfo<Refusal>& info) {
    return info.param.name;
}

std::string steps(const std::string& list) {
    return "{\"steps\": [" + list + "]}";
}

std::string described(const std::string& members) {
    return "{" + members + ", \"steps\": []}";
}

INSTANTIATE_TEST_SUITE_P(
    Json, RefusedSession,
    testing::Values(
        Refusal{"Empty", "",
                "(the whole file): is no JSON at line 1, column 1: unexpected end of input; "
                "expected '[', '{', or a literal"},
        Refusal{"CutOff", "{\n\"steps\": [",
                "/steps: is no JSON at line 2, column 11: unexpected end of input; "
                "expected '[', '{', or a literal"},
        Refusal{"Trailing", "{\"steps\": []} x",
                "(the whole file): is no JSON at line 1, column 15: invalid literal"},
        Refusal{"NotUtf8", "{\"title\": \"\xff\"}",
                "(the whole file): is no JSON at line 1, column 12: invalid string: ill-formed "
                "UTF-8 byte"},
        Refusal{"HugeNumber", "{\"title\": 1e999}",
                "(the whole file): is no JSON at line 1, column 15: a number beyond all bounds"},
        Refusal{"Twice", R"({"steps": [{"message": 1, "message": 2}]})",
                R"(/steps/0: the member "message" is there twice)"},
        Refusal{"NoObject", "[]", "(the whole file): is a list; allowed: an object"}),
    nameOfCase);

INSTANTIATE_TEST_SUITE_P(
    Members, RefusedSession,
    testing::Values(
        Refusal{
            "NoSteps", "{}",
            R"((the whole file): the member "steps" is missing, which must be a list of steps)"},
        Refusal{"UnknownMember", described(R"("step": [])"),
                "/step: is unknown here; allowed: title, host, channels, assigned, canvas, setup, "
                "panel, nulls, steps"},
        Refusal{"Title", described(R"("title": 5)"), "/title: is 5; allowed: a text"},
        Refusal{"Boolean", described(R"("host": {"acquiring": 1})"),
                "/host/acquiring: is 1; allowed: true or false"},
        Refusal{"Integer", described(R"("host": {"blockSize": 1.5})"),
                "/host/blockSize: is 1.5; allowed: a whole number from -2147483648 to 2147483647"},
        Refusal{"WideInteger", described(R"("host": {"blockSize": 2147483648})"),
                "/host/blockSize: is 2147483648; allowed: a whole number from -2147483648 to "
                "2147483647"},
        Refusal{"HugeInteger", described(R"("host": {"blockSize": 99999999999999999999})"),
                "/host/blockSize: is 1e+20; allowed: a whole number from -2147483648 to "
                "2147483647"},
        Refusal{"Number", described(R"("host": {"sampleRate": "10"})"),
                R"(/host/sampleRate: is the text "10"; allowed: a number)"},
        Refusal{"Version", described(R"("host": {"version": [4, 0]})"),
                "/host/version: is a list; allowed: [major, minor, build]"},
        Refusal{"VersionItem", described(R"("host": {"version": [4, 0, "x"]})"),
                R"(/host/version/2: is the text "x"; allowed: a whole number from -2147483648 to )"
                "2147483647"},
        Refusal{"Position", described(R"("host": {"currentPosition": 5})"),
                "/host/currentPosition: is 5; allowed: [block, offset]"},
        Refusal{"NullAtTheStart", described(R"("host": {"editText": {"text": null}})"),
                "/host/editText/text: is null; allowed: a text"},
        Refusal{"Color", described(R"("channels": {"a/b": {"color": 4294967296}})"),
                "/channels/a~1b/color: is 4294967296; allowed: a whole number from -2147483648 to "
                "4294967295"},
        Refusal{"Scale", described(R"("channels": {"a": {"scale": [1]}})"),
                "/channels/a/scale: is a list; allowed: [factor, offset]"},
        Refusal{"Axis", described(R"("channels": {"a": {"axes": [[0, 1], [0]]}})"),
                "/channels/a/axes/1: is a list; allowed: [start, step]"},
        Refusal{"Component", described(R"("channels": {"a": {"values": {"04": []}}})"),
                "/channels/a/values/04: names no component; allowed: whole numbers such as \"4\""},
        Refusal{"Value", described(R"("channels": {"a": {"values": {"4": [1, null]}}})"),
                "/channels/a/values/4/1: is null; allowed: a number"},
        Refusal{"Property", described(R"("channels": {"a": {"properties": {"x": 1}}})"),
                "/channels/a/properties/x: is 1; allowed: a text"},
        Refusal{"ControlCharacterInAName", described(R"("a\nb": 1)"),
                "/a b: is unknown here; allowed: title, host, channels, assigned, canvas, setup, "
                "panel, nulls, steps"}),
    nameOfCase);

INSTANTIATE_TEST_SUITE_P(
    Assignment, RefusedSession,
    testing::Values(
        Refusal{"UnknownChannel", described(R"("assigned": {"channels": ["x"]})"),
                R"(/assigned/channels/0: is the text "x"; allowed: null or the id of a described )"
                "channel"},
        Refusal{"UnknownInGroup",
                described(R"("channels": {"a": {}}, "assigned": {"groups": [{"channels":
                             ["a", null, "b"]}]})"),
                R"(/assigned/groups/0/channels/2: is the text "b"; allowed: null or the id of a )"
                "described channel"},
        Refusal{"Slot", described(R"("assigned": {"slots": [{"kind": "1"}]})"),
                R"(/assigned/slots/0/kind: is the text "1"; allowed: a whole number from )"
                "-2147483648 to 2147483647"},
        Refusal{"Nulls", described(R"("nulls": ["IHostApp.isAcquiring"])"),
                R"(/nulls/0: is the text "IHostApp.isAcquiring"; allowed: an operation that gives )"
                R"(an object, such as "IHostApp.getData")"},
        Refusal{"TakenAwayButAssigned",
                R"({"channels": {"a": {}}, "assigned": {"channels": ["a"]},
                    "steps": [{"patch": {"channels": {"a": null}}}]})",
                R"(/steps/0/patch: takes away the channel "a", which is still assigned)"},
        Refusal{"AllTakenAwayButAssigned",
                R"({"channels": {"a": {}}, "assigned": {"groups": [{"channels": ["a"]}]},
                    "steps": [{"patch": {"channels": null}}]})",
                R"(/steps/0/patch: takes away the channel "a", which is still assigned)"}),
    nameOfCase);

INSTANTIATE_TEST_SUITE_P(
    Steps, RefusedSession,
    testing::Values(
        Refusal{"NoKind", steps("{}"),
                "/steps/0: is an object; allowed: an object with message, patch, widget, fail or "
                "release"},
        Refusal{"NoObject", steps("5"),
                "/steps/0: is 5; allowed: an object with message, patch, widget, fail or release"},
        Refusal{"TwoKinds", steps(R"({"message": 0, "release": true})"),
                "/steps/0/release: is unknown here; allowed: message, args, lowerBound"},
        Refusal{"Code", steps(R"({"message": -1})"),
                "/steps/0/message: is -1; allowed: a whole number from 0 to 4294967295"},
        Refusal{"Arguments", steps(R"({"message": 1, "args": 5})"),
                "/steps/0/args: is 5; allowed: a list"},
        Refusal{"Argument", steps(R"({"message": 1, "args": [true]})"),
                R"(/steps/0/args/0: is true; allowed: a whole number, null, {"text": "..."} or )"
                R"({"object": NAME})"},
        Refusal{"BrokenNumber", steps(R"({"message": 1, "args": [0, 0.5]})"),
                R"(/steps/0/args/1: is 0.5; allowed: a whole number, null, {"text": "..."} or )"
                R"({"object": NAME})"},
        Refusal{"Object", steps(R"({"message": 1, "args": [{"object": "canvass"}]})"),
                R"(/steps/0/args/0/object: is the text "canvass"; allowed: app, control, canvas, )"
                "document, node, panel, channel:ID and group:INDEX as described, widget:NAME"},
        Refusal{"UndescribedChannel", steps(R"({"message": 3, "args": [{"object": "channel:a"}]})"),
                R"(/steps/0/args/0/object: is the text "channel:a"; allowed: app, control, )"
                "canvas, document, node, panel, channel:ID and group:INDEX as described, "
                "widget:NAME"},
        Refusal{"UndescribedGroup", steps(R"({"message": 3, "args": [{"object": "group:0"}]})"),
                R"(/steps/0/args/0/object: is the text "group:0"; allowed: app, control, canvas, )"
                "document, node, panel, channel:ID and group:INDEX as described, widget:NAME"},
        Refusal{"NegativeBound", steps(R"({"message": 1, "lowerBound": -1})"),
                "/steps/0/lowerBound: is -1; allowed: a whole number from 0 to 2147483647"},
        Refusal{"BoundThatLeavesNoRoom",
                steps(R"({"message": 1, "args": [1, 2], "lowerBound": 2147483646})"),
                "/steps/0/lowerBound: is 2147483646; allowed: a whole number from 0 to "
                "2147483645"},
        Refusal{"PatchOfTheTitle", steps(R"({"patch": {"title": "x"}})"),
                "/steps/0/patch/title: is unknown here; allowed: host, channels, assigned, canvas, "
                "setup, panel, nulls"},
        Refusal{"PatchThatIsNone", steps(R"({"patch": null})"),
                "/steps/0/patch: is null; allowed: an object"},
        Refusal{"WidgetWithoutValue", steps(R"({"widget": {"name": "x"}})"),
                R"(/steps/0/widget: the member "value" is missing, which must be true, false or a )"
                "number"},
        Refusal{"WidgetValue", steps(R"({"widget": {"name": "x", "value": "1"}})"),
                R"(/steps/0/widget/value: is the text "1"; allowed: true, false or a number)"},
        Refusal{"Operation",
                steps(R"({"fail": {"operation": "IHostApp", "call": 1, "status": "0x80004005"}})"),
                R"(/steps/0/fail/operation: is the text "IHostApp"; allowed: an operation of the )"
                R"(host, such as "IHostChannel.getValue")"},
        Refusal{"CallNumber", steps(R"({"fail": {"operation": "IHostApp.getData", "call": 0,
                                   "status": "0x80004005"}})"),
                "/steps/0/fail/call: is 0; allowed: a whole number from 1 to 2147483647"},
        Refusal{"GoodStatus", steps(R"({"fail": {"operation": "IHostApp.getData", "call": 1,
                                   "status": "0x00000001"}})"),
                R"(/steps/0/fail/status: is the text "0x00000001"; allowed: a failed status, )"
                R"("0x80000000" to "0xFFFFFFFF")"},
        Refusal{"ReleaseOfNothing", steps(R"({"release": false})"),
                "/steps/0/release: is false; allowed: true"}),
    nameOfCase);

TEST(Session, RefusesToGoTooDeep) {
    const std::string line = refusalOf(std::string(100'000, '['));
    EXPECT_NE(line.find("lists and objects lie too deep"), std::string::npos) << line;
}

TEST(Session, RefusesTooManyParts) {
    std::string text = "{\"title\": [\"\"";
    for (int i = 0; i < 1'000'000; ++i)
        text += ",\"\"";
    const std::string line = refusalOf(text + "]}");
    EXPECT_EQ(line, "/title: there are too many texts, lists and objects");
}

TEST(Session, RefusesTooLongATextUnread) {
    EXPECT_EQ(refusalOf(std::string((std::size_t{64} << 20) + 1, ' ')),
              "(the whole file): the file is longer than 64 MiB");
}

TEST(Session, QuotesLongTextsInPart) {
    const std::string line = refusalOf(steps("{\"message\": \"" + std::string(1000, 'x') + "\"}"));
    EXPECT_EQ(line, "/steps/0/message: is the text \"" + std::string(60, 'x') +
                        "...\"; allowed: a whole number from 0 to 4294967295");
}

}  // namespace
}  // namespace Rotavue::HostKit
