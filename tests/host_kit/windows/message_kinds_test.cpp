#include "host_kit/loader/windows/message_kinds.h"

#include <gtest/gtest.h>

#include <limits>

namespace Rotavue::HostKit {
namespace {

struct Place {
    std::uint32_t code;
    std::int64_t position;
    ArgumentKind kind;
};

class MessageKind : public testing::TestWithParam<Place> {};

TEST_P(MessageKind, IsWhatThePlugInReadsThere) {
    EXPECT_EQ(argumentKind(GetParam().code, GetParam().position), GetParam().kind);
}

INSTANTIATE_TEST_SUITE_P(
    Places, MessageKind,
    testing::Values(Place{2, 0, ArgumentKind::Object}, Place{2, 1, ArgumentKind::Object},
                    Place{2, 2, ArgumentKind::Any}, Place{8, 0, ArgumentKind::Word},
                    Place{10, 0, ArgumentKind::Byte}, Place{11, 1, ArgumentKind::Word},
                    Place{12, 2, ArgumentKind::Integer}, Place{33, 2, ArgumentKind::Word},
                    Place{36, 0, ArgumentKind::Text}, Place{36, 1, ArgumentKind::Object},
                    Place{37, 2, ArgumentKind::Integer}, Place{42, 4, ArgumentKind::Integer},
                    Place{42, 5, ArgumentKind::Any}, Place{42, 7, ArgumentKind::Integer},
                    Place{45, 0, ArgumentKind::Integer}, Place{0, 0, ArgumentKind::Any},
                    Place{99, 0, ArgumentKind::Any}, Place{2, -1, ArgumentKind::Any},
                    Place{2, std::numeric_limits<std::int64_t>::max(), ArgumentKind::Any}));

}  // namespace
}  // namespace Rotavue::HostKit
