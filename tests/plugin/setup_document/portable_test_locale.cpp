#include "tests/plugin/setup_document/c_locale.h"

#include <cstdlib>

namespace Meridax::Tests {

// Where the build has put its locales.
std::string findTestLocale(const std::string& name) {
    ::setenv("LOCPATH", ROTAVUE_TEST_LOCALES, 1);
    return name;
}

}  // namespace Meridax::Tests
