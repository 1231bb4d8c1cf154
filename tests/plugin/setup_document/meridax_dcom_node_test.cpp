#include "plugin/setup_document/meridax_dcom_node.h"

#include "plugin/setup_document/meridax_dcom_node_creator.h"
#include "plugin/setup_document/string_helper.h"
#include "plugin/setup_document/xml_exception.h"
#include "tests/plugin/setup_document/unused_node.h"
#include "tests/plugin/setup_document/xml_fixture.h"

namespace Meridax::Utils::Dcom::Utils {
namespace {

using Serialization::Node;
using Serialization::XmlException;

class SetupNode : public Tests::XmlFixture {
protected:
    Host::Ref<Host::IHostApp> app() {
        return Host::Ref<Host::IHostApp>::share(new Tests::FakeXmlApp(journal));
    }

    static std::uint32_t statusOf(const std::function<void()>& call) {
        try {
            call();
        } catch (const Host::HostError& error) {
            return error.status;
        }
        return 0;
    }
};

TEST_F(SetupNode, GivesADummyForAMissingChildWhileReading) {
    const auto node = setupNode();
    const NodePtr child = node->getChild("axes");
    EXPECT_TRUE(child->isDummy());
    EXPECT_EQ(child->getName(), "axes");
    EXPECT_EQ(child->getValue(), "");
    EXPECT_EQ(node->childCount(), 0);
    EXPECT_EQ(child->getParent(), nullptr);
}

TEST_F(SetupNode, LetsALoadWalkThroughABranchOfDummies) {
    const NodePtr leaf = setupNode()->getChild("a")->getChild("b")->getChild("c");
    EXPECT_TRUE(leaf->isDummy());
    std::int32_t value = 0;
    leaf->readWrite("missing", value, 7);
    EXPECT_EQ(value, 7);
}

TEST_F(SetupNode, AddsAChildWhileWriting) {
    const auto node = setupNode();
    node->setWriting(true);
    const NodePtr child = node->getChild("axes");
    EXPECT_FALSE(child->isDummy());
    EXPECT_EQ(node->childCount(), 1);
    EXPECT_EQ(child->getParent()->getName(), "setup");
    EXPECT_TRUE(child->isWriting()) << "the direction is the document's";
}

TEST_F(SetupNode, CopiesADummyAsADummy) {
    const auto node = setupNode();
    EXPECT_FALSE(node->clone()->isDummy());
    EXPECT_TRUE(node->readChild("missing")->clone()->isDummy());
}

TEST_F(SetupNode, HandsOutCreatorsOverTheSameDocument) {
    const auto node = setupNode();
    EXPECT_EQ(dynamic_cast<MeridaxDCOMNodeCreator*>(node.get()), nullptr);
    const NodePtr child = node->addChild("a");
    EXPECT_NE(dynamic_cast<MeridaxDCOMNodeCreator*>(child.get()), nullptr);
    EXPECT_NE(dynamic_cast<MeridaxDCOMNode*>(child.get()), nullptr);
    EXPECT_TRUE(child->isValid());
}

TEST_F(SetupNode, StandsForTheElementOfAnotherAfterAssigning) {
    const auto node = setupNode();
    const NodePtr other = node->createNode("other", "v");
    node->assign(other);
    EXPECT_EQ(node->getName(), "other");
    EXPECT_EQ(other->getName(), "other");
    node->assignNew("fresh", "w");
    EXPECT_EQ(node->getName(), "fresh");
    EXPECT_EQ(node->getValue(), "w");
}

TEST_F(SetupNode, LetsGoOfItsElementBeforeItTakesAnother) {
    const auto node = setupNode();
    const NodePtr other = node->createNode("other", "v");
    node->assignNew("own", "");
    node->assign(other);
    EXPECT_EQ(journal.ended, (Calls{L"own"}));
    // What it lets go of is what it would take.
    node->assign(node);
    EXPECT_FALSE(node->isValid());
    EXPECT_TRUE(other->isValid());
    node->assignNew("again", "w");
    EXPECT_EQ(node->getValue(), "w") << "the document is still there";
}

TEST_F(SetupNode, MayStandForNothingLikeTheNodeThatItIsAssigned) {
    const auto node = setupNode();
    const auto closed = setupNode();
    closed->close();
    node->assign(closed);
    EXPECT_FALSE(node->isValid());
    EXPECT_NO_THROW(node->isWriting());
}

TEST_F(SetupNode, RefusesToStandForANodeOfAnotherClass) {
    const auto node = setupNode();
    for (const NodePtr& other : {NodePtr(), NodePtr(std::make_shared<Tests::UnusedNode>())}) {
        try {
            node->assign(other);
            FAIL() << "no exception";
        } catch (const XmlException& error) {
            EXPECT_EQ(error.code, 7);
        }
    }
    EXPECT_EQ(node->getName(), "setup");
}

TEST_F(SetupNode, EmptiesThePointerToAForeignNodeThatItCannotRemove) {
    const auto node = setupNode();
    NodePtr child = std::make_shared<Tests::UnusedNode>();
    NodePtr attribute = std::make_shared<Tests::UnusedNode>();
    node->removeChild(child);
    node->removeAttribute(attribute);
    EXPECT_EQ(child, nullptr);
    EXPECT_EQ(attribute, nullptr);
    EXPECT_TRUE(calls().empty());
}

TEST_F(SetupNode, CannotRemoveANodeOfItsOwnClassThatHasNoElement) {
    const auto node = setupNode();
    const NodePtr closed = setupNode();
    closed->close();
    NodePtr argument = closed;
    EXPECT_EQ(statusOf([&] { node->removeChild(argument); }), 0x80004003U);
    EXPECT_EQ(statusOf([&] { node->removeAttribute(argument); }), 0x80004003U);
    EXPECT_EQ(argument, closed) << "the caller keeps what was not removed";
    EXPECT_TRUE(calls().empty());
}

TEST_F(SetupNode, RemovesAChildForGood) {
    const auto node = setupNode();
    NodePtr child = node->addChild("a");
    node->removeChild(child);
    EXPECT_EQ(child, nullptr);
    EXPECT_EQ(node->childCount(), 0);
}

TEST_F(SetupNode, GivesTheTextSThatAHostLeavesAlone) {
    document->leavesTextAlone = true;
    std::string text = "before";
    setupNode()->readValue("key", text, "default");
    EXPECT_EQ(text, "s");
}

TEST_F(SetupNode, CarriesTextsInTheFixedPage) {
    const std::wstring crossed = StringHelper::textToHost("\xC2\xB5m");
    const auto node = setupNode();
    node->setValue("\xC2\xB5m");
    EXPECT_EQ(element->value, crossed);
    EXPECT_EQ(node->getValue(), "\xC2\xB5m");
    node->writeValue("unit", "\xC2\xB5m", "");
    EXPECT_EQ(document->entries[L"unit"], crossed);
}

TEST_F(SetupNode, LetsGoOfItsObjectsWhenClosed) {
    const auto node = setupNode();
    EXPECT_EQ(element->references(), 2);
    EXPECT_EQ(document->references(), 2);
    node->close();
    EXPECT_EQ(element->references(), 1);
    EXPECT_EQ(document->references(), 1);
}

TEST_F(SetupNode, KeepsTheOneObjectItHasWhenClosedWithoutTheOther) {
    DcomNode half(hostDocument(), Host::Ref<Host::IHostXmlNode>());
    half.close();
    EXPECT_NO_THROW(half.isWriting());
}

TEST_F(SetupNode, ReleasesTheInnerNodeBeforeTheDocument) {
    for (const bool closes : {true, false}) {
        auto node = std::make_shared<DcomNode>(
            Host::Ref<Host::IHostXmlDocument>::share(new Tests::FakeXmlDocument(journal)),
            hostNode(fakeNode(L"inner")));
        if (closes) node->close();
        node.reset();
        EXPECT_EQ(journal.ended, (Calls{L"inner", L"the document"}));
        journal.ended.clear();
    }
}

TEST_F(SetupNode, HandsOutNodesThatOutliveIt) {
    auto node = setupNode();
    const NodePtr child = node->addChild("a");
    node->close();
    node.reset();
    EXPECT_EQ(child->getName(), "a");
    EXPECT_EQ(child->getParent()->getName(), "setup");
}

TEST_F(SetupNode, MakesADocumentOfItsOwnFromANameAndAValue) {
    const DcomNode node("root", "v", app(), true);
    EXPECT_EQ(calls(), (Calls{L"GetXmlFactory()", L"CreateDocument(true)", L"CreateNode(root, v)",
                              L"SetRootNode(root)", L"SetMode(true)"}));
    EXPECT_EQ(node.getName(), "root");
    EXPECT_TRUE(node.isWriting());
    calls();
    const DcomNode read("root", "v", app(), false);
    EXPECT_EQ(calls(), (Calls{L"GetXmlFactory()", L"CreateDocument(false)", L"CreateNode(root, v)",
                              L"SetRootNode(root)", L"SetMode(false)"}));
    EXPECT_FALSE(read.isWriting());
}

TEST_F(SetupNode, StandsForTheRootOfADocument) {
    document->root = element;
    const DcomNode node(hostDocument(), NodePtr());
    EXPECT_EQ(calls(), (Calls{L"GetRootNode()"}));
    EXPECT_EQ(node.getName(), "setup");
}

TEST_F(SetupNode, RaisesTheFailureOfAHostCallAsItIs) {
    journal.failing = L"AppendChild";
    try {
        setupNode()->addChild("a");
        FAIL() << "no exception";
    } catch (const Host::HostError& error) {
        EXPECT_EQ(error.status, 0x80004005U);
        EXPECT_EQ(error.interfaceId, Host::IHostXmlNode::Identifier);
    }
    EXPECT_EQ(element->references(), 1);
    journal.failing = L"ReadValue";
    std::string text = "before";
    EXPECT_EQ(statusOf([&] { setupNode()->readValue("k", text, "d"); }), 0x80004005U);
    EXPECT_EQ(text, "before");
}

TEST_F(SetupNode, RaisesInvalidPointerWhereTheHostMustGiveAnObject) {
    const auto node = setupNode();
    journal.nulls = {L"CreateNode", L"Clone"};
    EXPECT_EQ(statusOf([&] { node->createNode("n", "v"); }), 0x80004003U);
    EXPECT_EQ(statusOf([&] { node->assignNew("n", "v"); }), 0x80004003U);
    EXPECT_EQ(statusOf([&] { node->addChild("n"); }), 0x80004003U);
    EXPECT_EQ(statusOf([&] { node->readChild("n"); }), 0x80004003U);
    EXPECT_EQ(statusOf([&] { node->addAttribute("n", "v"); }), 0x80004003U);
    EXPECT_EQ(statusOf([&] { node->clone(); }), 0x80004003U);
    EXPECT_EQ(statusOf([&] { node->appendChild(nullptr); }), 0x80004003U);
    EXPECT_EQ(statusOf([&] { node->appendAttribute(nullptr); }), 0x80004003U);
    EXPECT_EQ(node->getName(), "setup");
}

TEST_F(SetupNode, RaisesInvalidPointerForANewDocumentWithoutItsMakers) {
    EXPECT_EQ(statusOf([] { DcomNode("n", "v", nullptr, true); }), 0x80004003U);
    EXPECT_EQ(statusOf([] { DcomNode({}, NodePtr()); }), 0x80004003U);
    for (const wchar_t* maker : {L"GetXmlFactory", L"CreateDocument", L"CreateNode"}) {
        journal.nulls = {maker};
        EXPECT_EQ(statusOf([&] { DcomNode("n", "v", app(), true); }), 0x80004003U) << maker;
    }
}

TEST_F(SetupNode, TakesANullFromALookUpForAnEmptyPointer) {
    element->children.push_back(fakeNode(L"a"));
    element->attributes.push_back(fakeNode(L"b"));
    journal.nulls = {L"FindChild", L"FindAttribute", L"GetChild", L"GetAttribute"};
    const auto node = setupNode();
    EXPECT_EQ(node->findChild("a"), nullptr);
    EXPECT_EQ(node->findAttribute("b"), nullptr);
    EXPECT_EQ(node->childAt(0), nullptr);
    EXPECT_EQ(node->attributeAt(0), nullptr);
    EXPECT_NO_THROW(node->removeAttributeAt(0));
    EXPECT_EQ(element->attributes.size(), 1U);
}

}  // namespace
}  // namespace Meridax::Utils::Dcom::Utils
