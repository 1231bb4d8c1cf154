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
        describeChannel("center", L"ShaftCenter", 40, 2).array = true;
        host_.description.host.sampleRate = 1000.0;
        host_.description.host.currentPosition = {2, 0};
        host_.description.assigned.slots = {{0}};
        send(MessageCode::Attach, {host_.app(), host_.control()});
    }

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
        host_.description.host.acquiring = below(2) == 0;
        host_.description.host.currentPosition = {below(3), below(1000)};
        send(MessageCode::ChannelsChanged, {0});
    }

    void changeSetup() {
        host_.description.setup = {{L"graphType", std::to_wstring(below(2))},
                                   {L"historyType", std::to_wstring(below(2))},
                                   {L"tickCount", std::to_wstring(below(21))},
                                   {L"displayTime", std::to_wstring(below(200))}};
        send(MessageCode::Setup, {host_.document(), host_.node(), 0});
    }

    void point() {
        const std::int32_t x = below(420) - 10;
        const std::int32_t y = below(320) - 10;
        send(MessageCode::PointerMoved, {0, x, y});
        if (below(4) == 0) send(MessageCode::ButtonPressed, {0, 0, x, y});
        if (below(4) == 0) send(MessageCode::ButtonReleased, {0, 0, x, y});
    }

    void step() {
        switch (below(16)) {
            case 0:
                return changeChannels();
            case 1:
                return changeSetup();
            case 2:
                return send(MessageCode::Setup, {host_.document(), host_.node(), 0xFFFF});
            case 3:
                return send(MessageCode::Copy, {});
            case 4:
                return send(MessageCode::DataWindow, {});
            case 5:
            case 6:
                return draw(400 - below(200), 300 - below(200));
            default:
                return point();
        }
    }

    /// What is taken of the heap in a state that is always the same.
    std::int64_t livingAtRest() {
        host_.description.assigned = {{}, {}, {{0}}};
        host_.description.setup.clear();
        send(MessageCode::ChannelsChanged, {0});
        send(MessageCode::Setup, {host_.document(), host_.node(), 0});
        draw(400, 300);
        return MemoryMeter::living();
    }

    std::mt19937 random_{8};
    MemoryHost host_;
    MessageAnswer answer_;
    std::int64_t errors_ = 0;
    Host::Ref<Meridax::VisualControls::Api::IMeridaxPlugin> control_ = builtModule()->makeControl();
};

TEST_F(Soak, MemoryIsFlatFromTheThousandthMessageToTheLast) {
    const std::int64_t messages = messageCount();
    ASSERT_GT(messages, Stretch);
    std::int64_t living = 0;
    std::int64_t resident = 0;
    for (std::int64_t sent = 0; sent < messages; ++sent) {
        if (sent == Stretch) {
            living = livingAtRest();
            resident = residentKilobytes();
        }
        if (sent > Stretch && sent % (10 * Stretch) == 0) {
            ASSERT_EQ(livingAtRest(), living) << "after " << sent << " messages";
        }
        step();
    }
    EXPECT_EQ(livingAtRest(), living);
    std::cout << living << " allocations and " << resident << " kB after " << Stretch
              << " messages, " << MemoryMeter::living() << " and " << residentKilobytes()
              << " kB after " << messages << "\n";
    EXPECT_LT(errors_, messages / 10) << "most messages do something";
    control_ = nullptr;
    EXPECT_EQ(host_.references(), 0);
}

}  // namespace
}  // namespace Rotavue::HostKit
