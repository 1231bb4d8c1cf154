#include "plugin/module/portable/registry_file.h"

#include <gtest/gtest.h>

namespace Meridax::VisualControls::Rotavue {
namespace {

constexpr const char* Sample =
    "Meridax registry, format 1\n"
    "\n"
    "[SOFTWARE\\Meridax\\VCs\\Rotavue]\n"
    "\"Name\" = text \"Rotavue\"\n"
    "\"Width\" = number 400\n"
    "\n"
    "[SOFTWARE\\Classes\\CLSID\\{264200AB-CDA2-4257-932E-FD19E014BD0C}]\n"
    "@ = text \"VCPluginImpl class\"\n";

RegistryFile parse(const std::string& body) {
    return RegistryFile::parse("Meridax registry, format 1\n" + body, "r.txt");
}

TEST(RegistryText, IsWrittenAsAPersonReadsIt) {
    RegistryFile file;
    file.create(LR"(SOFTWARE\Meridax\VCs\Rotavue)");
    file.set(LR"(SOFTWARE\Meridax\VCs\Rotavue)", {L"Name", L"Rotavue"});
    file.set(LR"(SOFTWARE\Meridax\VCs\Rotavue)", {L"Width", 400U});
    file.create(LR"(SOFTWARE\Classes\CLSID\{264200AB-CDA2-4257-932E-FD19E014BD0C})");
    file.set(LR"(SOFTWARE\Classes\CLSID\{264200AB-CDA2-4257-932E-FD19E014BD0C})",
             {L"", L"VCPluginImpl class"});
    EXPECT_EQ(file.format(), Sample);
}

TEST(RegistryText, ReadsWhatItWrites) {
    EXPECT_EQ(RegistryFile::parse(Sample, "r.txt").format(), Sample);
}

TEST(RegistryText, EveryCharacterSurvives) {
    RegistryFile file;
    file.create(L"K]y [\u00B5]");
    const std::wstring text = std::wstring(L"a\"b\\c\nd\re\tf") + L'\0' +
                              L"\x01\x1F\x7F\x9F\u00B5\u4E2D\U0001F600 = text \" ";
    file.set(L"K]y [\u00B5]", {text, text});
    EXPECT_EQ(RegistryFile::parse(file.format(), "r.txt"), file);
}

TEST(RegistryText, ControlCharactersAreEscaped) {
    RegistryFile file;
    file.create(L"A");
    file.set(L"A", {L"N", L"\"\\\n\r\t\x1F\x7F"});
    EXPECT_NE(file.format().find(R"("N" = text "\"\\\n\r\t\u{1f}\u{7f}")"), std::string::npos);
}

TEST(RegistryText, FileWithoutAByteHoldsNothing) {
    EXPECT_TRUE(RegistryFile::parse("", "r.txt").entries().empty());
}

TEST(RegistryText, CommentsBlanksAndCarriageReturnsArePassedOver) {
    const RegistryFile file = RegistryFile::parse(
        "Meridax registry, format 1\r\n# a comment\r\n\r\n  [A]  \r\n\t\"N\"=number\t7 \r\n@   =   "
        "text   \"x\"",
        "r.txt");
    ASSERT_NE(file.number(L"A", L"N"), nullptr);
    EXPECT_EQ(*file.number(L"A", L"N"), 7U);
    ASSERT_NE(file.text(L"A", L""), nullptr);
    EXPECT_EQ(*file.text(L"A", L""), L"x");
}

TEST(RegistryText, NumbersReachThirtyTwoBits) {
    const RegistryFile file = parse("[A]\n\"N\" = number 4294967295\n");
    EXPECT_EQ(*file.number(L"A", L"N"), 0xFFFFFFFFU);
}

struct Damage {
    std::string body;  ///< from line 2 on
    std::size_t line;
    std::string fault;
};

class DamagedRegistryText : public testing::TestWithParam<Damage> {};

TEST_P(DamagedRegistryText, IsReportedWithFileAndLine) {
    const Damage& damage = GetParam();
    try {
        parse(damage.body);
        ADD_FAILURE() << "was read";
    } catch (const RegistryFileError& error) {
        EXPECT_EQ(error.line, damage.line);
        EXPECT_EQ(error.what(), "r.txt:" + std::to_string(damage.line) + ": " + damage.fault);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, DamagedRegistryText,
    testing::Values(
        Damage{"[A", 2, "']' is missing behind the key"}, Damage{"[]", 2, "not the path of a key"},
        Damage{"[A\\]", 2, "not the path of a key"},
        Damage{"[A]\n[B]\n[A]", 4, "the key is there twice"},
        Damage{"@ = text \"x\"", 2, "a value stands before the first key"},
        Damage{"[A]\n@ = text \"x\"\n@ = number 1", 4, "the value is there twice"},
        Damage{"[A]\nName = text \"x\"", 3, "a quotation mark is missing"},
        Damage{"[A]\n\"Name = text", 3, "a quotation mark is missing"},
        Damage{"[A]\n\"N\" text \"x\"", 3, "'=' is missing behind the name"},
        Damage{"[A]\n\"N\" = word 1", 3, "the kind is neither 'text' nor 'number'"},
        Damage{"[A]\n\"N\" = text x", 3, "a quotation mark is missing"},
        Damage{"[A]\n\"N\" = text \"x\\\"", 3, "a quotation mark is missing"},
        Damage{"[A]\n\"N\" = text \"x\" y", 3, "something follows where the line should end"},
        Damage{"[A]\n\"N\" = text \"\\q\"", 3, "an unknown escape"},
        Damage{"[A]\n\"N\" = text \"\\u1}\"", 3, "a brace of an escape is missing"},
        Damage{"[A]\n\"N\" = text \"\\u{1\"", 3, "a brace of an escape is missing"},
        Damage{"[A]\n\"N\" = text \"\\u{x}\"", 3, "an escape is no hexadecimal number"},
        Damage{"[A]\n\"N\" = text \"\\u{100}\"", 3, "an escape is no control character"},
        Damage{"[A]\n\"N\" = text \"a\tb\"", 3, "a control character stands in a text"},
        Damage{"[A]\n\"N\" = number -1", 3, "not a number from 0 to 4294967295"},
        Damage{"[A]\n\"N\" = number 4294967296", 3, "not a number from 0 to 4294967295"},
        Damage{"[A]\n\"N\" = number 4294967295000000", 3, "not a number from 0 to 4294967295"},
        Damage{"[A]\n\"N\" = number 1.5", 3, "something follows where the line should end"},
        Damage{"[A]\n\"N\" = number", 3, "not a number from 0 to 4294967295"},
        Damage{"[A]\n\"N\" = text \"\xFF\"", 3, "not UTF-8"}));

TEST(RegistryText, AnotherFirstLineIsDamage) {
    EXPECT_THROW(RegistryFile::parse("[A]\n", "r.txt"), RegistryFileError);
    EXPECT_THROW(RegistryFile::parse("\n", "r.txt"), RegistryFileError);
    EXPECT_THROW(RegistryFile::parse("Meridax registry, format 2\n", "r.txt"), RegistryFileError);
}

TEST(RegistryText, LongerThanARegistryMayBeIsDamage) {
    EXPECT_THROW(parse(std::string(RegistryFile::MaxBytes, '\n')), RegistryFileError);
}

TEST(RegistryText, TooManyKeysOrValuesAreDamage) {
    std::string keys;
    for (std::size_t i = 0; i <= RegistryFile::MaxKeys; ++i)
        keys.append("[").append(std::to_string(i)).append("]\n");
    EXPECT_THROW(parse(keys), RegistryFileError);
    std::string values = "[A]\n";
    for (std::size_t i = 0; i <= RegistryFile::MaxValues; ++i)
        values.append("\"").append(std::to_string(i)).append("\" = number 1\n");
    EXPECT_THROW(parse(values), RegistryFileError);
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
