#pragma once

#include "plugin/framework/host/status.h"
#include "plugin/framework/platform.h"

namespace Meridax::VisualControls::Rotavue {

/// The type library of a platform that has none: there is nothing to register, which cannot fail.
class NoTypeLibrary final : public Api::TypeLibraryRegistry {
public:
    std::int32_t registerLibrary(bool /*perUser*/) override {
        return Host::Status::asResult(Host::Status::Ok);
    }
    std::int32_t unregisterLibrary(bool /*perUser*/) override {
        return Host::Status::asResult(Host::Status::Ok);
    }
};

}  // namespace Meridax::VisualControls::Rotavue
