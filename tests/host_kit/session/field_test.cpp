#include "host_kit/session/field.h"

#include "host_kit/session/session.h"

#include <gtest/gtest.h>

#include <limits>
#include <variant>
#include <vector>

namespace Rotavue::HostKit {
namespace {

struct Spelling {
    std::string text;
    std::int64_t cut;
};

constexpr std::int64_t Least64 = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t Greatest64 = std::numeric_limits<std::int64_t>::max();

/// Doubles near two to the 64th power are 2048 apart: a small number that is taken from it is lost
/// up to 1024.
const std::vector<Spelling> Spellings{{"-1", -1},
                                      {"-1.0", -1},
                                      {"-1e0", -1},
                                      {"-0.0", 0},
                                      {"-1024.0", -1024},
                                      {"-1025.0", -1025},
                                      {"-4294967297.0", -4294967297},
                                      {"1024.0", 1024},
                                      {"-9223372036854775808.0", Least64},            // -2^63
                                      {"9223372036854775808.0", Least64},             // 2^63
                                      {"-9223372036854777856.0", Greatest64 - 2047},  // 2048 less
                                      {"18446744073709551616.0", 0},                  // 2^64
                                      {"-18446744073709555712.0", -4096},
                                      {"1e300", 0}};  // 2^64 divides it

TEST(WholeNumber, OfAWidgetIsCutWhateverItsSpelling) {
    for (const Spelling& spelling : Spellings) {
        const Session session(R"({"steps": [{"widget": {"name": "w", "value": )" + spelling.text +
                              "}}]}");
        const auto& step = std::get<WidgetStep>(session.steps().front());
        EXPECT_EQ(std::get<std::int64_t>(step.value), spelling.cut) << spelling.text;
    }
}

TEST(WholeNumber, OfAnArgumentIsCutWhateverItsSpelling) {
    for (const Spelling& spelling : Spellings) {
        const Session session(R"({"steps": [{"message": 12, "args": [)" + spelling.text + "]}]}");
        const auto& step = std::get<MessageStep>(session.steps().front());
        EXPECT_EQ(std::get<std::int64_t>(step.arguments.front()), spelling.cut) << spelling.text;
    }
}

}  // namespace
}  // namespace Rotavue::HostKit
