#pragma once

#include <clocale>
#include <locale>
#include <string>

namespace Rotavue::HostKit {

/// While it lives, the program has the classic locale, whatever it has chosen before: the decimal
/// point is a point for the host and for the plug-in in it.
class ClassicLocale {
public:
    ClassicLocale() = default;
    ClassicLocale(const ClassicLocale&) = delete;
    ClassicLocale& operator=(const ClassicLocale&) = delete;

    ~ClassicLocale() {
        std::locale::global(streams_);
        std::setlocale(LC_ALL, library_.c_str());
    }

private:
    std::string library_ = std::setlocale(LC_ALL, nullptr);
    std::locale streams_ = std::locale::global(std::locale::classic());
};

}  // namespace Rotavue::HostKit
