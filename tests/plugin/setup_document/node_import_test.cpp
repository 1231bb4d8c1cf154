#include "plugin/setup_document/node_import.h"

#include "plugin/setup_document/string_helper.h"
#include "plugin/setup_document/xml_exception.h"
#include "tests/plugin/setup_document/unused_node.h"
#include "tests/plugin/setup_document/xml_fixture.h"

#include <utility>

namespace Meridax::Utils::Dcom::Utils {
namespace {

// A tree of another class. It ends level by level, so that a deep one ends at all.
class TreeNode final : public Tests::UnusedNode {
public:
    TreeNode(Text elementName, Text elementValue)
        : elementName_(std::move(elementName)), elementValue_(std::move(elementValue)) {}

    ~TreeNode() override {
        while (!children.empty()) {
            std::vector<std::shared_ptr<TreeNode>> below;
            for (const auto& child : children)
                std::ranges::move(std::exchange(child->children, {}), std::back_inserter(below));
            children = std::move(below);
        }
    }

    Text getName() const override { return elementName_; }
    Text getValue() const override { return elementValue_; }
    std::int32_t childCount() const override { return static_cast<std::int32_t>(children.size()); }
    std::int32_t attributeCount() const override {
        return static_cast<std::int32_t>(attributes.size());
    }
    NodePtr childAt(std::uint64_t index) const override { return children.at(index); }
    NodePtr attributeAt(std::uint64_t index) const override { return attributes.at(index); }
    bool isWriting() const override { return writing; }

    std::vector<std::shared_ptr<TreeNode>> children;
    std::vector<std::shared_ptr<TreeNode>> attributes;
    bool writing = false;

private:
    Text elementName_;
    Text elementValue_;
};

std::shared_ptr<TreeNode> tree(const std::string& name, const std::string& value = {}) {
    return std::make_shared<TreeNode>(name, value);
}

class ImportedTree : public Tests::XmlFixture {
protected:
    // root(b) with the children c(d), which has the child e, and f.
    static std::shared_ptr<TreeNode> smallTree() {
        auto root = tree("root", "1");
        root->attributes = {tree("b", "2")};
        root->children = {tree("c", "3"), tree("f", "6")};
        root->children[0]->attributes = {tree("d", "4")};
        root->children[0]->children = {tree("e", "5")};
        return root;
    }

    const Calls smallTreeCalls = {
        L"CreateNode(root, 1)", L"CreateNode(b, 2)",   L"AppendAttribute(b)", L"CreateNode(c, 3)",
        L"CreateNode(d, 4)",    L"AppendAttribute(d)", L"AppendChild(c)",     L"CreateNode(e, 5)",
        L"AppendChild(e)",      L"CreateNode(f, 6)",   L"AppendChild(f)",
    };

