#include "plugin/framework/guid_text.h"
#include "plugin/module/windows/interfaces/operations.h"
#include "tests/plugin/host_contract.h"
#include "tests/plugin/source_tree.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <regex>
#include <set>
#include <sstream>

/// The binary contract with the host, as the headers of its interfaces tell it: each interface's
/// identifier and each operation's place. A build for a platform that calls by place relies on
/// both.
namespace Rotavue::SourceTest {
namespace {

/// The whole of a file as one text.
std::string textOf(const SourceFile& file) {
    std::string text;
    for (const std::string& line : file.lines)
        text += line + "\n";
    return text;
}

/// A comment over several lines as one line.
std::string withoutBreaks(const std::string& text) {
    return std::regex_replace(text, std::regex(R"(\n\s*(///)?\s*)"), " ");
}

std::vector<Place> placesIn(const std::string& body) {
    static const std::regex Operation(R"(\[place (\d+)[^\]]*\] virtual [\w:<>]+ (\w+)\()");
    const std::string line = withoutBreaks(body);
    std::vector<Place> places;
    for (std::sregex_iterator found(line.begin(), line.end(), Operation), end; found != end;
         ++found)
        places.push_back({std::stoi((*found)[1]), (*found)[2]});
    return places;
}

/// The class that begins at the start of a text, if it is an interface of the host.
Interface interfaceAt(const std::string& text) {
    static const std::regex Head(R"x(class (IHost\w+) : public IHostObject \{)x");
    static const std::regex Identifier(R"x(Identifier = guid\("([^"]*)"\))x");
    const std::string body = text.substr(0, text.find("\n};"));
    std::smatch head;
    std::smatch identifier;
    if (!std::regex_search(body, head, Head, std::regex_constants::match_continuous)) return {};
    std::regex_search(body, identifier, Identifier);
    return {head[1], identifier[1], placesIn(body)};
}

std::vector<Interface> interfacesIn(const std::string& text) {
    std::vector<Interface> interfaces;
    for (std::size_t at = text.find("\nclass "); at != std::string::npos;
         at = text.find("\nclass ", at + 1)) {
        Interface one = interfaceAt(text.substr(at + 1));
        if (!one.name.empty()) interfaces.push_back(std::move(one));
    }
    return interfaces;
}

const std::vector<Interface>& declaredInterfaces() {
    static const std::vector<Interface> All = [] {
        std::vector<Interface> all;
        for (const SourceFile& file : sourcesBelow("plugin/framework/host")) {
            const std::vector<Interface> some = interfacesIn(textOf(file));
            all.insert(all.end(), some.begin(), some.end());
        }
        return all;
    }();
    return All;
}

class HostInterface : public testing::TestWithParam<Interface> {};

TEST_P(HostInterface, KeepsItsIdentifierAndThePlacesOfItsOperations) {
    const std::vector<Interface>& declared = declaredInterfaces();
    const auto isIt = [](const Interface& one) { return one.name == GetParam().name; };
    const auto found = std::find_if(declared.begin(), declared.end(), isIt);
    ASSERT_NE(found, declared.end());
    EXPECT_EQ(found->identifier, GetParam().identifier);
    EXPECT_EQ(found->places, GetParam().places);
}

INSTANTIATE_TEST_SUITE_P(Binary, HostInterface, testing::ValuesIn(Contract),
                         [](const auto& parameter) { return parameter.param.name; });

/// The lists from which the binary form is made.
std::vector<Interface> listedInterfaces() {
    using namespace Meridax::Host;
    std::vector<Interface> all;
    Binary::forEachInterface([&]<class Listed>(std::type_identity<Listed>) {
        const std::wstring identifier = Meridax::VisualControls::Api::guidText(Listed::Identifier);
        Interface one{std::string(Binary::Table<Listed>::Text),
                      std::string(identifier.begin(), identifier.end()),
                      {}};
        Binary::forEachOperation<Listed>([&]<class Row>(std::type_identity<Row>) {
            one.places.push_back({static_cast<int>(Row::PlaceNumber), std::string(Row::Text)});
        });
        all.push_back(std::move(one));
    });
    return all;
}

TEST(HostInterfaces, StandInTheListsOfTheBinaryForm) {
    const std::vector<Interface> listed = listedInterfaces();
    ASSERT_EQ(listed.size(), Contract.size());
    for (std::size_t i = 0; i < listed.size(); ++i) {
        const auto one = std::find_if(Contract.begin(), Contract.end(), [&](const Interface& it) {
            return it.name == listed[i].name;
        });
        ASSERT_NE(one, Contract.end()) << listed[i].name;
        EXPECT_EQ(listed[i].identifier, one->identifier);
        EXPECT_EQ(listed[i].places, one->places) << listed[i].name;
    }
}

TEST(HostInterfaces, AreTwentyEight) {
    EXPECT_EQ(Contract.size(), 28U);
    EXPECT_EQ(declaredInterfaces().size(), 28U);
}

TEST(HostInterfaces, HaveAPlaceForEachOperation) {
    static const std::regex Virtual(R"(^    virtual .*)");
    std::size_t operations = 0;
    for (const SourceFile& file : sourcesBelow("plugin/framework/host")) {
        if (file.path == "host_object.h") continue;
        operations += static_cast<std::size_t>(
            std::count_if(file.lines.begin(), file.lines.end(),
                          [](const std::string& line) { return std::regex_match(line, Virtual); }));
    }
    std::size_t places = 0;
    for (const Interface& one : declaredInterfaces())
        places += one.places.size();
    EXPECT_EQ(operations, places);
}

/// The words in the tag lines of a header's comments, numbers as N.
std::set<std::string> tagWordsIn(const std::string& text) {
    static const std::regex Tag(R"(\[([a-z][^\]\[]*)\](?: virtual| using|\n))");
    static const std::regex Numbered(R"(\d+)");
    const std::string line = withoutBreaks(text);
    std::set<std::string> words;
    for (std::sregex_iterator found(line.begin(), line.end(), Tag), end; found != end; ++found) {
        std::istringstream tag(std::regex_replace((*found)[1].str(), Numbered, "N"));
        for (std::string word; std::getline(tag, word, '|');) {
            word.erase(0, word.find_first_not_of(' '));
            words.insert(word.substr(0, word.find_last_not_of(' ') + 1));
        }
    }
    return words;
}

/// docs/contract.md tells what each of them means.
TEST(TagLines, UseNoWordOutsideTheirVocabulary) {
    const std::set<std::string> vocabulary{"any time",
                                           "after attach",
                                           "during a message",
                                           "message N",
                                           "place N",
                                           "owns its object arguments",
                                           "the caller owns the copy",
                                           "may be null",
                                           "never null",
                                           "never null in normal use",
                                           "never fails",
                                           "single thread"};
    std::set<std::string> used;
    for (const SourceFile& file : sourcesBelow("plugin/framework"))
        if (file.path.ends_with(".h")) used.merge(tagWordsIn(textOf(file)));
    EXPECT_EQ(used, vocabulary);
}

}  // namespace
}  // namespace Rotavue::SourceTest
