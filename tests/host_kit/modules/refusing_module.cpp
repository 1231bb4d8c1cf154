// A module that does not have the class which it is asked for.

#include "plugin/framework/plugin_interfaces.h"

extern "C" {

[[gnu::visibility("default")]] std::int32_t DllGetClassObject(const Meridax::Host::Guid&,
                                                              const Meridax::Host::Guid&,
                                                              void** object) {
    *object = nullptr;
    return static_cast<std::int32_t>(Meridax::Host::Status::ClassNotAvailable);
}

[[gnu::visibility("default")]] std::int32_t DllCanUnloadNow() {
    return 0;
}

}  // extern "C"
