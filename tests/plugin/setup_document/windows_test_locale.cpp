#include "tests/plugin/setup_document/c_locale.h"

namespace Meridax::Tests {

// The platform has every locale, by another name and in its 8-bit page.
std::string findTestLocale(const std::string& name) {
    if (name == "en_US.UTF-8") return "English_United States.1252";
    if (name == "de_DE.UTF-8") return "German_Germany.1252";
    return name;
}

}  // namespace Meridax::Tests
