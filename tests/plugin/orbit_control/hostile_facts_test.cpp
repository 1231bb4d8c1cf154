#include "tests/plugin/orbit_control/attached_plugin.h"

#include <algorithm>
#include <array>
#include <functional>
#include <limits>
#include <map>
#include <optional>

/// Numbers that nobody means: what a host tells of a channel and of itself.
namespace Meridax::VisualControls::Rotavue {
namespace {

using Channel = HostKit::ChannelDescription;
using Facts = HostKit::HostFacts;
using Limits = std::numeric_limits<double>;

constexpr std::array OddNumbers{Limits::quiet_NaN(),
                                Limits::infinity(),
                                -Limits::infinity(),
                                0.0,
                                -1.0,
                                Limits::denorm_min(),
                                1e308};
constexpr std::array OddIntegers{Smallest, -1, 0, Largest};

/// The error that a divisor of 0 has.
constexpr std::uint32_t InvalidArgument = 0x80070057;

/// Makes one fact of a channel hostile. Each has its numbers from one of the two lists.
struct ChannelFact {
    const char* name;
    std::function<void(Channel&, double)> setNumber;
    std::function<void(Channel&, std::int32_t)> setInteger;
};

void setValues(Channel& channel, double value) {
    for (const std::int32_t component : {0, 4, 5})
        channel.values[component].assign(8, value);
}

/// As long as the host says where something else ends the curve. An array is read to its end, and a
/// harmonic one has 360 points for two of its elements: what bounds those is tested by itself.
std::int32_t length(const Channel& channel, std::int32_t n) {
    return channel.array ? std::min(n, 500) : n;
}

const std::vector<ChannelFact> ChannelFacts{
    {"sample rate", [](Channel& c, double n) { c.sampleRate = n; }, {}},
    {"scale factor", [](Channel& c, double n) { c.scale.factor = n; }, {}},
    {"scale offset", [](Channel& c, double n) { c.scale.offset = n; }, {}},
    {"values", [](Channel& c, double n) { setValues(c, n); }, {}},
    {"displayed value", [](Channel& c, double n) { c.displayValue = n; }, {}},
    {"axis start",
     [](Channel& c, double n) {
         c.axes = {{{n, 90.0}}};
     },
     {}},
    {"axis step",
     [](Channel& c, double n) {
         c.axes = {{{0.0, n}}};
     },
     {}},
    {"time stamps",
     [](Channel& c, double n) {
         c.timestamps = {n, n, n, n, n};
     },
     {}},
    {"write position", {}, [](Channel& c, std::int32_t n) { c.writePosition = n; }},
    {"sample counter", {}, [](Channel& c, std::int32_t n) { c.sampleCounter = n; }},
    {"buffer size", {}, [](Channel& c, std::int32_t n) { c.bufferSize = n; }},
    {"rate divider", {}, [](Channel& c, std::int32_t n) { c.rateDivider = n; }},
    {"sample count", {}, [](Channel& c, std::int32_t n) { c.sampleCount = length(c, n); }},
    {"array size", {}, [](Channel& c, std::int32_t n) { c.arraySize = length(c, n); }},
    {"decimals", {}, [](Channel& c, std::int32_t n) { c.decimals = n; }},
};

struct Kind {
    const char* name;
    std::vector<const char*> channels;
    bool readsSingleSamples;  ///< and so divides by the rate divider while a measurement runs
};

const std::vector<Kind> Kinds{
    {"raw", {"orbit", "tacho"}, true}, {"average", {"0"}, false},   {"harmonic", {"1"}, false},
    {"shaft centre", {"2"}, true},     {"reference", {"3"}, false}, {"sub-sync", {"4"}, true},
};

/// A measurement that runs or is stored, its samples with time stamps of their own or without.
struct Mode {
    bool acquiring;
    bool asynchronous;
};

class HostileFacts : public AttachedPlugin, public testing::WithParamInterface<Mode> {
protected:
    HostileFacts() {
        host.description.host.acquiring = GetParam().acquiring;
        for (const Kind& kind : Kinds) {
            for (const char* id : kind.channels) {
                channel(id).asynchronous = GetParam().asynchronous;
                channel(id).sampleRate = 1000.0;
                channel(id).timestamps = {0.1, 0.2, 0.3, 0.4, 0.5};
            }
        }
        sound_ = frame();
        soundFacts_ = host.description.host;
        held_ = host.references();
    }

