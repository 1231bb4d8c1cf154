#include "host_kit/session/session.h"
#include "host_kit/session/session_error.h"
#include "tests/host_kit/session/played.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace Rotavue::HostKit {
namespace {

const std::string Valid = R"({
  "title": "Every kind of member and step",
  "host": {"version": [3, 8, 19051300], "acquiring": false, "sampleRate": 1000.0,
           "editText": {"accepted": true, "text": "5\u00b5"}},
  "channels": {"orbit": {"name": "Shaft", "color": 255, "scale": [1.5, -2e-3], "axes": [[0, 1]],
                         "properties": {"OrbitType": "Raw"}, "values": {"4": [10, 0, -10, 7]}}},
  "assigned": {"channels": [null, "orbit"], "slots": [{"kind": 1}],
               "groups": [{"channels": ["orbit", null], "properties": {"OrbitType": "Raw"}}]},
  "canvas": {"fontHeight": 16}, "setup": {"tickCount": "1"}, "panel": {"hidden": ["Clearance"]},
  "nulls": ["IHostApp.getData"],
  "steps": [
    {"message": 201, "args": [{"object": "app"}, 70000], "lowerBound": 1},
    {"message": 42, "args": [{"object": "canvas"}, 0, 0, 300, 300, null, {"text": "ä"}]},
    {"patch": {"channels": {"orbit": {"axes": null}}, "nulls": []}},
    {"widget": {"name": "TickCount", "value": 2.5}},
    {"fail": {"operation": "IHostChannel.getValue", "call": 3, "status": "0x80004005"}},
    {"message": 206, "args": [{"object": "channel:orbit"}]},
    {"release": true}
  ]
})";

/// One to four times: another byte, one byte less, one byte more, or a piece twice.
std::string mutated(std::string text, std::mt19937& random) {
    const auto below = [&random](std::size_t end) { return random() % end; };
    for (std::size_t times = 1 + below(4); times > 0 && !text.empty(); --times) {
        const std::size_t place = below(text.size());
        const char byte = static_cast<char>(below(256));
        switch (below(4)) {
            case 0:
                text[place] = byte;
                break;
            case 1:
                text.erase(place, 1 + below(8));
                break;
            case 2:
                text.insert(place, 1, byte);
                break;
            default:
                text.insert(place, text.substr(below(text.size()), below(40)));
                break;
        }
    }
    return text;
}

bool isOneLine(const std::string& text) {
    return !text.empty() && std::none_of(text.begin(), text.end(), [](char c) {
        return static_cast<unsigned char>(c) < 0x20;
    });
}

TEST(Mutation, OfASessionIsRefusedInOneLineOrPlayed) {
    std::mt19937 random(20190513);
    int refused = 0;
    for (int i = 0; i < 1000; ++i) {
        const std::string text = mutated(Valid, random);
        try {
            const std::string log = logOf(text, SCRIPTED_MODULE);
            EXPECT_NE(log.find("{\"end\": "), std::string::npos) << text;
        } catch (const SessionError& error) {
            ++refused;
            EXPECT_TRUE(isOneLine(error.what())) << text;
        }
    }
    EXPECT_GT(refused, 100);
    EXPECT_LT(refused, 1000);
}

TEST(Mutation, LeavesTheValidOneValid) {
    EXPECT_NE(logOf(Valid, SCRIPTED_MODULE).find("{\"end\": "), std::string::npos);
}

}  // namespace
}  // namespace Rotavue::HostKit
