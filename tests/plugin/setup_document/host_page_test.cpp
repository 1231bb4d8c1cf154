#include "plugin/setup_document/string_helper.h"
#include "tests/plugin/setup_document/text_samples.h"

#include <gtest/gtest.h>

#include <string>

// The page of the host's texts where it is UTF-8.

namespace Meridax::Utils::Dcom::Utils::StringHelper {
namespace {

TEST(HostPage, CarriesEveryCharacterBothWays) {
    for (const TextPair& c : SameTexts) {
        EXPECT_EQ(textToHost(c.narrow), c.wide) << c.narrow;
        EXPECT_EQ(hostToText(c.wide), c.narrow) << c.narrow;
    }
}

TEST(HostPage, KeepsWhatIsValidBesideAByteThatIsNot) {
    EXPECT_EQ(textToHost("a\xFFz"), L"a\uFFFDz");
    EXPECT_EQ(textToHost("\xC3(").size(), 2U);  // the cut-off lead byte and the bracket
    for (const std::string& text : InvalidTexts)
        EXPECT_NE(textToHost(text), L"") << testing::PrintToString(text);
}

}  // namespace
}  // namespace Meridax::Utils::Dcom::Utils::StringHelper
