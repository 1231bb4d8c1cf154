#include "tests/faults/fault_session.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iostream>

namespace Rotavue::HostKit {
namespace {

std::string interfaceOfCall(const std::string& call) {
    return call.substr(0, call.find('.'));
}

std::string failureText(const std::string& interface) {
    return R"({"interface":")" + interface + R"(","kind":"HostError","status":"0x80004005"})";
}

const std::string NullText = R"({"interface":null,"kind":"HostError","status":"0x80004003"})";

/// Objects that the control can do without: a group may lack its tacho, and one with a null member
/// is not usable; a host may leave out a widget; a check box is made and not used further.
bool mayBeNull(const std::string& call) {
    return call == "IHostChannelList.getItem" || call == "IHostPropertyPage.FindControl" ||
           call == "IHostPropertyPage.AddCheckBox";
}

/// The places of the calls that a fault can hit: every call in that part of the log for which
/// `hits` is true.
template <class Hits>
std::vector<std::size_t> placesOf(const LogLines& log, std::size_t end, Hits hits) {
    std::vector<std::size_t> places;
    for (std::size_t i = 0; i < end; ++i) {
        const LogLine line(log[i]);
        if (!line.call.empty() && hits(line)) places.push_back(i);
    }
    return places;
}

class FaultySession : public testing::TestWithParam<std::filesystem::path> {
protected:
    static void TearDownTestSuite() {
        std::cout << failures_ << " failing calls and " << nulls_ << " null objects in all\n";
    }

    /// After the fault nothing stays held, and the control draws the frames of a sound host.
    static void expectGoesOn(const LogLines& log) {
        EXPECT_TRUE(nothingHeld(log)) << log.back();
        EXPECT_EQ(closingError(log), "");
    }

    static inline std::size_t failures_ = 0;
    static inline std::size_t nulls_ = 0;

    const FaultSession session_{GetParam()};
    const LogLines sound_ = session_.play();
    const std::size_t triedPart_ = session_.triedPart(sound_);
};

TEST_P(FaultySession, EndsWithTheCurveOfASoundHost) {
    ASSERT_LT(triedPart_, sound_.size());
    expectGoesOn(sound_);
    const auto first = sound_.begin() + static_cast<std::ptrdiff_t>(triedPart_);
    EXPECT_TRUE(std::any_of(first, sound_.end(), [](const std::string& line) {
        return line.find("sound orbit") != std::string::npos;
    }));
}

TEST_P(FaultySession, RaisesTheFailureOfEachHostCall) {
    const auto places = placesOf(sound_, triedPart_, [](const LogLine&) { return true; });
    for (std::size_t n = 0; n < places.size(); ++n) {
        const LogLine call(sound_[places[n]]);
        if (!call.failed.empty()) continue;  // The session's own fault comes first.
        ++failures_;
        SCOPED_TRACE(sound_[places[n]]);
        const LogLines log = session_.play([n](MemoryHost& host) {
            host.gate.fail({{}, static_cast<std::int64_t>(n) + 1, Host::Status::Unspecified, {}});
        });
        ASSERT_GT(log.size(), places[n]);
        EXPECT_EQ(LogLine(log[places[n]]).call, call.call);
        EXPECT_EQ(LogLine(log[places[n]]).failed, "0x80004005");
        const std::size_t end = endOfMessage(log, places[n]);
        EXPECT_EQ(LogLine(log[end]).error, failureText(interfaceOfCall(call.call)));
        EXPECT_EQ(end, places[n] + 1) << "called after the failure: " << log[places[n] + 1];
        expectGoesOn(log);
    }
}

TEST_P(FaultySession, RaisesAnInvalidPointerForEachNullObject) {
    const auto places = placesOf(sound_, triedPart_, [](const LogLine& line) {
        return line.asksForObject && line.failed.empty();
    });
    for (std::size_t n = 0; n < places.size(); ++n) {
        if (!LogLine(sound_[places[n]]).object) continue;  // Null as it is.
        ++nulls_;
        SCOPED_TRACE(sound_[places[n]]);
        const LogLines log = session_.play(
            [n](MemoryHost& host) { host.gate.nullObject(static_cast<std::int64_t>(n) + 1); });
        ASSERT_GT(log.size(), places[n]);
        const std::string call = LogLine(sound_[places[n]]).call;
        EXPECT_EQ(LogLine(log[places[n]]).call, call);
        const std::string error = LogLine(log[endOfMessage(log, places[n])]).error;
        EXPECT_TRUE(error == NullText || (error.empty() && mayBeNull(call))) << error;
        expectGoesOn(log);
    }
}

std::string testName(const testing::TestParamInfo<std::filesystem::path>& info) {
    std::string name = info.param.lexically_relative(SessionFolder).replace_extension().string();
    std::replace_if(
        name.begin(), name.end(), [](char c) { return std::isalnum(c) == 0; }, '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(All, FaultySession, testing::ValuesIn(sessionFiles()), testName);

}  // namespace
}  // namespace Rotavue::HostKit
