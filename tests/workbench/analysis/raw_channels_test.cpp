#include "workbench/analysis/raw_channels.h"
#include "workbench/analysis/orbit_channels.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "host_kit/memory/memory_host.h"
#include "plugin/framework/host/data/host_properties.h"
#include "plugin/framework/host/data/host_slots.h"

namespace Rotavue::Workbench {
namespace {

namespace Host = Meridax::Host;

constexpr double Gap = std::numeric_limits<double>::quiet_NaN();

// Five samples at 10 Hz: X is 1 to 5, Y ten times as much, the angle falls back at the fourth.
Recording fiveSamples() {
    Recording recording;
    recording.sampleRate = 10.0;
    recording.x = {1, 2, 3, 4, 5};
    recording.y = {10, 20, 30, 40, 50};
    recording.angle = {90, 180, 270, 0, 90};
    recording.machine.unit = "um";
    recording.machine.xAngle = 45.0;
    recording.machine.yAngle = 315.0;
    recording.machine.rotation = Rotation::CounterClockwise;
    return recording;
}

void offer(HostKit::MemoryHost& host, Recording recording = fiveSamples()) {
    assignRawOrbit(host.description, rawOrbit(std::move(recording), {"Shaft", 0x2D5DF1}));
}

TEST(RawChannels, AreAGroupOfAnOrbitAndATacho) {
    HostKit::MemoryHost host;
    offer(host);
    const auto group = host.control()->getGroups()->getItem(0);
    const auto list = group.offered<Host::IHostChannelList>();
    ASSERT_EQ(list->getCount(), 2);
    EXPECT_EQ(list->getItem(0)->getName(), L"Shaft");
    EXPECT_EQ(list->getItem(0)->getUnit(), L"um");
    EXPECT_EQ(list->getItem(0)->getColor(), 0x2D5DF1U);
    EXPECT_EQ(list->getItem(1)->getUnit(), L"deg");
    EXPECT_EQ(group.offered<Host::IHostGroupInfo>()->getProperties()->getValue(L"OrbitType"),
              L"Raw");
    EXPECT_EQ(host.control()->getSlots()->getSlot(0)->getKind(), 1);
}

TEST(RawChannels, HoldTheProbesAsComponents4And5AndTheAngleAsComponent0) {
    HostKit::MemoryHost host;
    offer(host);
    EXPECT_EQ(host.channel("orbit1")->getValue(2, 4), 3.0);
    EXPECT_EQ(host.channel("orbit1")->getValue(2, 5), 30.0);
    EXPECT_EQ(host.channel("orbit1")->getValue(2, 0), 0.0);
    EXPECT_EQ(host.channel("tacho1")->getValue(2, 0), 270.0);
}

TEST(RawChannels, SayWhatTheControlReadsOfTheBearing) {
    HostKit::MemoryHost host;
    offer(host);
    const auto properties = host.channel("orbit1")->getProperties();
    EXPECT_EQ(properties->getValue(L"Orbit X Angle"), L"45");
    EXPECT_EQ(properties->getValue(L"Orbit Y Angle"), L"315");
    EXPECT_EQ(properties->getValue(L"Orbit Rotation Direction"), L"CCW");
    EXPECT_EQ(properties->getValue(L"OrbitType"), L"Raw");
}

TEST(RawChannels, WithoutAKeyphasorThereIsNoTacho) {
    Recording recording = fiveSamples();
    recording.angle.edit().clear();
    HostKit::MemoryHost host;
    offer(host, std::move(recording));
    const auto group = host.control()->getGroups()->getItem(0);
    EXPECT_EQ(group.offered<Host::IHostChannelList>()->getCount(), 1);
}

TEST(RawChannels, AGapHoldsThePairBeforeIt) {
    Recording recording = fiveSamples();
    recording.x.edit()[2] = Gap;
    HostKit::MemoryHost host;
    offer(host, std::move(recording));
    EXPECT_EQ(host.channel("orbit1")->getValue(2, 4), 2.0);
    EXPECT_EQ(host.channel("orbit1")->getValue(2, 5), 20.0);
}

TEST(RawChannels, AreTheSamplesOfTheRecordingForAsLongAsTheyLast) {
    HostKit::MemoryHost host;
    std::weak_ptr<const Recording> kept;
    {
        const auto recording = std::make_shared<const Recording>(fiveSamples());
        kept = recording;
        assignRawOrbit(host.description, rawOrbit(recording, {"Shaft", 0}));
    }
    EXPECT_FALSE(kept.expired());
    EXPECT_EQ(host.channel("orbit1")->getValue(4, 5), 50.0);
    host.description.channels.clear();
    EXPECT_TRUE(kept.expired());
}

TEST(RawChannels, GapsAreFilledInACopyAndStayInTheRecording) {
    Recording recording = fiveSamples();
    recording.y.edit()[0] = Gap;
    const auto kept = std::make_shared<const Recording>(std::move(recording));
    HostKit::MemoryHost host;
    assignRawOrbit(host.description, rawOrbit(kept, {"Shaft", 0}));
    EXPECT_EQ(host.channel("orbit1")->getValue(0, 5), 20.0);
    EXPECT_TRUE(std::isnan(kept->y[0]));
}

TEST(RawChannels, ANameThatIsNoUtf8IsStillAName) {
    HostKit::MemoryHost host;
    assignRawOrbit(host.description, rawOrbit(fiveSamples(), {"\xFF"
                                                              "b",
                                                              0}));
    EXPECT_EQ(host.channel("orbit1")->getName(), L"?b");
}

TEST(RawChannels, SeveralAreSeveralGroups) {
    HostKit::MemoryHost host;
    offer(host);
    offer(host);
    EXPECT_EQ(host.control()->getGroups()->getCount(), 2);
    EXPECT_EQ(host.channel("orbit2")->getValue(4, 4), 5.0);
}

TEST(StoredChannels, AreGivenByTimeAgainstTheCursor) {
    HostKit::MemoryHost host;
    offer(host);
    host.description.host.blockSize = 2;
    showStored(host.description, 10.0, 3);
    EXPECT_FALSE(host.app()->isAcquiring());
    // Sample 3 is block 1, offset 1, at 0.3 s; a tenth of a second before it is sample 2.
    EXPECT_EQ(host.data()->getCurrentPosition(), (Host::DataPosition{1, 1}));
    std::int32_t cursor = 0;
    EXPECT_EQ(host.channel("orbit1")->getValueAtTime(0.3, cursor, 0, 0, 4), 4.0);
    EXPECT_EQ(host.channel("orbit1")->getValueAtTime(0.3 - 0.1, cursor, 0, 0, 4), 3.0);
    EXPECT_EQ(host.channel("orbit1")->getSampleCount(), 5);
}

TEST(AcquiredChannels, HoldNothingNewerThanThePosition) {
    HostKit::MemoryHost host;
    offer(host);
    showAcquired(host.description, 10.0, 3);
    EXPECT_TRUE(host.app()->isAcquiring());
    const auto channel = host.channel("orbit1");
    // Four samples in a ring of five: the next goes to place 4, the newest is at place 3.
    EXPECT_EQ(channel->getSampleCount(), 4);
    EXPECT_EQ(channel->getWritePosition(), 4);
    EXPECT_EQ(channel->getSampleCounter(), host.data()->getAcquiredSampleCount());
}

TEST(AcquiredChannels, AFullRingGoesOnAtItsBegin) {
    HostKit::MemoryHost host;
    offer(host);
    showAcquired(host.description, 10.0, 4);
    EXPECT_EQ(host.channel("orbit1")->getWritePosition(), 0);
    EXPECT_EQ(host.channel("orbit1")->getSampleCount(), 5);
}

TEST(AxisDecimals, ComeFromThePlainChannelsThatAreThere) {
    HostKit::MemoryHost host;
    offer(host);
    assignDerived(host.description, {});
    assignDerived(host.description, {});
    setAxisDecimals(host.description, 3);
    const auto channels = host.control()->getChannels();
    ASSERT_EQ(channels->getCount(), 2);
    EXPECT_EQ(channels->getItem(0)->getDecimals(), 3);
    EXPECT_EQ(channels->getItem(1)->getDecimals(), 3);
}

TEST(AxisDecimals, ComeFromAPlainChannelOfTheSameBearing) {
    HostKit::MemoryHost host;
    offer(host);
    setAxisDecimals(host.description, 2);
    const auto digits = host.control()->getChannels()->getItem(0);
    EXPECT_EQ(digits->getDecimals(), 2);
    EXPECT_EQ(digits->getProperties()->getValue(L"OrbitType"), L"Raw");
    EXPECT_EQ(digits->getProperties()->getValue(L"Orbit X Angle"), L"45");
}

}  // namespace
}  // namespace Rotavue::Workbench
