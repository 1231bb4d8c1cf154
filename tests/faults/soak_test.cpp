#include "host_kit/loader/module.h"
#include "host_kit/memory/memory_host.h"
#include "plugin/framework/message_codes.h"
#include "tests/sessions/session_files.h"
#include "tests/support/memory_meter.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <random>

namespace Rotavue::HostKit {
namespace {

namespace MemoryMeter = Meridax::Tests::MemoryMeter;
using Meridax::VisualControls::Api::MessageCode;

/// A million as delivered; the sanitizers look at each message closely and take as long for fewer.
#ifdef __SANITIZE_ADDRESS__
constexpr std::int64_t UsualMessages = 100'000;
#else
constexpr std::int64_t UsualMessages = 1'000'000;
#endif
constexpr std::int64_t Stretch = 1000;
constexpr std::int64_t PlannedAtOnce = 16;
constexpr std::int32_t GroupSlot = 1;

/// As many as `tools/soak` asks for.
std::int64_t messageCount() {
    const char* asked = std::getenv("ROTAVUE_SOAK_MESSAGES");
    return asked == nullptr ? UsualMessages : std::strtoll(asked, nullptr, 10);
}

/// The memory that the system holds for this program.
std::int64_t residentKilobytes() {
    std::ifstream pages("/proc/self/statm");
    std::int64_t all = 0;
    std::int64_t resident = 0;
    pages >> all >> resident;
    return resident * ::sysconf(_SC_PAGESIZE) / 1024;
}

/// Enters 12.5 in every editor, and counts how often the control has changed a setting by itself.
class SoakListener : public HostListener {
public:
    void setupRefreshed() override { ++refreshes; }

    EditAnswer editText(std::int32_t /*x*/, std::int32_t /*y*/,
                        const std::wstring& /*text*/) override {
        return {true, L"12.5"};
    }

    std::int64_t refreshes = 0;
};

/// A host whose channels, settings and pointer change between the messages that it sends.
class Soak : public testing::Test {
protected:
    Soak() {
        describeChannel("orbit", L"Raw", 64, 1);
        describeChannel("tacho", L"Raw", 64, 1);
        describeChannel("average", L"Average", 1, 24).array = true;
        describeChannel("harmonic", L"Harmonic", 1, 4).array = true;
        describeChannel("reference", L"Reference", 1, 16).array = true;
        describeChannel("sub", L"SubSync", 64, 1);
        describeChannel("center", L"", 40, 2).array = true;
        host_.description.host.sampleRate = 1000.0;
        host_.description.host.currentPosition = {2, 0};
        host_.description.assigned.slots = {{GroupSlot}};
        host_.listen(&listener_);
        attach();
        send(MessageCode::BuildProperties, {host_.panel()});
        for (std::int64_t i = 0; i < PlannedAtOnce; ++i)
            host_.gate.fail({{}, 1, Host::Status::Unspecified, {}});
        settle();
    }

    void attach() { send(MessageCode::Attach, {host_.app(), host_.control()}); }

    ChannelDescription& describeChannel(const std::string& id, const wchar_t* type,
                                        std::int32_t samples, std::int32_t elements) {
        ChannelDescription& channel = host_.description.channels[id];
        channel.name.assign(id.begin(), id.end());
        channel.properties[L"OrbitType"] = type;
        channel.sampleCount = samples;
        channel.arraySize = elements;
        channel.sampleRate = 1000.0;
        channel.axes = {{0.0, 15.0}};
        for (std::int32_t component = 0; component < 6; ++component) {
            for (std::int32_t i = 0; i < samples * elements; ++i)
                channel.values[component].push_back((i * 37 + component * 11) % 101 - 50);
        }
        return channel;
    }

    void send(MessageCode code, const MessageList& list) {
        try {
            control_->message(static_cast<std::uint32_t>(code), &list, &answer_);
        } catch (const Host::HostError&) {
            ++errors_;
        }
    }

    std::int32_t below(std::int32_t end) {
        return static_cast<std::int32_t>(random_() % static_cast<std::uint32_t>(end));
    }

    void draw(std::int32_t width, std::int32_t height) {
        send(MessageCode::Draw, {host_.canvas(), 0, 0, width, height, 0, 0, below(3)});
    }

    void changeChannels() {
        static const std::vector<std::string> Ids{"average", "harmonic", "reference", "sub",
                                                  "center"};
        auto& assigned = host_.description.assigned;
        assigned.channels.clear();
        for (const std::string& id : Ids)
            if (below(2) == 0) assigned.channels.emplace_back(id);
        assigned.groups.clear();
        if (below(2) == 0) assigned.groups.push_back({{"orbit", "tacho"}, {}});
        if (below(4) == 0) assigned.groups.push_back({{"orbit"}, {}});
        host_.description.host.acquiring = below(2) == 0;
        host_.description.host.currentPosition = {below(3), below(1000)};
        send(MessageCode::ChannelsChanged, {0});
    }

    void changeSetup() {
        host_.description.setup = {{L"graphType", std::to_wstring(below(2))},
                                   {L"historyType", std::to_wstring(below(2))},
                                   {L"useManualMagnitudeLimits", below(2) == 0 ? L"True" : L""},
                                   {L"tickCount", std::to_wstring(below(21))},
                                   {L"displayTime", std::to_wstring(below(200))}};
        send(MessageCode::Setup, {host_.document(), host_.node(), 0});
    }

