#include "plugin/module/portable/portable_module.h"

#include "plugin/framework/host/status.h"
#include "plugin/framework/unicode.h"
#include "plugin/module/guarded.h"
#include "plugin/module/portable/module_path.h"

#include <utility>

namespace Meridax::VisualControls::Rotavue {

namespace {

namespace Status = Host::Status;

std::wstring wideModulePath() {
    return Api::wideFromUtf8(modulePath().native());
}

}  // namespace

PortableModule::PortableModule(Api::ControlMaker makeControl)
    : makeControl_(std::move(makeControl)),
      registration_({registry_, typeLibrary_, rotavueModuleInfo, wideModulePath}),
      factory_({makeControl_, clipboard_, liveObjects_},
               [this](Host::Ref<Api::IHostClipboard> clipboard) {
                   clipboard_.supply(std::move(clipboard));
               }) {}

std::int32_t PortableModule::getClassObject(const Host::Guid& classId,
                                            const Host::Guid& interfaceId, void** object) noexcept {
    if (object == nullptr) return Status::asResult(Status::InvalidPointer);
    *object = nullptr;
    if (classId != Api::PluginClass) return Status::asResult(Status::ClassNotAvailable);
    *object = factory_.offer(interfaceId);
    return Status::asResult(*object == nullptr ? Status::NoInterface : Status::Ok);
}

std::int32_t PortableModule::canUnloadNow() const noexcept {
    const bool isHeld = liveObjects_.any() || factory_.isLocked();
    return Status::asResult(isHeld ? Status::No : Status::Ok);
}

std::int32_t PortableModule::registerServer() noexcept {
    return guarded([this] { return registration_.registerServer(); });
}

std::int32_t PortableModule::unregisterServer() noexcept {
    return guarded([this] { return registration_.unregisterServer(); });
}

std::int32_t PortableModule::install(bool install, const wchar_t* commandLine) noexcept {
    return guarded([&] { return registration_.install(install, commandLine); });
}

}  // namespace Meridax::VisualControls::Rotavue
