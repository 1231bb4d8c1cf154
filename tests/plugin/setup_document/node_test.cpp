#include "plugin/setup_document/node.h"

#include "plugin/setup_document/xml_exception.h"
#include "tests/plugin/setup_document/entry_node.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

namespace Meridax::Utils::Serialization {
namespace {

using Tests::EntryNode;
using Texts = std::vector<std::string>;

template <NodeValue T>
std::int32_t codeOfReading(const std::string& text) {
    EntryNode node;
    node.entries["key"] = text;
    T value = T{};
    try {
        node.read("key", value);
    } catch (const XmlException& error) {
        return error.code;
    }
    return -1;
}

TEST(Node, IsNoDummyAndMakesDefaultsThatDifferWithAHash) {
    const EntryNode node;
    EXPECT_FALSE(node.isDummy());
    EXPECT_EQ(node.name, "");
    EXPECT_EQ(node.defaultSuffix, "#");
}

TEST(Node, WritesAValueWithADefaultThatNeverEqualsIt) {
    EntryNode node;
    node.write("flag", true);
    node.write("count", std::int32_t{-7});
    node.write("span", 100.0);
    EXPECT_EQ(node.writes,
              (std::vector<Texts>{{"flag", "True", "True#"},
                                  {"count", "-7", "-7#"},
                                  {"span", "100.000000000000000", "100.000000000000000#"}}));
    EXPECT_EQ(node.entries.size(), 3U);
}

TEST(Node, TakesTheSuffixFromItsField) {
    EntryNode node;
    node.defaultSuffix = "?!";
    node.write("count", std::int32_t{1});
    EXPECT_EQ(node.writes, (std::vector<Texts>{{"count", "1", "1?!"}}));
}

TEST(Node, ReadsTheZeroOfTheTypeForAMissingKey) {
    EntryNode node;
    bool flag = true;
    std::int32_t count = 5;
    double span = 5;
    node.read("flag", flag);
    node.read("count", count);
    node.read("span", span);
    EXPECT_EQ(node.reads, (std::vector<Texts>{
                              {"flag", "False"}, {"count", "0"}, {"span", "0.000000000000000"}}));
    EXPECT_FALSE(flag);
    EXPECT_EQ(count, 0);
    EXPECT_EQ(span, 0.0);
}

TEST(Node, ReadsTheGivenDefaultForAMissingKey) {
    EntryNode node;
    bool flag = false;
    double limit = 0;
    node.read("flag", flag, true);
    node.read("limit", limit, -1.0);
    EXPECT_EQ(node.reads, (std::vector<Texts>{{"flag", "True"}, {"limit", "-1.000000000000000"}}));
    EXPECT_TRUE(flag);
    EXPECT_EQ(limit, -1.0);
}

TEST(Node, WritesOrReadsAsItsDirectionSays) {
    EntryNode node;
    bool flag = true;
    node.writing = true;
    node.readWrite("flag", flag);
    EXPECT_EQ(node.writes, (std::vector<Texts>{{"flag", "True", "True#"}}));
    EXPECT_TRUE(node.reads.empty());
    node.writing = false;
    flag = false;
    node.readWrite("flag", flag);
    EXPECT_TRUE(flag);
    EXPECT_EQ(node.writes.size(), 1U);
    EXPECT_EQ(node.directionQuestions, 2);
}

TEST(Node, LetsTheDocumentDropAValueThatEqualsItsDefault) {
    EntryNode node;
    node.writing = true;
    bool flag = true;
    std::int32_t count = 5;
    node.readWrite("flag", flag, true);
    node.readWrite("count", count, 1);
    EXPECT_EQ(node.writes, (std::vector<Texts>{{"flag", "True", "True"}, {"count", "5", "1"}}));
    EXPECT_EQ(node.entries, (std::map<std::string, std::string>{{"count", "5"}}));
}

TEST(Node, ReadsWhatWasDroppedAsItsDefault) {
    EntryNode node;
    double limit = 3.0;
    node.readWrite("limit", limit, 1.0);
    EXPECT_EQ(limit, 1.0);
    EXPECT_TRUE(node.writes.empty());
}

TEST(Node, TurnsFailedConversionsIntoItsOwnCodes) {
    constexpr std::int32_t None = -1;
    EXPECT_EQ(codeOfReading<std::int32_t>("12abc"), None);
    EXPECT_EQ(codeOfReading<std::int32_t>("abc"), XmlError::WrongType);
    EXPECT_EQ(codeOfReading<std::int32_t>("99999999999999999999"), XmlError::OutOfRange);
    EXPECT_EQ(codeOfReading<double>("abc"), XmlError::WrongType);
    EXPECT_EQ(codeOfReading<double>("1e999"), XmlError::OutOfRange);
    EXPECT_EQ(codeOfReading<bool>("abc"), None);
    EXPECT_EQ(codeOfReading<bool>(""), None);
}

TEST(Node, ConvertsTheNumberAtTheStartAndIgnoresTheRest) {
    EntryNode node;
    node.entries = {{"count", "12abc"}, {"span", "2,5 ms"}};
    std::int32_t count = 0;
    double span = 0;
    node.read("count", count);
    node.read("span", span);
    EXPECT_EQ(count, 12);
    EXPECT_EQ(span, 2.5);
}

TEST(Node, LeavesTheValueAloneWhenReadingFails) {
    EntryNode node;
    node.entries = {{"count", "abc"}};
    std::int32_t count = 42;
    EXPECT_THROW(node.read("count", count), XmlException);
    EXPECT_EQ(count, 42);
}

// A node whose document fails with an exception of the standard library's.
class BrokenNode final : public Tests::UnusedNode {
public:
    void readValue(const Text&, Text&, const Text&) const override {
        throw std::invalid_argument("the document's own");
    }
};

TEST(Node, LetsExceptionsOfTheDocumentPassUnchanged) {
    const BrokenNode node;
    double value = 0;
    EXPECT_THROW(node.read("key", value), std::invalid_argument);
}

}  // namespace
}  // namespace Meridax::Utils::Serialization