    void point() {
        const std::int32_t x = below(420) - 10;
        const std::int32_t y = below(320) - 10;
        if (below(8) == 0) send(MessageCode::PointerEntered, {});
        send(MessageCode::PointerMoved, {0, x, y});
        if (below(32) == 0) send(MessageCode::PointerLeft, {});
        if (below(16) == 0) send(MessageCode::WheelForward, {0, x, y});
        if (below(16) == 0) send(MessageCode::WheelBackward, {0, x, y});
        if (below(4) == 0) send(MessageCode::ButtonPressed, {0, 0, x, y});
        if (below(4) == 0) send(MessageCode::ButtonReleased, {0, 0, x, y});
    }

    void save() {
        send(MessageCode::Setup, {host_.document(), host_.node(), 0xFFFF});
        const auto limit = host_.description.setup.find(L"maxXValue");
        if (limit != host_.description.setup.end() && limit->second.starts_with(L"12.5")) ++edits_;
    }

    void usePanel() {
        static const std::vector<std::wstring> Names{L"TickCount", L"GraphType", L"HistoryTime"};
        const std::wstring& name = Names[static_cast<std::size_t>(below(3))];
        send(MessageCode::FillProperties, {host_.panel()});
        host_.setWidget(name, std::int64_t{below(21)});
        send(MessageCode::ReadProperty, {name, host_.widget(name)});
        send(MessageCode::PropertyEvent, {name, host_.widget(name), 0});
        if (below(16) == 0) send(MessageCode::BuildProperties, {host_.panel()});
    }

    void ask() {
        send(MessageCode::InterfaceQuery, {});
        send(MessageCode::RefusedQuery, {});
        send(MessageCode::DataWindow, {});
        send(MessageCode::CanCopy, {});
        send(MessageCode::ChannelCheck, {host_.channel("orbit")});
        if (!host_.description.assigned.groups.empty())
            send(MessageCode::GroupCheck, {host_.group(0)});
        send(MessageCode::GroupChanged, {host_.group(0)});
        if (below(16) == 0) send(MessageCode::Close, {});
    }

    /// A frame with a call that fails; one that is not reached waits for the next frame.
    void drawAndFail() {
        host_.gate.fail({{}, 1 + below(60), Host::Status::Unspecified, {}});
        draw(400, 300);
    }

    void step() {
        switch (below(20)) {
            case 0:
                return changeChannels();
            case 1:
                return changeSetup();
            case 2:
                return save();
            case 3:
                return send(MessageCode::Copy, {});
            case 4:
                return ask();
            case 5:
                return usePanel();
            case 6:
                return below(4) == 0 ? attach() : drawAndFail();
            case 7:
            case 8:
                return draw(400 - below(200), 300 - below(200));
            default:
                return point();
        }
    }

    /// Draws until no failure waits any more.
    void settle() {
        for (std::int64_t before = -1; before != errors_;) {
            before = errors_;
            attach();
            draw(400, 300);
        }
    }

    struct Living {
        std::int64_t allocations = 0;
        std::int64_t bytes = 0;
        friend std::ostream& operator<<(std::ostream& out, const Living& living) {
            return out << living.allocations << " allocations of " << living.bytes << " bytes";
        }
    };

    /// The heap gives some pieces a few bytes more than others of the same size; a list that grew
    /// by one number in a thousand steps would take more.
    static void expectFlat(const Living& now, const Living& first) {
        EXPECT_EQ(now.allocations, first.allocations);
        EXPECT_LE(std::abs(now.bytes - first.bytes), 4096);
    }

    /// What is taken of the heap in a state that is always the same.
    Living livingAtRest() {
        host_.description.assigned = {{}, {}, {{GroupSlot}}};
        host_.description.setup.clear();
        settle();
        send(MessageCode::ChannelsChanged, {0});
        send(MessageCode::PointerLeft, {});
        send(MessageCode::Setup, {host_.document(), host_.node(), 0});
        draw(400, 300);
        return {MemoryMeter::living(), MemoryMeter::livingBytes()};
    }

    std::mt19937 random_{8};
    SoakListener listener_;
    MemoryHost host_;
    MessageAnswer answer_;
    std::int64_t errors_ = 0;
    std::int64_t edits_ = 0;  ///< savings of a limit that was edited
    Host::Ref<Meridax::VisualControls::Api::IMeridaxPlugin> control_ = builtModule()->makeControl();
};

TEST_F(Soak, MemoryIsFlatFromTheThousandthMessageToTheLast) {
    const std::int64_t messages = messageCount();
    ASSERT_GT(messages, Stretch);
    Living living;
    std::int64_t resident = 0;
    for (std::int64_t sent = 0; sent < messages; ++sent) {
        if (sent == Stretch) {
            living = livingAtRest();
            resident = residentKilobytes();
        }
        if (sent > Stretch && sent % (10 * Stretch) == 0) {
            expectFlat(livingAtRest(), living);
            ASSERT_FALSE(HasFailure()) << "after " << sent << " steps";
        }
        step();
    }
    expectFlat(livingAtRest(), living);
    std::cout << living << " and " << resident << " kB after " << Stretch << " steps, "
              << livingAtRest() << " and " << residentKilobytes() << " kB after " << messages
              << ", " << errors_ << " errors, " << edits_ << " savings of an edited limit, "
              << listener_.refreshes << " settings changed by the control\n";
    EXPECT_GT(errors_, messages / 100) << "calls fail";
    EXPECT_GT(edits_, 0);
    EXPECT_GT(listener_.refreshes, 0) << "a group without tacho has moved the history to time";
    EXPECT_LT(errors_, messages / 10) << "most messages do something";
    control_ = nullptr;
    EXPECT_EQ(host_.references(), 0);
}

}  // namespace
}  // namespace Rotavue::HostKit