    /// A hover, a frame with its readout, a copy and a request. One that fails has the status that
    /// is expected; nothing is done without end.
    void expectAll(std::optional<std::uint32_t> status, std::optional<std::uint32_t> request) {
        Counter counter;
        host.gate.watch(&counter, HostKit::allGroups());
        expectEnd({}, [&] { moveTo(151, 151); });
        expectEnd(status, [&] { drawFrame(); });
        expectEnd(status, [&] { send(Api::MessageCode::Copy, {}); });
        expectEnd(request, [&] { send(Api::MessageCode::DataWindow, {}); });
        host.gate.watch(nullptr, {});
        EXPECT_LT(counter.calls, 1'000'000)
            << "90,000 points are drawn, copied and given a readout";
    }

    /// With all facts sound again, the frame is what it was. Stored samples with time stamps are
    /// counted from where the frame before has ended: there it is the second frame.
    void expectSoundFrame() {
        if (!GetParam().acquiring && GetParam().asynchronous) drawFrame();
        host.description.canvas = {};
        rest();
        EXPECT_EQ(frame(), sound_);
        EXPECT_EQ(host.references(), held_);
    }

    /// The list of requests is made on first need and then kept.
    void requestOnce() {
        send(Api::MessageCode::DataWindow, {});
        held_ = host.references();
    }

    void tryChannel(const Kind& kind, const ChannelFact& fact, double number,
                    std::int32_t integer) {
        std::map<std::string, Channel> before;
        for (const char* id : kind.channels) {
            before[id] = channel(id);
            if (fact.setNumber) fact.setNumber(channel(id), number);
            if (fact.setInteger) fact.setInteger(channel(id), integer);
        }
        const bool divides = channel(kind.channels.front()).rateDivider == 0 &&
                             kind.readsSingleSamples && GetParam().acquiring &&
                             !GetParam().asynchronous;
        expectAll(divides ? std::optional(InvalidArgument) : std::nullopt, {});
        for (const auto& [id, described] : before)
            channel(id) = described;
    }

    void tryHost(const std::function<void(Facts&)>& spoil) {
        spoil(host.description.host);
        const bool divides = host.description.host.blockSize == 0;
        expectAll({}, divides ? std::optional(InvalidArgument) : std::nullopt);
        host.description.host = soundFacts_;
        expectSoundFrame();
    }

private:
    struct Counter : HostKit::CallWatcher {
        void onReturn(const HostKit::Call& /*call*/) override { ++calls; }

        int calls = 0;
    };

    template <class Operation>
    static void expectEnd(std::optional<std::uint32_t> status, Operation operation) {
        if (status) return expectHostError(*status, operation);
        EXPECT_NO_THROW(operation());
    }

    Lines sound_;
    Facts soundFacts_;
    std::int64_t held_ = 0;
};

TEST_P(HostileFacts, OfAChannelEndEachMessageAndLeaveTheNextFrameWhole) {
    requestOnce();
    for (const Kind& kind : Kinds) {
        for (const ChannelFact& fact : ChannelFacts) {
            const std::size_t count = fact.setNumber ? OddNumbers.size() : OddIntegers.size();
            for (std::size_t i = 0; i < count; ++i) {
                SCOPED_TRACE(testing::Message() << fact.name << ' ' << i << " of " << kind.name);
                tryChannel(kind, fact, OddNumbers[i % OddNumbers.size()],
                           OddIntegers[i % OddIntegers.size()]);
            }
            SCOPED_TRACE(testing::Message() << fact.name << " of " << kind.name);
            expectSoundFrame();
            ASSERT_FALSE(HasFailure());
        }
    }
}

TEST_P(HostileFacts, OfTheHostEndEachMessageAndLeaveTheNextFrameWhole) {
    requestOnce();
    for (const double number : OddNumbers) {
        SCOPED_TRACE(number);
        tryHost([&](Facts& facts) { facts.sampleRate = number; });
    }
    for (const std::int32_t n : OddIntegers) {
        SCOPED_TRACE(n);
        tryHost([&](Facts& facts) { facts.blockSize = n; });
        tryHost([&](Facts& facts) { facts.acquiredSampleCount = n; });
        tryHost([&](Facts& facts) { facts.currentPosition = {n, n}; });
        tryHost([&](Facts& facts) { facts.firstPosition = {n, ~n}; });
        tryHost([&](Facts& facts) { facts.lastPosition = {~n, n}; });
    }
}

INSTANTIATE_TEST_SUITE_P(Modes, HostileFacts,
                         testing::Values(Mode{true, false}, Mode{true, true}, Mode{false, false},
                                         Mode{false, true}));

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
