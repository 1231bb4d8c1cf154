#include "plugin/module/windows/windows_module.h"

#include "tests/support/exhausted_memory.h"

#include <gtest/gtest.h>

/// What a module does while it is loaded. A failure must not leave it as an exception: nobody could
/// catch it there.
namespace Meridax::VisualControls::Rotavue {
namespace {

TEST(WindowsModuleLoad, Succeeds) {
    WindowsModule module([] { return std::unique_ptr<Api::VisualControl>(); });
    EXPECT_TRUE(module.load(nullptr));
}

TEST(WindowsModuleLoad, IsRefusedWithoutMemory) {
    WindowsModule module([] { return std::unique_ptr<Api::VisualControl>(); });
    const Meridax::Tests::ExhaustedMemory exhausted(0);
    EXPECT_FALSE(module.load(nullptr));
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
