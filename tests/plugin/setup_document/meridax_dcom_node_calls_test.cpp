// Which calls of the host each operation makes.

#include "plugin/setup_document/meridax_dcom_node_creator.h"
#include "tests/plugin/setup_document/xml_fixture.h"

#include <functional>

namespace Meridax::Utils::Dcom::Utils {
namespace {

using Serialization::Node;

class NodeCalls : public Tests::XmlFixture {
protected:
    struct Row {
        const char* operation;
        std::function<void(Node&)> call;
        Calls expected;
    };

    // An element with one child "a" and one attribute "b".
    NodeCalls() {
        element->children.push_back(fakeNode(L"a"));
        element->attributes.push_back(fakeNode(L"b"));
    }

    void expectCalls(const std::vector<Row>& rows) {
        for (const Row& row : rows) {
            row.call(*setupNode());
            EXPECT_EQ(calls(), row.expected) << row.operation;
        }
    }

    // A node over another element, "x", of the same document.
    NodePtr otherNode() {
        return std::make_shared<MeridaxDCOMNode>(hostDocument(), hostNode(fakeNode(L"x")));
    }
};

TEST_F(NodeCalls, OfLookingUp) {
    expectCalls({
        {"findChild", [](Node& n) { EXPECT_NE(n.findChild("a"), nullptr); }, {L"FindChild(a)"}},
        {"findChild, none",
         [](Node& n) { EXPECT_EQ(n.findChild("z"), nullptr); },
         {L"FindChild(z)"}},
        {"findAttribute",
         [](Node& n) { EXPECT_NE(n.findAttribute("b"), nullptr); },
         {L"FindAttribute(b)"}},
        {"findAttribute, none",
         [](Node& n) { EXPECT_EQ(n.findAttribute("z"), nullptr); },
         {L"FindAttribute(z)"}},
        {"childAt",
         [](Node& n) { EXPECT_NE(n.childAt(0), nullptr); },
         {L"GetChildCount()", L"GetChild(0)"}},
        {"childAt, the count",
         [](Node& n) { EXPECT_EQ(n.childAt(1), nullptr); },
         {L"GetChildCount()"}},
        {"attributeAt",
         [](Node& n) { EXPECT_NE(n.attributeAt(0), nullptr); },
         {L"GetAttributeCount()", L"GetAttribute(0)"}},
        {"attributeAt, the count",
         [](Node& n) { EXPECT_EQ(n.attributeAt(1), nullptr); },
         {L"GetAttributeCount()"}},
        {"childCount", [](Node& n) { EXPECT_EQ(n.childCount(), 1); }, {L"GetChildCount()"}},
        {"attributeCount",
         [](Node& n) { EXPECT_EQ(n.attributeCount(), 1); },
         {L"GetAttributeCount()"}},
        {"getName", [](Node& n) { EXPECT_EQ(n.getName(), "setup"); }, {L"GetName()"}},
        {"getValue", [](Node& n) { EXPECT_EQ(n.getValue(), ""); }, {L"GetValue()"}},
        {"getParent", [](Node& n) { EXPECT_EQ(n.getParent(), nullptr); }, {L"GetParent()"}},
    });
}

TEST_F(NodeCalls, OfChildrenByDirection) {
    expectCalls({
        {"getChild, reading", [](Node& n) { n.getChild("a"); }, {L"GetMode()", L"FindChild(a)"}},
        {"readChild", [](Node& n) { n.readChild("a"); }, {L"FindChild(a)"}},
        {"readChild, none",
         [](Node& n) { n.readChild("z"); },
         {L"FindChild(z)", L"CreateNode(z, )"}},
        {"getOrAddChild", [](Node& n) { n.getOrAddChild("a"); }, {L"FindChild(a)"}},
        {"getOrAddChild, none",
         [](Node& n) { n.getOrAddChild("y"); },
         {L"FindChild(y)", L"CreateNode(y, )", L"AppendChild(y)"}},
    });
    document->mode = 1;
    expectCalls({{"getChild, writing",
                  [](Node& n) { n.getChild("a"); },
                  {L"GetMode()", L"CreateNode(a, )", L"AppendChild(a)"}}});
    document->mode = -1;  // anything but 1 is reading
    expectCalls({{"getChild", [](Node& n) { n.getChild("a"); }, {L"GetMode()", L"FindChild(a)"}}});
}

TEST_F(NodeCalls, OfMakingAndAttaching) {
    const NodePtr other = otherNode();
    expectCalls({
        {"createNode", [](Node& n) { n.createNode("n", "v"); }, {L"CreateNode(n, v)"}},
        {"assign", [&](Node& n) { n.assign(other); }, {}},
        {"assignNew", [](Node& n) { n.assignNew("n", "v"); }, {L"CreateNode(n, v)"}},
        {"setValue", [](Node& n) { n.setValue("v"); }, {L"SetValue(v)"}},
        {"appendChild", [&](Node& n) { n.appendChild(other); }, {L"AppendChild(x)"}},
        {"addChild", [](Node& n) { n.addChild("n"); }, {L"CreateNode(n, )", L"AppendChild(n)"}},
        {"clone", [](Node& n) { n.clone(); }, {L"Clone()"}},
        {"appendAttribute", [&](Node& n) { n.appendAttribute(other); }, {L"AppendAttribute(x)"}},
        {"addAttribute",
         [](Node& n) { n.addAttribute("n", "v"); },
         {L"CreateNode(n, v)", L"AppendAttribute(n)"}},
    });
}

TEST_F(NodeCalls, OfRemoving) {
    const auto remove = [this](void (Node::*operation)(NodePtr&)) {
        return [this, operation](Node& n) {
            NodePtr other = otherNode();
            (n.*operation)(other);
            EXPECT_EQ(other, nullptr);
        };
    };
    expectCalls({
        {"removeChild", remove(&Node::removeChild), {L"RemoveChild(x)"}},
        {"removeAttribute", remove(&Node::removeAttribute), {L"RemoveAttribute(x)"}},
        {"removeAttributeAt, none", [](Node& n) { n.removeAttributeAt(7); }, {L"GetAttribute(7)"}},
        {"removeAttributeAt",
         [](Node& n) { n.removeAttributeAt(0); },
         {L"GetAttribute(0)", L"RemoveAttribute(b)"}},
        {"removeAttributeNamed, none",
         [](Node& n) { n.removeAttributeNamed("z"); },
         {L"FindChild(z)"}},
        {"clearChildren", [](Node& n) { n.clearChildren(); }, {L"ClearChildren()"}},
        {"clearAttributes", [](Node& n) { n.clearAttributes(); }, {L"ClearAttributes()"}},
    });
}

TEST_F(NodeCalls, OfTheThreeRemovalsThatLookLikeSlips) {
    expectCalls({
        {"removeAttributeNamed",
         [](Node& n) { n.removeAttributeNamed("a"); },
         {L"FindChild(a)", L"RemoveAttribute(a)"}},
        {"removeChildNamed",
         [](Node& n) { n.removeChildNamed("a"); },
         {L"FindChild(a)", L"RemoveAttribute(a)"}},
        {"removeChildAt",
         [](Node& n) { n.removeChildAt(0); },
         {L"GetAttribute(0)", L"RemoveAttribute(b)"}},
    });
    EXPECT_EQ(element->children.size(), 1U);
    EXPECT_TRUE(element->attributes.empty());
}

TEST_F(NodeCalls, OfDirectionAndValues) {
    std::string text;
    expectCalls({
        {"setWriting", [](Node& n) { n.setWriting(true); }, {L"SetMode(true)"}},
        {"isWriting", [](Node& n) { EXPECT_TRUE(n.isWriting()); }, {L"GetMode()"}},
        {"setWriting, false", [](Node& n) { n.setWriting(false); }, {L"SetMode(false)"}},
        {"isWriting, no", [](Node& n) { EXPECT_FALSE(n.isWriting()); }, {L"GetMode()"}},
        {"isValid", [](Node& n) { EXPECT_TRUE(n.isValid()); }, {}},
        {"writeValue",
         [](Node& n) { n.writeValue("k", "v", "d"); },
         {L"WriteValue(setup, k, v, d)"}},
        {"readValue",
         [&](Node& n) { n.readValue("k", text, "d"); },
         {L"ReadValue(setup, k, s, d)"}},
        {"close", [](Node& n) { n.close(); }, {}},
    });
    EXPECT_EQ(text, "v");
}

TEST_F(NodeCalls, OfTheQuestionForEmptinessEndAtTheFirstThingFound) {
    const auto expectEmpty = [](bool empty) {
        return [empty](Node& n) { EXPECT_EQ(n.isEmpty(), empty); };
    };
    expectCalls({{"a child", expectEmpty(false), {L"GetChildCount()"}}});
    element->children.clear();
    expectCalls(
        {{"an attribute", expectEmpty(false), {L"GetChildCount()", L"GetAttributeCount()"}}});
    element->attributes.clear();
    const Calls all = {L"GetChildCount()", L"GetAttributeCount()", L"GetValue()"};
    expectCalls({{"nothing", expectEmpty(true), all}});
    element->value = L"v";
    expectCalls({{"a value", expectEmpty(false), all}});
}

}  // namespace
}  // namespace Meridax::Utils::Dcom::Utils
