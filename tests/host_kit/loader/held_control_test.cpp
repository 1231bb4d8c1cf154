#include "host_kit/loader/module.h"
#include "host_kit/memory/memory_clipboard.h"
#include "host_kit/memory/memory_host.h"
#include "plugin/module/windows/platform_headers.h"

#include <gtest/gtest.h>

namespace Rotavue::HostKit {
namespace {

const std::filesystem::path BuiltModule = ROTAVUE_MODULE_FILE;

bool isLoaded() {
    return ::GetModuleHandleW(BuiltModule.filename().c_str()) != nullptr;
}

void attach(Api::IMeridaxPlugin& control, MemoryHost& host) {
    const MessageList list{host.app(), host.control()};
    EXPECT_EQ(control.message(2, &list, nullptr), 0);
}

/// The built module, known to the machine's registry of this prefix for the length of a test.
class Registered {
public:
    Registered() : library_(SharedLibrary::load(BuiltModule)) { call("DllRegisterServer"); }
    Registered(const Registered&) = delete;
    Registered& operator=(const Registered&) = delete;
    ~Registered() { call("DllUnregisterServer"); }

private:
    void call(const char* name) const {
        const auto function = reinterpret_cast<HRESULT(STDAPICALLTYPE*)()>(library_->find(name));
        EXPECT_EQ(function(), S_OK) << name;
    }

    std::unique_ptr<SharedLibrary> library_;
};

TEST(HeldControl, IsNeededToKeepAFileInTheProcess) {
    {
        Module module(BuiltModule);
        module.makeControl();
        EXPECT_TRUE(isLoaded());
    }
    EXPECT_FALSE(isLoaded());
}

TEST(HeldControl, WorksOnWhereTheModuleOfAFileHasEnded) {
    MemoryHost host;
    Host::Ref<Api::IMeridaxPlugin> control = Module(BuiltModule).makeControl();
    EXPECT_TRUE(isLoaded());
    attach(*control, host);
    control = nullptr;
    EXPECT_EQ(host.references(), 0);
}

TEST(HeldControl, WorksOnWhereTheRegisteredModuleHasEnded) {
    const Registered registered;
    MemoryHost host;
    Host::Ref<Api::IMeridaxPlugin> control = Module(ModuleChoice(BuiltModule, true)).makeControl();
    attach(*control, host);
    control = nullptr;
    EXPECT_EQ(host.references(), 0);
}

TEST(HeldControl, KeepsTheClipboardThatItsModuleWasGiven) {
    MemoryClipboard clipboard;
    MemoryHost host;
    Host::Ref<Api::IMeridaxPlugin> control;
    {
        Module module(BuiltModule);
        module.supplyClipboard(&clipboard);
        control = module.makeControl();
    }
    EXPECT_EQ(clipboard.references(), 1);
    attach(*control, host);
    EXPECT_EQ(control->message(31, nullptr, nullptr), 0);
    EXPECT_EQ(clipboard.text(), L"");  // nothing is assigned
    control = nullptr;
    EXPECT_EQ(clipboard.references(), 0);
}

}  // namespace
}  // namespace Rotavue::HostKit