    Calls followedBy(Calls last) const {
        Calls all = smallTreeCalls;
        all.insert(all.end(), last.begin(), last.end());
        return all;
    }
};

TEST_F(ImportedTree, IsCopiedDepthFirstWithTheAttributesOfEachNodeBeforeItsChildren) {
    EXPECT_NE(importNode(*document, smallTree()), nullptr);
    EXPECT_EQ(calls(), smallTreeCalls);
}

TEST_F(ImportedTree, IsNullForAnEmptySource) {
    EXPECT_EQ(importNode(*document, nullptr), nullptr);
    EXPECT_TRUE(calls().empty());
}

TEST_F(ImportedTree, IsWhatAppendingAForeignNodeAttaches) {
    const NodePtr attached = setupNode()->appendChild(smallTree());
    EXPECT_EQ(calls(), followedBy({L"AppendChild(root)"}));
    EXPECT_EQ(attached->getName(), "root");
    EXPECT_EQ(element->children[0]->children.size(), 2U);
}

TEST_F(ImportedTree, IsWhatAppendingAForeignAttributeAttaches) {
    setupNode()->appendAttribute(smallTree());
    EXPECT_EQ(calls(), followedBy({L"AppendAttribute(root)"}));
}

TEST_F(ImportedTree, BecomesAChildOfTheRootOfAGivenDocument) {
    document->root = element;
    const DcomNode node(hostDocument(), smallTree());
    Calls expected = followedBy({L"AppendChild(root)"});
    expected.insert(expected.begin(), L"GetRootNode()");
    EXPECT_EQ(calls(), expected);
    EXPECT_EQ(node.getName(), "setup");
}

TEST_F(ImportedTree, BecomesTheRootOfADocumentOfItsOwnAndGivesItItsDirection) {
    const auto source = smallTree();
    source->writing = true;
    const DcomNode node(source, Host::Ref<Host::IHostApp>::share(new Tests::FakeXmlApp(journal)));
    Calls expected = followedBy({L"SetRootNode(root)", L"SetMode(true)"});
    expected.insert(expected.begin(), {L"GetXmlFactory()", L"CreateDocument(true)"});
    EXPECT_EQ(calls(), expected);
    EXPECT_EQ(node.getValue(), "1");
}

TEST_F(ImportedTree, IsRefusedAsARootWhereThereIsNone) {
    const auto app = Host::Ref<Host::IHostApp>::share(new Tests::FakeXmlApp(journal));
    EXPECT_THROW(DcomNode(NodePtr(), app), Host::HostError);
    EXPECT_TRUE(calls().empty());
}

TEST_F(ImportedTree, LosesInvalidTextOfItsTopAndKeepsItBelow) {
    const auto root = tree("r\xFF", "v\xFF");
    root->children = {tree("c\xFF", "w\xFF")};
    root->attributes = {tree("a\xFF", "x\xFF")};
    importNode(*document, root);
    const std::wstring kept = StringHelper::textToHost("\xFF");  // by the page of the platform
    EXPECT_EQ(calls(), (Calls{L"CreateNode(, )", L"CreateNode(a" + kept + L", x" + kept + L")",
                              L"AppendAttribute(a" + kept + L")",
                              L"CreateNode(c" + kept + L", w" + kept + L")",
                              L"AppendChild(c" + kept + L")"}));
}

TEST_F(ImportedTree, NeedsARootToBecomeAChildOf) {
    // The document has none; the copy is made before that is missed.
    EXPECT_THROW(DcomNode(hostDocument(), smallTree()), Host::HostError);
    Calls expected = followedBy({});
    expected.insert(expected.begin(), L"GetRootNode()");
    EXPECT_EQ(calls(), expected);
}

// A node that notes in which order its texts are asked for.
class AskedNode final : public Tests::UnusedNode {
public:
    AskedNode(Text elementName, std::vector<std::string>& asked)
        : elementName_(std::move(elementName)), asked_(asked) {}

    Text getName() const override { return ask("name"); }
    Text getValue() const override { return ask("value"); }
    std::int32_t childCount() const override { return child ? 1 : 0; }
    std::int32_t attributeCount() const override { return attribute ? 1 : 0; }
    NodePtr childAt(std::uint64_t) const override { return child; }
    NodePtr attributeAt(std::uint64_t) const override { return attribute; }

    NodePtr child;
    NodePtr attribute;

private:
    Text ask(const char* what) const {
        asked_.push_back(elementName_ + " " + what);
        return elementName_;
    }

    Text elementName_;
    std::vector<std::string>& asked_;
};

TEST_F(ImportedTree, IsAskedForItsValueFirstAtTheTopAndForItsNameFirstBelow) {
    std::vector<std::string> asked;
    const auto root = std::make_shared<AskedNode>("root", asked);
    root->attribute = std::make_shared<AskedNode>("attribute", asked);
    root->child = std::make_shared<AskedNode>("child", asked);
    importNode(*document, root);
    EXPECT_EQ(asked, (std::vector<std::string>{"root value", "root name", "attribute name",
                                               "attribute value", "child name", "child value"}));
}

TEST_F(ImportedTree, IsAlsoMadeOfANodeOfTheOwnClassThatHasNoInnerNode) {
    const auto closed = setupNode();
    closed->close();
    // It is imported, and its texts can't be read without the inner node.
    for (const auto attach :
         {&Serialization::Node::appendChild, &Serialization::Node::appendAttribute}) {
        try {
            ((*setupNode()).*attach)(closed);
            FAIL() << "no exception";
        } catch (const Serialization::XmlException& error) {
            EXPECT_EQ(error.code, 5);
        }
    }
    EXPECT_TRUE(calls().empty());
}

TEST_F(ImportedTree, IsRefusedWhereASourceCountsNodesThatItDoesNotGive) {
    const auto root = tree("root");
    root->children = {nullptr};
    EXPECT_THROW(importNode(*document, root), Host::HostError);
    root->children.clear();
}

TEST_F(ImportedTree, MayBeOfAnyDepth) {
    constexpr int Depth = 100'000;
    const auto root = tree("root");
    TreeNode* last = root.get();
    for (int i = 0; i < Depth; ++i) {
        last->children = {tree("n")};
        last = last->children[0].get();
    }
    const auto copy = importNode(*document, root);
    // One node made for each level and the root, one attached for each level.
    EXPECT_EQ(journal.calls.size(), 2U * Depth + 1U);
}

}  // namespace
}  // namespace Meridax::Utils::Dcom::Utils
