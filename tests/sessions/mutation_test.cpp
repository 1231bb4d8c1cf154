#include "host_kit/session/session_error.h"
#include "tests/sessions/session_files.h"

#include <gtest/gtest.h>

#include <random>

namespace Rotavue::HostKit {
namespace {

/// The text with one to four of its bytes changed, dropped or doubled.
std::string mutated(std::string text, std::mt19937& random) {
    for (std::size_t times = 1 + random() % 4; times > 0; --times) {
        const std::size_t place = random() % text.size();
        switch (random() % 3) {
            case 0:
                text[place] = static_cast<char>(random() % 256);
                break;
            case 1:
                text.erase(place, 1);
                break;
            default:
                text.insert(place, 1, text[place]);
                break;
        }
    }
    return text;
}

TEST(MutatedSession, IsRefusedOrPlayedToItsEndOnThePlugIn) {
    const std::string valid = readText(SessionFolder / "draw" / "raw_by_time.draw.json");
    std::mt19937 random(64);
    int played = 0;
    for (int i = 0; i < 1000; ++i) {
        const std::string text = mutated(valid, random);
        try {
            const Session session(text);
            std::ostringstream log;
            Player(session, builtModule(), log, {}).play();
            EXPECT_NE(log.str().find("\"references\": 0}}\n"), std::string::npos) << text;
            ++played;
        } catch (const SessionError&) {
            continue;
        }
    }
    EXPECT_GT(played, 100);
    EXPECT_LT(played, 900);
}

}  // namespace
}  // namespace Rotavue::HostKit
