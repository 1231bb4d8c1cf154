#pragma once

#include <clocale>
#include <cstdlib>
#include <locale>
#include <string>

namespace Meridax::Tests {

/// Where the build has put its locales; they are found from here on.
inline void findTestLocales() {
    ::setenv("LOCPATH", ROTAVUE_TEST_LOCALES, 1);
}

/// Puts the C library under a locale for the length of a scope. A test asserts `isSet()` first, so
/// that a missing locale fails it.
class CLocale {
public:
    explicit CLocale(const std::string& name) : before_(std::setlocale(LC_ALL, nullptr)) {
        findTestLocales();
        set_ = std::setlocale(LC_ALL, name.c_str()) != nullptr;
    }
    CLocale(const CLocale&) = delete;
    CLocale& operator=(const CLocale&) = delete;
    ~CLocale() { std::setlocale(LC_ALL, before_.c_str()); }

    bool isSet() const { return set_; }

private:
    std::string before_;
    bool set_ = false;
};

/// Puts the standard library's global locale, and with it the C library, under a locale for the
/// length of a scope. Throws where the locale is missing.
class GlobalLocale {
public:
    explicit GlobalLocale(const std::string& name) {
        findTestLocales();
        before_ = std::locale::global(std::locale(name));
    }
    GlobalLocale(const GlobalLocale&) = delete;
    GlobalLocale& operator=(const GlobalLocale&) = delete;
    ~GlobalLocale() { std::locale::global(before_); }

private:
    std::locale before_;
};

}  // namespace Meridax::Tests
