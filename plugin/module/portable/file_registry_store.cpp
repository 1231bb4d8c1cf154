#include "plugin/module/portable/file_registry_store.h"

#include "plugin/module/portable/registry_transaction.h"

#include <utility>

namespace Meridax::VisualControls::Rotavue {

namespace {

/// An open key: it keeps the transaction of its scope going.
class FileRegistryKey final : public Api::RegistryKey {
public:
    FileRegistryKey(std::shared_ptr<RegistryTransaction> transaction, std::wstring path)
        : transaction_(std::move(transaction)), path_(std::move(path)) {}

    bool setText(const std::wstring& name, const std::wstring& text) override {
        return transaction_->file().set(path_, {name, text});
    }

    bool setNumber(const std::wstring& name, std::uint32_t number) override {
        return transaction_->file().set(path_, {name, number});
    }

    bool deleteValue(const std::wstring& name) override {
        return transaction_->file().removeValue(path_, name);
    }

private:
    std::shared_ptr<RegistryTransaction> transaction_;
    std::wstring path_;
};

}  // namespace

FileRegistryStore::FileRegistryStore(Locator locate, std::chrono::milliseconds longestWait)
    : locate_(std::move(locate)), longestWait_(longestWait) {}

std::unique_ptr<Api::RegistryKey> FileRegistryStore::createKey(Api::RegistryScope scope,
                                                               const std::wstring& path) {
    auto transaction = join(scope);
    if (transaction == nullptr || !transaction->file().create(path)) return nullptr;
    return std::make_unique<FileRegistryKey>(std::move(transaction), path);
}

bool FileRegistryStore::deleteKey(Api::RegistryScope scope, const std::wstring& path) {
    std::error_code failure;
    if (!std::filesystem::exists(locate_(scope), failure)) return false;
    const auto transaction = join(scope);
    return transaction != nullptr && transaction->file().removeKey(path) && transaction->commit();
}

std::shared_ptr<RegistryTransaction> FileRegistryStore::join(Api::RegistryScope scope) {
    auto& running = running_.at(static_cast<std::size_t>(scope));
    auto transaction = running.lock();
    if (transaction != nullptr) return transaction;
    const std::filesystem::path path = locate_(scope);
    if (path.empty()) return nullptr;
    transaction = RegistryTransaction::begin(path, longestWait_);
    running = transaction;
    return transaction;
}

}  // namespace Meridax::VisualControls::Rotavue
