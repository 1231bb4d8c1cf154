#pragma once

#include "plugin/module/portable/file_descriptor.h"

#include <chrono>
#include <filesystem>
#include <optional>

namespace Meridax::VisualControls::Rotavue {

/// The right to write a file, held against every other process and every other lock of this one. It
/// is a lock on a file of its own beside (`NAME.lock`), which stays: a reader needs no lock.
class FileLock {
public:
    /// Waits for the lock, but no longer than told; none where it cannot be had.
    static std::optional<FileLock> acquire(const std::filesystem::path& path,
                                           std::chrono::milliseconds wait);

private:
    explicit FileLock(FileDescriptor file) noexcept : file_(std::move(file)) {}

    FileDescriptor file_;  ///< the lock goes with it
};

}  // namespace Meridax::VisualControls::Rotavue
