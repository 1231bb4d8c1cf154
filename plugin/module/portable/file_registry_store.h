#pragma once

#include "plugin/framework/platform.h"
#include "plugin/module/portable/registry_file.h"

#include <array>
#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>

namespace Meridax::VisualControls::Rotavue {

class RegistryTransaction;

/// The registry store over one text file per scope. From the first key that is opened to the last
/// one that is closed, the scope's file is locked against other writers; its new content is written
/// then, at once. A file that cannot be locked in time, read or understood gives no key, and stays
/// as it is; `RegistryFile::load` tells what is wrong with it.
class FileRegistryStore final : public Api::RegistryStore {
public:
    using Locator = std::function<std::filesystem::path(Api::RegistryScope)>;

    static constexpr std::chrono::milliseconds LongestWait{2000};

    explicit FileRegistryStore(Locator locate = registryFilePath,
                               std::chrono::milliseconds longestWait = LongestWait);

    std::unique_ptr<Api::RegistryKey> createKey(Api::RegistryScope scope,
                                                const std::wstring& path) override;
    bool deleteKey(Api::RegistryScope scope, const std::wstring& path) override;

private:
    std::shared_ptr<RegistryTransaction> join(Api::RegistryScope scope);

    Locator locate_;
    std::chrono::milliseconds longestWait_;
    std::array<std::weak_ptr<RegistryTransaction>, 2> running_;  ///< by scope
};

}  // namespace Meridax::VisualControls::Rotavue
