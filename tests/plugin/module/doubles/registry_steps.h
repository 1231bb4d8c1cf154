#pragma once

#include "plugin/framework/platform.h"
#include "plugin/framework/unicode.h"

#include <memory>
#include <new>
#include <set>
#include <string>
#include <vector>

namespace Meridax::VisualControls::Rotavue {

/// A registry store that writes its steps down, each with its scope where it names a key, and whose
/// operations may all fail.
class RegistrySteps final : public Api::RegistryStore {
public:
    std::unique_ptr<Api::RegistryKey> createKey(Api::RegistryScope scope,
                                                const std::wstring& path) override {
        const std::string key = name(scope, path);
        note("create " + key);
        if (refused.contains(key)) return nullptr;
        return std::make_unique<Key>(*this, key);
    }

    bool deleteKey(Api::RegistryScope scope, const std::wstring& path) override {
        note("delete " + name(scope, path));
        return false;
    }

    std::vector<std::string> steps;
    std::set<std::string> refused;  ///< keys that can't be created
    bool valuesFail = false;
    std::string exhaustedAt;  ///< the step for which there is no memory

private:
    class Key final : public Api::RegistryKey {
    public:
        Key(RegistrySteps& store, std::string key) : store_(store), key_(std::move(key)) {}
        Key(const Key&) = delete;
        Key& operator=(const Key&) = delete;
        ~Key() override { store_.steps.push_back("close " + key_); }

        bool setText(const std::wstring& name, const std::wstring& text) override {
            store_.note(Api::utf8FromWide(name + L" = '" + text + L"'"));
            return !store_.valuesFail;
        }
        bool setNumber(const std::wstring& name, std::uint32_t number) override {
            store_.note(Api::utf8FromWide(name + L" = " + std::to_wstring(number)));
            return !store_.valuesFail;
        }
        bool deleteValue(const std::wstring& name) override {
            store_.note("delete value " + Api::utf8FromWide(name));
            return !store_.valuesFail;
        }

    private:
        RegistrySteps& store_;
        std::string key_;
    };

    void note(const std::string& step) {
        if (step == exhaustedAt) throw std::bad_alloc();
        steps.push_back(step);
    }

    static std::string name(Api::RegistryScope scope, const std::wstring& path) {
        return (scope == Api::RegistryScope::User ? "user " : "machine ") + Api::utf8FromWide(path);
    }
};

/// A type library registry that writes its steps down and may refuse.
class TypeLibrarySteps final : public Api::TypeLibraryRegistry {
public:
    explicit TypeLibrarySteps(std::vector<std::string>& steps) : steps_(steps) {}

    std::int32_t registerLibrary(bool perUser) override {
        steps_.push_back(perUser ? "register library for the user" : "register library");
        return registerStatus;
    }
    std::int32_t unregisterLibrary(bool perUser) override {
        steps_.push_back(perUser ? "unregister library for the user" : "unregister library");
        return unregisterStatus;
    }

    std::int32_t registerStatus = 0;
    std::int32_t unregisterStatus = 0;

private:
    std::vector<std::string>& steps_;
};

}  // namespace Meridax::VisualControls::Rotavue
