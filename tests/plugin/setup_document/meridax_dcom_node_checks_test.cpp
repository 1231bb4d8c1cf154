// Which checks each operation makes before it calls the host, and in which order.

#include "plugin/setup_document/xml_exception.h"
#include "tests/plugin/setup_document/xml_fixture.h"

#include <functional>

namespace Meridax::Utils::Dcom::Utils {
namespace {

using Serialization::Node;
using Serialization::XmlException;

constexpr std::int32_t NoError = -1;

class NodeChecks : public Tests::XmlFixture {
protected:
    struct Row {
        const char* operation;
        std::function<void(Node&)> call;
    };

    static std::int32_t codeOf(Node& node, const Row& row) {
        try {
            row.call(node);
        } catch (const XmlException& error) {
            return error.code;
        }
        return NoError;
    }

    // The codes without both (which is also how a closed node answers), with the document alone,
    // and with the inner node alone.
    void expectCodes(const std::vector<Row>& rows, std::int32_t neither, std::int32_t documentAlone,
                     std::int32_t innerAlone) {
        for (const Row& row : rows) {
            DcomNode bare({}, Host::Ref<Host::IHostXmlNode>());
            DcomNode withDocument(hostDocument(), Host::Ref<Host::IHostXmlNode>());
            DcomNode withInner({}, hostNode(element));
            DcomNode closed(hostDocument(), hostNode(element));
            closed.close();
            EXPECT_EQ(codeOf(bare, row), neither) << row.operation;
            EXPECT_EQ(codeOf(closed, row), neither) << row.operation;
            EXPECT_EQ(codeOf(withDocument, row), documentAlone) << row.operation;
            EXPECT_EQ(codeOf(withInner, row), innerAlone) << row.operation;
        }
    }

