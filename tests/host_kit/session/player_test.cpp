#include "host_kit/session/player.h"

#include "tests/host_kit/session/played.h"

#include <gtest/gtest.h>

namespace Rotavue::HostKit {
namespace {

const std::string End = "{\"end\": {\"setup\": {}, \"references\": 0}}\n";

struct ThrownCase {
    int code;
    const char* error;
};

class ThrownMessage : public testing::TestWithParam<ThrownCase> {};

TEST_P(ThrownMessage, IsALineThatTellsWhatWasThrown) {
    const std::string code = std::to_string(GetParam().code);
    EXPECT_EQ(
        logOfSteps("{\"message\": " + code + "}"),
        "{\"step\": 0, \"message\": " + code + ", \"error\": " + GetParam().error + "}\n" + End);
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, ThrownMessage,
    testing::Values(
        ThrownCase{100, R"({"kind": "exception", "what": "no standard kind ?"})"},
        ThrownCase{101, R"({"kind": "exception", "what": ""})"},
        ThrownCase{102, R"({"kind": "out_of_range", "what": "too far"})"},
        ThrownCase{103, R"({"kind": "invalid_argument", "what": "not this"})"},
        ThrownCase{104, R"({"kind": "XmlException", "code": 4, "what": "Value is out of range!"})"},
        ThrownCase{105, R"({"kind": "HostError", "status": "0x8007000E", )"
                        R"("interface": "{264200AB-CDA2-4257-932E-FD19E014BD0C}"})"}));

TEST(Player, TellsStatusAndResultOfEachMessage) {
    EXPECT_EQ(logOfSteps(R"({"message": 203}, {"message": 204}, {"message": 9999})"),
              R"({"step": 0, "message": 203, "status": 3, "result": -5})"
              "\n"
              R"({"step": 1, "message": 204, "status": 0, "result": [0, 0, 0, 9]})"
              "\n"
              R"({"step": 2, "message": 9999, "status": "0x80004004"})"
              "\n" +
                  End);
}

TEST(Player, CountsStepsOfAllKinds) {
    EXPECT_EQ(logOfSteps(R"({"patch": {}}, {"release": true}, {"message": 203})"),
              R"({"step": 2, "message": 203, "status": 3, "result": -5})"
              "\n" +
                  End);
}

TEST(Player, SendsAListWithItsLowerBoundOrNone) {
    EXPECT_EQ(logOfSteps(R"({"message": 201, "args": [{"object": "app"}, 66051], "lowerBound": 7},
                            {"message": 201, "args": [{"object": "app"}, {"text": "ä"}]},
                            {"message": 205, "args": null}, {"message": 205})"),
              R"({"call": "IHostApp.showMessage", "args": ["66051 515 3 '' of 7..8"]})"
              "\n"
              R"({"step": 0, "message": 201, "status": 0})"
              "\n"
              R"({"call": "IHostApp.showMessage", "args": ["0 0 0 'ä' of 0..1"]})"
              "\n"
              R"({"step": 1, "message": 201, "status": 0})"
              "\n"
              R"({"step": 2, "message": 205, "status": 1})"
              "\n"
              R"({"step": 3, "message": 205, "status": 0})"
              "\n" +
                  End);
}

TEST(Player, ShowsCopiedTextBeforeTheMessageThatCopiedIt) {
    EXPECT_EQ(logOfSteps(R"({"message": 202, "args": [{"text": "a\tb"}]})"),
              R"({"clipboard": "a\tb"})"
              "\n"
              R"({"step": 0, "message": 202, "status": 0})"
              "\n" +
                  End);
}

TEST(Player, FailsACallOnceAndShowsIt) {
    const std::string step = R"({"message": 206, "args": [{"object": "app"}]})";
    LogOptions all;
    all.groups = allGroups();
    EXPECT_EQ(logOfSteps(R"({"fail": {"operation": "IHostApp.getData", "call": 2,
                                      "status": "0x8000FFFF"}}, )" +
                             step + ", " + step + ", " + step,
                         all),
              R"({"call": "IHostApp.getData", "args": [], "result": "data"})"
              "\n"
              R"({"step": 1, "message": 206, "status": 0})"
              "\n"
              R"({"call": "IHostApp.getData", "args": [], "failed": "0x8000FFFF"})"
              "\n"
              R"({"step": 2, "message": 206, "error": {"kind": "HostError", )"
              R"("status": "0x8000FFFF", "interface": "IHostApp"}})"
              "\n"
              R"({"call": "IHostApp.getData", "args": [], "result": "data"})"
              "\n"
              R"({"step": 3, "message": 206, "status": 0})"
              "\n" +
                  End);
}

