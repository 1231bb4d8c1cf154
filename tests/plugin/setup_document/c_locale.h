#pragma once

#include <clocale>
#include <locale>
#include <string>

namespace Meridax::Tests {

/// What the platform's C library calls the locale "en_US.UTF-8" or "de_DE.UTF-8", which it finds
/// from here on; any other name is given back as it is.
std::string findTestLocale(const std::string& name);

/// Puts the C library under a locale for the length of a scope. A test asserts `isSet()` first, so
/// that a missing locale fails it.
class CLocale {
public:
    explicit CLocale(const std::string& name) : before_(std::setlocale(LC_ALL, nullptr)) {
        set_ = std::setlocale(LC_ALL, findTestLocale(name).c_str()) != nullptr;
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
/// length of a scope. Throws where the locale is missing: where the standard library has "C" alone.
class GlobalLocale {
public:
    explicit GlobalLocale(const std::string& name) {
        before_ = std::locale::global(std::locale(findTestLocale(name)));
    }
    GlobalLocale(const GlobalLocale&) = delete;
    GlobalLocale& operator=(const GlobalLocale&) = delete;
    ~GlobalLocale() { std::locale::global(before_); }

private:
    std::locale before_;
};

}  // namespace Meridax::Tests
