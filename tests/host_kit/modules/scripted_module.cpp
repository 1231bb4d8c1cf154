// A module whose one control does on purpose what no good plug-in does: it throws whatever it is
// told to, keeps what it was lent, and tells how it reads its arguments.

#include "plugin/framework/host/data/host_app.h"
#include "plugin/framework/host/data/host_data.h"
#include "plugin/framework/host/drawing/host_canvas.h"
#include "plugin/framework/plugin_interfaces.h"
#include "plugin/setup_document/xml_exception.h"

#include <stdexcept>
#include <string>

namespace {

namespace Api = Meridax::VisualControls::Api;
namespace Host = Meridax::Host;

int liveObjects = 0;
Api::IHostClipboard* suppliedClipboard = nullptr;

/// What all objects of this module share.
template <class Interface>
class Object : public Interface {
public:
    Object() { ++liveObjects; }
    virtual ~Object() { --liveObjects; }

    void retain() noexcept override { ++references_; }

    void release() noexcept override {
        if (--references_ == 0) delete this;
    }

    void* offer(const Host::Guid& interfaceId) override {
        if (interfaceId != Interface::Identifier) return nullptr;
        retain();
        return static_cast<Interface*>(this);
    }

private:
    int references_ = 1;
};

class ScriptedControl final : public Object<Api::IMeridaxPlugin> {
public:
    std::int32_t message(std::uint32_t code, const Api::MessageArguments* arguments,
                         Api::MessageResult* result) override {
        switch (code) {
            case 42:
                drawCross(*arguments->copy());
                return 0;
            case 100:
                throw std::runtime_error("no standard kind \xff");
            case 101:
                throw 7;
            case 102:
                throw std::out_of_range("too far");
            case 103:
                throw std::invalid_argument("not this");
            case 104:
                throw Meridax::Utils::Serialization::XmlException(4);
            case 105:
                throw Host::HostError(Host::Status::OutOfMemory, Api::PluginClass);
            case 200:
                arguments->copy()->objectAt(0)->retain();
                return 0;
            case 201:
                describe(*arguments->copy());
                return 0;
            case 202:
                suppliedClipboard->putText(arguments->copy()->textAt(0));
                return 0;
            case 203:
                result->putInteger16(-5);
                return 3;
            case 204:
                result->putFourIntegers();
                result->setInteger(3, 9);
                return 0;
            case 205:
                return arguments == nullptr ? 1 : 0;
            case 206:
                arguments->copy()->objectAt(0).offered<Host::IHostApp>()->getData();
                return 0;
            default:
                return static_cast<std::int32_t>(Host::Status::Abort);
        }
    }

private:
    static void drawCross(const Api::ArgumentList& list) {
        const auto canvas = list.objectAt(0).offered<Host::IHostCanvas>();
        canvas->MoveTo(list.integerAt(1), list.integerAt(2));
        canvas->LineTo(list.integerAt(3), list.integerAt(4));
    }

    /// Shows the element behind the first one as the three widths of number and as a text.
    static void describe(const Api::ArgumentList& list) {
        const std::int32_t place = list.lowerBound() + 1;
        list.objectAt(list.lowerBound())
            .offered<Host::IHostApp>()
            ->showMessage(std::to_wstring(list.integerAt(place)) + L" " +
                          std::to_wstring(list.wordAt(place)) + L" " +
                          std::to_wstring(list.byteAt(place)) + L" '" + list.textAt(place) +
                          L"' of " + std::to_wstring(list.lowerBound()) + L".." +
                          std::to_wstring(list.upperBound()));
    }
};

class Services final : public Object<Api::IModuleServices> {
public:
    void supplyClipboard(Api::IHostClipboard* clipboard) noexcept override {
        suppliedClipboard = clipboard;
    }
};

class Factory final : public Object<Api::IClassFactory> {
public:
    void* offer(const Host::Guid& interfaceId) override {
        if (interfaceId == Api::IModuleServices::Identifier) {
            return static_cast<Api::IModuleServices*>(new Services);
        }
        return Object::offer(interfaceId);
    }

    std::int32_t createInstance(Host::IHostObject*, const Host::Guid&,
                                void** object) noexcept override {
        *object = static_cast<Api::IMeridaxPlugin*>(new ScriptedControl);
        return 0;
    }

    std::int32_t lockServer(bool) noexcept override { return 0; }
};

}  // namespace

extern "C" {

[[gnu::visibility("default")]] std::int32_t DllGetClassObject(const Host::Guid&, const Host::Guid&,
                                                              void** object) {
    *object = static_cast<Api::IClassFactory*>(new Factory);
    return 0;
}

[[gnu::visibility("default")]] std::int32_t DllCanUnloadNow() {
    return liveObjects == 0 ? 0 : 1;
}

}  // extern "C"
