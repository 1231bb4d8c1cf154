#pragma once

#include "plugin/framework/platform.h"

namespace Meridax::VisualControls::Rotavue {

/// The platform's registry: the current user's hive and the machine's.
class WindowsRegistry final : public Api::RegistryStore {
public:
    std::unique_ptr<Api::RegistryKey> createKey(Api::RegistryScope scope,
                                                const std::wstring& path) override;
    bool deleteKey(Api::RegistryScope scope, const std::wstring& path) override;
};

}  // namespace Meridax::VisualControls::Rotavue