    std::string text_;
    NodePtr pointer_;
};

TEST_F(NodeChecks, AskForTheDocumentAloneWhereOnlyItIsUsed) {
    expectCodes({{"createNode", [](Node& n) { n.createNode("n", "v"); }},
                 {"assign", [this](Node& n) { n.assign(setupNode()); }},
                 {"assignNew", [](Node& n) { n.assignNew("n", "v"); }},
                 {"setWriting", [](Node& n) { n.setWriting(false); }},
                 {"isWriting", [](Node& n) { n.isWriting(); }}},
                6, NoError, 6);
}

TEST_F(NodeChecks, AskForTheInnerNodeAloneWhereOnlyItIsUsed) {
    expectCodes({{"setValue", [](Node& n) { n.setValue("v"); }},
                 {"clearChildren", [](Node& n) { n.clearChildren(); }},
                 {"clearAttributes", [](Node& n) { n.clearAttributes(); }},
                 {"attributeCount", [](Node& n) { n.attributeCount(); }},
                 {"childCount", [](Node& n) { n.childCount(); }},
                 {"removeAttribute", [this](Node& n) { n.removeAttribute(pointer_); }},
                 {"removeAttributeAt", [](Node& n) { n.removeAttributeAt(0); }},
                 {"removeAttributeNamed", [](Node& n) { n.removeAttributeNamed("a"); }},
                 {"removeChild", [this](Node& n) { n.removeChild(pointer_); }},
                 {"removeChildAt", [](Node& n) { n.removeChildAt(0); }},
                 {"removeChildNamed", [](Node& n) { n.removeChildNamed("a"); }},
                 {"getName", [](Node& n) { n.getName(); }},
                 {"getValue", [](Node& n) { n.getValue(); }}},
                5, 5, NoError);
}

TEST_F(NodeChecks, AskForTheDocumentFirstWhereBothAreUsed) {
    expectCodes({{"getChild", [](Node& n) { n.getChild("a"); }},
                 {"readChild", [](Node& n) { n.readChild("a"); }},
                 {"appendChild", [this](Node& n) { n.appendChild(setupNode()); }},
                 {"addChild", [](Node& n) { n.addChild("a"); }},
                 {"clone", [](Node& n) { n.clone(); }},
                 {"appendAttribute", [this](Node& n) { n.appendAttribute(setupNode()); }},
                 {"findChild", [](Node& n) { n.findChild("a"); }},
                 {"findAttribute", [](Node& n) { n.findAttribute("a"); }},
                 {"attributeAt", [](Node& n) { n.attributeAt(0); }},
                 {"childAt", [](Node& n) { n.childAt(0); }},
                 {"getParent", [](Node& n) { n.getParent(); }},
                 {"isEmpty", [](Node& n) { n.isEmpty(); }},
                 {"writeValue", [](Node& n) { n.writeValue("k", "v", "d"); }},
                 {"readValue", [this](Node& n) { n.readValue("k", text_, "d"); }},
                 {"addAttribute", [](Node& n) { n.addAttribute("n", "v"); }},
                 {"getOrAddChild", [](Node& n) { n.getOrAddChild("a"); }}},
                6, 5, 6);
}

TEST_F(NodeChecks, ComeBeforeEveryCallOfTheHost) {
    DcomNode withoutInner(hostDocument(), Host::Ref<Host::IHostXmlNode>());
    EXPECT_THROW(withoutInner.addChild("a"), XmlException);
    EXPECT_THROW(withoutInner.addAttribute("n", "v"), XmlException);
    EXPECT_THROW(withoutInner.readChild("a"), XmlException);
    EXPECT_TRUE(calls().empty());
    // The direction is asked before the inner node is missed.
    EXPECT_THROW(withoutInner.getChild("a"), XmlException);
    EXPECT_EQ(calls(), (Calls{L"GetMode()"}));
}

TEST_F(NodeChecks, RefuseAPositionBeyond31Bits) {
    const std::vector<std::function<void(Node&, std::uint64_t)>> operations = {
        [](Node& n, std::uint64_t i) { n.childAt(i); },
        [](Node& n, std::uint64_t i) { n.attributeAt(i); },
        [](Node& n, std::uint64_t i) { n.removeChildAt(i); },
        [](Node& n, std::uint64_t i) { n.removeAttributeAt(i); },
    };
    for (const auto& operation : operations) {
        for (const std::uint64_t index : {0x80000000ULL, 0x100000000ULL, ~0ULL}) {
            const Row row{"", [&](Node& n) { operation(n, index); }};
            EXPECT_EQ(codeOf(*setupNode(), row), 2) << index;
            EXPECT_TRUE(calls().empty());
            DcomNode bare({}, Host::Ref<Host::IHostXmlNode>());
            EXPECT_GE(codeOf(bare, row), 5) << "the missing objects are told first";
        }
        const Row last{"", [&](Node& n) { operation(n, 0x7FFFFFFF); }};
        EXPECT_EQ(codeOf(*setupNode(), last), NoError);
        calls();
    }
}

TEST_F(NodeChecks, RefuseToRemoveADummy) {
    const auto node = setupNode();
    const NodePtr dummy = node->readChild("missing");
    NodePtr argument = dummy;
    EXPECT_EQ(codeOf(*node, {"", [&](Node& n) { n.removeChild(argument); }}), 13);
    EXPECT_EQ(codeOf(*node, {"", [&](Node& n) { n.removeAttribute(argument); }}), 13);
    EXPECT_EQ(argument, dummy) << "the caller keeps what was refused";
    DcomNode bare({}, Host::Ref<Host::IHostXmlNode>());
    EXPECT_EQ(codeOf(bare, {"", [&](Node& n) { n.removeChild(argument); }}), 5);
}

TEST_F(NodeChecks, LeaveTwoOperationsOfAClosedNode) {
    const auto node = setupNode();
    node->close();
    EXPECT_FALSE(node->isValid());
    EXPECT_NO_THROW(node->close());
    EXPECT_FALSE(node->isValid());
    EXPECT_TRUE(calls().empty());
}

}  // namespace
}  // namespace Meridax::Utils::Dcom::Utils
