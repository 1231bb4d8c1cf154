#pragma once

#include "plugin/module/windows/com_class_factory.h"
#include "plugin/module/windows/interfaces/platform_guid.h"
#include "plugin/module/windows/plugin_object.h"
#include "tests/plugin/framework/doubles/clipboard_steps.h"
#include "tests/plugin/framework/doubles/recording_control.h"

#include <gtest/gtest.h>

#include <memory>

namespace Meridax::VisualControls::Rotavue {

using Host::Binary::ComRef;
using Host::Binary::platformGuid;
using Host::Binary::queried;
using MessageObject = Api::Binary::IMeridaxPlugin;

/// A control object of the component model over a recording control.
class PluginFixture : public testing::Test {
protected:
    ComRef<IUnknown> make(IUnknown* outer = nullptr) {
        void* made = nullptr;
        EXPECT_EQ(comFactory.CreateInstance(outer, IID_IUnknown, &made), S_OK);
        return ComRef<IUnknown>::adopt(static_cast<IUnknown*>(made));
    }

    static ComRef<MessageObject> messages(const ComRef<IUnknown>& object) {
        return queried<MessageObject>(object.get(), platformGuid(Api::IMeridaxPlugin::Identifier));
    }

    HRESULT send(ULONG code, const VARIANT& arguments = {}) {
        return messages(object)->message(code, arguments, &result);
    }

    Api::ControlRecord record;
    Api::ControlMaker makeControl = [this] {
        return std::make_unique<Api::RecordingControl>(record);
    };
    Api::ClipboardSteps clipboard;
    Api::LiveObjects liveObjects;
    ClassFactory factory{{makeControl, clipboard, liveObjects},
                         [](const Host::Ref<Api::IHostClipboard>&) {}};
    std::wstring noFile;
    TypeLibrary typeLibrary{noFile};
    ComClassFactory comFactory{factory, typeLibrary};
    VARIANT result{};
    ComRef<IUnknown> object = make();
};

}  // namespace Meridax::VisualControls::Rotavue
