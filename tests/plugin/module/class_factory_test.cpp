#include "plugin/module/class_factory.h"

#include "plugin/framework/visual_control.h"
#include "tests/plugin/framework/doubles/clipboard_steps.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace Meridax::VisualControls::Rotavue {
namespace {

using Host::Ref;

class ClassFactoryTest : public testing::Test {
protected:
    std::uint32_t create(const Host::Guid& interfaceId, Host::IHostObject* outer = nullptr) {
        return static_cast<std::uint32_t>(factory.createInstance(outer, interfaceId, &object));
    }

    Api::ControlMaker makeControl = [] { return std::make_unique<Api::VisualControl>(); };
    Api::ClipboardSteps clipboard;
    Api::LiveObjects liveObjects;
    Ref<Api::IHostClipboard> supplied;
    ClassFactory factory{{makeControl, clipboard, liveObjects},
                         [this](Ref<Api::IHostClipboard> given) { supplied = std::move(given); }};
    void* object = this;
};

TEST_F(ClassFactoryTest, MakesAControlWithTheInterfaceThatIsWanted) {
    EXPECT_EQ(create(Api::IMeridaxPlugin::Identifier), 0U);
    const auto plugin = Ref<Api::IMeridaxPlugin>::adopt(static_cast<Api::IMeridaxPlugin*>(object));
    EXPECT_EQ(plugin->message(7, nullptr, nullptr), 1);
    EXPECT_TRUE(liveObjects.any());
}

TEST_F(ClassFactoryTest, MadeObjectEndsWithTheReferenceThatWasGiven) {
    create(Host::IHostObject::Identifier);
    static_cast<Host::IHostObject*>(object)->release();
    EXPECT_FALSE(liveObjects.any());
}

TEST_F(ClassFactoryTest, UnknownInterfaceGivesNoObjectAndLeavesNone) {
    EXPECT_EQ(create(Api::IClassFactory::Identifier), 0x80004002U);
    EXPECT_EQ(object, nullptr);
    EXPECT_FALSE(liveObjects.any());
}

TEST_F(ClassFactoryTest, NullOutPointerIsRefused) {
    EXPECT_EQ(factory.createInstance(nullptr, Api::IMeridaxPlugin::Identifier, nullptr),
              static_cast<std::int32_t>(0x80004003U));
    EXPECT_FALSE(liveObjects.any());
}

TEST_F(ClassFactoryTest, AnyErrorWhileMakingIsOutOfMemory) {
    makeControl = []() -> std::unique_ptr<Api::VisualControl> { throw std::runtime_error("no"); };
    EXPECT_EQ(create(Api::IMeridaxPlugin::Identifier), 0x8007000EU);
    makeControl = []() -> std::unique_ptr<Api::VisualControl> {
        throw Host::HostError(Host::Status::Unspecified);
    };
    EXPECT_EQ(create(Api::IMeridaxPlugin::Identifier), 0x8007000EU);
    makeControl = []() -> std::unique_ptr<Api::VisualControl> { throw 1; };
    EXPECT_EQ(create(Api::IMeridaxPlugin::Identifier), 0x8007000EU);
    EXPECT_EQ(object, nullptr);
    EXPECT_FALSE(liveObjects.any());
}

/// An outer object that counts what a bridge does to it.
class Outer final : public Host::IHostObject {
public:
    void retain() noexcept override { ++count; }
    void release() noexcept override { --count; }
    void* offer(const Host::Guid& /*interfaceId*/) override { return nullptr; }

    int count = 0;
};

TEST_F(ClassFactoryTest, OuterObjectGetsTheIdentityOfItsPart) {
    Outer outer;
    ASSERT_EQ(create(Host::IHostObject::Identifier, &outer), 0U);
    const auto inner = Ref<Host::IHostObject>::adopt(static_cast<Host::IHostObject*>(object));
    const auto plugin = inner.offered<Api::IMeridaxPlugin>();
    EXPECT_EQ(outer.count, 1);
}

TEST_F(ClassFactoryTest, OuterObjectMustAskForTheIdentity) {
    Outer outer;
    EXPECT_EQ(create(Api::IMeridaxPlugin::Identifier, &outer), 0x80040110U);
    EXPECT_EQ(object, nullptr);
}

TEST_F(ClassFactoryTest, HeldFactoryCountsAsALivingObject) {
    {
        const auto held = Ref<Api::IClassFactory>::share(&factory).offered<Api::IModuleServices>();
        EXPECT_TRUE(liveObjects.any());
    }
    EXPECT_FALSE(liveObjects.any());
}

TEST_F(ClassFactoryTest, OffersItsInterfacesAndNoOther) {
    const auto held = Ref<Api::IClassFactory>::share(&factory);
    EXPECT_EQ(held.offered<Api::IClassFactory>(), held);
    EXPECT_EQ(held.offered<Host::IHostObject>(),
              held.offered<Api::IModuleServices>().offered<Host::IHostObject>());
    EXPECT_FALSE(held.offered<Api::IMeridaxPlugin>());
}

TEST_F(ClassFactoryTest, LocksAddUp) {
    factory.lockServer(true);
    factory.lockServer(true);
    factory.lockServer(false);
    EXPECT_TRUE(factory.isLocked());
    factory.lockServer(false);
    EXPECT_FALSE(factory.isLocked());
}

TEST_F(ClassFactoryTest, LettingGoOfNoLockIsForgotten) {
    factory.lockServer(false);
    factory.lockServer(true);
    EXPECT_TRUE(factory.isLocked());
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
