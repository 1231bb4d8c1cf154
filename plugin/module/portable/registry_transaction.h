#pragma once

#include "plugin/module/portable/file_lock.h"
#include "plugin/module/portable/registry_file.h"

#include <chrono>
#include <filesystem>
#include <memory>
#include <string>

namespace Meridax::VisualControls::Rotavue {

/// A registry file under its lock, from reading to writing.
class RegistryTransaction {
public:
    /// Locks and reads a file; makes the folders that lead to it. Null for a file that cannot be
    /// locked or read.
    static std::shared_ptr<RegistryTransaction> begin(const std::filesystem::path& path,
                                                      std::chrono::milliseconds longestWait);

    RegistryTransaction(std::filesystem::path path, FileLock lock, RegistryFile content);
    RegistryTransaction(const RegistryTransaction&) = delete;
    RegistryTransaction& operator=(const RegistryTransaction&) = delete;

    /// Writes what was changed since.
    ~RegistryTransaction();

    RegistryFile& file() { return file_; }

    /// Writes what was changed since; true when the file holds it.
    bool commit();

private:
    std::filesystem::path path_;
    FileLock lock_;
    RegistryFile file_;
    std::string stored_;  ///< the text of what the file on the disk holds
};

}  // namespace Meridax::VisualControls::Rotavue
