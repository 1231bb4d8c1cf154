#include "plugin/module/portable/registry_transaction.h"

#include "plugin/module/portable/replace_file.h"

#include <utility>

namespace Meridax::VisualControls::Rotavue {

namespace {

/// Where a link leads to, so that the link stays when the file is replaced.
std::filesystem::path resolved(const std::filesystem::path& path) {
    std::error_code failure;
    const std::filesystem::path target = std::filesystem::canonical(path, failure);
    return failure ? path : target;
}

}  // namespace

std::shared_ptr<RegistryTransaction> RegistryTransaction::begin(
    const std::filesystem::path& path, std::chrono::milliseconds longestWait) {
    std::error_code failure;
    std::filesystem::create_directories(path.parent_path(), failure);
    const std::filesystem::path target = resolved(path);
    auto lock = FileLock::acquire(target, longestWait);
    if (!lock) return nullptr;
    try {
        RegistryFile content = RegistryFile::load(target);
        return std::make_shared<RegistryTransaction>(target, std::move(*lock), std::move(content));
    } catch (const RegistryFileError&) {
        return nullptr;
    }
}

RegistryTransaction::RegistryTransaction(std::filesystem::path path, FileLock lock,
                                         RegistryFile content)
    : path_(std::move(path)),
      lock_(std::move(lock)),
      file_(std::move(content)),
      stored_(file_.format()) {}

RegistryTransaction::~RegistryTransaction() {
    try {
        commit();
    } catch (...) {  // NOLINT(bugprone-empty-catch): registration reports no failed writing.
    }
}

bool RegistryTransaction::commit() {
    std::string text = file_.format();
    if (text == stored_) return true;
    if (text.size() > RegistryFile::MaxBytes || !replaceFile(path_, text)) return false;
    stored_ = std::move(text);
    return true;
}

}  // namespace Meridax::VisualControls::Rotavue