TEST(Player, CountsWhatThePlugInStillHoldsAtTheEnd) {
    EXPECT_EQ(logOfSteps(R"({"message": 200, "args": [{"object": "canvas"}]},
                            {"message": 200, "args": [{"object": "canvas"}]})"),
              "{\"step\": 0, \"message\": 200, \"status\": 0}\n"
              "{\"step\": 1, \"message\": 200, \"status\": 0}\n"
              "{\"end\": {\"setup\": {}, \"references\": 2}}\n");
}

TEST(Player, EndsWithTheSetupSortedByCode) {
    // B is 0x42, a is 0x61, b is 0x62, \u00e4 is 0xE4 and \U0001F600 lies beyond all of them.
    EXPECT_EQ(
        logOf("{\"setup\": {\"\U0001F600\": \"5\", \"b\": \"3\", \"\u00e4\": \"4\", \"B\": \"1\", "
              "\"a\": \"2\"}, \"steps\": []}",
              SCRIPTED_MODULE),
        "{\"end\": {\"setup\": {\"B\": \"1\", \"a\": \"2\", \"b\": \"3\", \"\u00e4\": \"4\", "
        "\"\U0001F600\": \"5\"}, \"references\": 0}}\n");
}

TEST(Player, ShowsOnlyTheGroupsThatAreAskedFor) {
    const std::string step = R"({"message": 42, "args": [{"object": "canvas"}, 1, 2, 3, 4]})";
    LogOptions none;
    none.groups = {};
    EXPECT_EQ(logOfSteps(step, none), "{\"step\": 0, \"message\": 42, \"status\": 0}\n" + End);
    EXPECT_EQ(logOfSteps(step),
              "{\"call\": \"IHostCanvas.MoveTo\", \"args\": [1, 2]}\n"
              "{\"call\": \"IHostCanvas.LineTo\", \"args\": [3, 4]}\n"
              "{\"step\": 0, \"message\": 42, \"status\": 0}\n" +
                  End);
}

TEST(Player, PaintsTheLastFrameAlsoOnAnotherCanvas) {
    MemoryHost painter;
    painter.record();
    std::vector<std::int32_t> edges;
    LogOptions options;
    options.picture = [&](const FrameEdges& frame) {
        edges = {frame.left, frame.top, frame.right, frame.bottom};
        return painter.canvas();
    };
    logOfSteps(R"({"message": 42, "args": [{"object": "canvas"}, 1, 1, 1, 1]},
                  {"message": 42, "args": [{"object": "canvas"}, 1, 2, 3, 4]},
                  {"message": 203})",
               options);
    EXPECT_EQ(edges, (std::vector<std::int32_t>{1, 2, 3, 4}));
    const std::vector<std::string> calls = painter.takeCalls();
    EXPECT_EQ(calls[calls.size() - 2], "IHostCanvas.MoveTo(1, 2)");
    EXPECT_EQ(calls.back(), "IHostCanvas.LineTo(3, 4)");
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "IHostCanvas.MoveTo(1, 1)"), 0);
    EXPECT_EQ(painter.references(), 0);
}

TEST(Player, AsksForAPictureEvenWhereTheListIsTooShort) {
    std::vector<std::int32_t> edges;
    LogOptions options;
    options.picture = [&](const FrameEdges& frame) {
        edges = {frame.left, frame.top, frame.right, frame.bottom};
        return nullptr;
    };
    logOfSteps(R"({"message": 42, "args": [{"object": "canvas"}, 9, {"text": "x"}]})", options);
    EXPECT_EQ(edges, (std::vector<std::int32_t>{9, 0, 0, 0}));
}

}  // namespace
}  // namespace Rotavue::HostKit
