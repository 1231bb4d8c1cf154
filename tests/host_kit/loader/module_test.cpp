#include "host_kit/loader/module.h"

#include "host_kit/memory/memory_clipboard.h"
#include "host_kit/memory/memory_host.h"
#include "plugin/setup_document/xml_exception.h"

#include <gtest/gtest.h>

#include <dlfcn.h>

#include <stdexcept>

namespace Rotavue::HostKit {
namespace {

const std::filesystem::path Scripted = SCRIPTED_MODULE;

bool isLoaded(const std::filesystem::path& file) {
    void* handle = dlopen(file.c_str(), RTLD_NOW | RTLD_NOLOAD);
    if (handle != nullptr) dlclose(handle);
    return handle != nullptr;
}

std::string refusal(const std::filesystem::path& file) {
    try {
        const Module module(file);
        return "loaded";
    } catch (const LoadError& error) {
        return error.what();
    }
}

TEST(Module, IsUnloadedOnceNothingIsHeld) {
    {
        Module module(Scripted);
        const auto control = module.makeControl();
        EXPECT_EQ(control->message(205, nullptr, nullptr), 1);
        EXPECT_TRUE(isLoaded(Scripted));
    }
    EXPECT_FALSE(isLoaded(Scripted));
}

TEST(Module, StaysWhileAnObjectOfItIsHeld) {
    Host::Ref<Api::IMeridaxPlugin> control;
    {
        Module module(Scripted);
        control = module.makeControl();
    }
    EXPECT_TRUE(isLoaded(Scripted));
    EXPECT_EQ(control->message(205, nullptr, nullptr), 1);
    control = nullptr;
}

TEST(Module, CarriesArgumentsAndResultsAcross) {
    MemoryHost host;
    host.record();
    Module module(Scripted);
    const auto control = module.makeControl();
    const MessageList list(std::vector<MessageValue>{host.app(), 0x1FFFF}, 2);
    EXPECT_EQ(control->message(201, &list, nullptr), 0);
    EXPECT_EQ(host.calls(),
              std::vector<std::string>{R"(IHostApp.showMessage("131071 65535 255 '' of 2..3"))"});
    MessageAnswer answer;
    EXPECT_EQ(control->message(204, nullptr, &answer), 0);
    EXPECT_EQ(answer.value(), MessageAnswer::Value(MessageAnswer::FourIntegers{0, 0, 0, 9}));
}

TEST(Module, LetsExceptionsThrough) {
    Module module(Scripted);
    const auto control = module.makeControl();
    EXPECT_THROW(control->message(102, nullptr, nullptr), std::out_of_range);
    EXPECT_THROW(control->message(104, nullptr, nullptr),
                 Meridax::Utils::Serialization::XmlException);
    EXPECT_THROW(control->message(105, nullptr, nullptr), Host::HostError);
}

TEST(Module, HandsTheFailureOfAHostCallBackToTheHost) {
    MemoryHost host;
    host.fail(operation("IHostApp.getData"));
    Module module(Scripted);
    const auto control = module.makeControl();
    const MessageList list{host.app()};
    EXPECT_THROW(control->message(206, &list, nullptr), Host::HostError);
    EXPECT_EQ(host.references(), 1);  // the list's own
}

TEST(Module, PutsCopiedTextOnTheClipboardThatItWasGiven) {
    MemoryClipboard clipboard;
    Module module(Scripted);
    module.supplyClipboard(&clipboard);
    module.makeControl()->message(202, std::make_unique<MessageList>(MessageList{L"copied"}).get(),
                                  nullptr);
    module.supplyClipboard(nullptr);
    EXPECT_EQ(clipboard.takeText(), L"copied");
    EXPECT_EQ(clipboard.text(), std::nullopt);
}

TEST(Module, SaysInOneLineWhyItCannotBeLoaded) {
    EXPECT_EQ(refusal("/nowhere/Rotavue64.vc"),
              "the module cannot be loaded: /nowhere/Rotavue64.vc: cannot open shared object file: "
              "No such file or directory");
    EXPECT_EQ(refusal(REFUSING_MODULE), "the module gives no class factory (status 0x80040111)");
    const std::string noModule = refusal("libm.so.6");
    EXPECT_NE(noModule.find("cannot open shared object file"), std::string::npos)
        << "a bare name must be a file here, and no library of the system: " << noModule;
}

TEST(Module, RefusesALibraryWithoutTheEntryPoints) {
    EXPECT_EQ(
        refusal(PLAIN_LIBRARY),
        std::string(PLAIN_LIBRARY) + " is no module of a control: it exports no DllCanUnloadNow");
}

}  // namespace
}  // namespace Rotavue::HostKit
