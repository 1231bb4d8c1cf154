#include "plugin/framework/host/ref.h"

#include "tests/plugin/framework/doubles/probe_object.h"

#include <gtest/gtest.h>

namespace Meridax::Host {
namespace {

using Log = std::vector<std::string>;

class RefTest : public testing::Test {
protected:
    Ref<IHostObject> share(ProbeObject& object) { return Ref<IHostObject>::share(&object); }

    Log log;
    ProbeObject one{"one", log};
    ProbeObject two{"two", log};
};

TEST_F(RefTest, AdoptTakesOverAReferenceThatIsThere) {
    one.count = 1;
    { const auto reference = Ref<IHostObject>::adopt(&one); }
    EXPECT_EQ(log, Log{"release one"});
    EXPECT_EQ(one.count, 0);
}

TEST_F(RefTest, ShareAddsAReferenceAndTheEndGivesItBack) {
    { const auto reference = share(one); }
    EXPECT_EQ(log, (Log{"retain one", "release one"}));
}

TEST_F(RefTest, CopyAddsAReference) {
    const auto reference = share(one);
    const auto copy = reference;  // NOLINT(performance-unnecessary-copy-initialization)
    EXPECT_EQ(one.count, 2);
    EXPECT_EQ(copy, reference);
}

TEST_F(RefTest, MoveLeavesTheCountAlone) {
    auto reference = share(one);
    const auto moved = std::move(reference);
    EXPECT_EQ(one.count, 1);
    EXPECT_EQ(moved.get(), &one);
}

TEST_F(RefTest, AssignmentRetainsTheNewObjectBeforeItReleasesTheOldOne) {
    auto stored = share(one);
    const auto fresh = share(two);
    log.clear();
    stored = fresh;
    EXPECT_EQ(log, (Log{"retain two", "release one"}));
}

TEST_F(RefTest, StoringTheSameObjectAgainDoesNothing) {
    auto stored = share(one);
    const auto same = stored;  // NOLINT(performance-unnecessary-copy-initialization)
    log.clear();
    stored = same;
    EXPECT_EQ(log, Log{});
}

TEST_F(RefTest, MovingTheSameObjectInGivesTheSecondReferenceBack) {
    auto stored = share(one);
    stored = share(one);
    EXPECT_EQ(one.count, 1);
}

TEST_F(RefTest, AssignedNullReleases) {
    auto stored = share(one);
    stored = nullptr;
    EXPECT_EQ(one.count, 0);
    EXPECT_FALSE(stored);
}

TEST_F(RefTest, DetachHandsTheReferenceOut) {
    auto reference = share(one);
    EXPECT_EQ(reference.detach(), &one);
    EXPECT_FALSE(reference);
    EXPECT_EQ(one.count, 1);
}

TEST_F(RefTest, OfferedIsAReferenceOfItsOwn) {
    const auto reference = share(one);
    const auto offered = reference.offered<IHostObject>();
    EXPECT_EQ(offered.get(), &one);
    EXPECT_EQ(one.count, 2);
}

/// An interface that no object of these tests offers.
class IForeign : public IHostObject {
public:
    static constexpr Guid Identifier = guid("{11111111-2222-3333-4444-555555555555}");

protected:
    ~IForeign() = default;
};

TEST_F(RefTest, RefusedInterfaceIsAnEmptyReference) {
    const auto reference = share(one);
    EXPECT_FALSE(reference.offered<IForeign>());
    EXPECT_EQ(one.count, 1);
}

TEST_F(RefTest, EmptyReferenceOffersNothing) {
    EXPECT_FALSE(Ref<IHostObject>().offered<IForeign>());
}

TEST_F(RefTest, CallThroughAnEmptyReferenceRaisesInvalidPointer) {
    const Ref<IHostObject> empty;
    try {
        empty->retain();
        ADD_FAILURE() << "went on";
    } catch (const HostError& error) {
        EXPECT_EQ(error.status, 0x80004003U);
        EXPECT_EQ(error.interfaceId, Guid{});
    }
}

}  // namespace
}  // namespace Meridax::Host
