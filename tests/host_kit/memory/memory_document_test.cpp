#include "host_kit/memory/memory_host.h"

#include <gtest/gtest.h>

namespace Rotavue::HostKit {
namespace {

using Host::Ref;

class SetupDocument : public testing::Test {
protected:
    std::wstring read(const std::wstring& key, const std::wstring& fallback) {
        std::wstring text = L"handed in";
        document_->ReadValue(*node_, key, text, fallback);
        return text;
    }

    Ref<Host::IHostXmlNode> make(const std::wstring& name) {
        return document_->CreateNode(name, L"value of " + name);
    }

    MemoryHost host_;
    Ref<Host::IHostXmlDocument> document_ = host_.document();
    Ref<Host::IHostXmlNode> node_ = host_.node();
};

TEST_F(SetupDocument, StoresTextsInTheDescription) {
    document_->WriteValue(*node_, L"k", L"v", L"d");
    EXPECT_EQ(host_.description.setup.at(L"k"), L"v");
    EXPECT_EQ(read(L"k", L"d"), L"v");
    host_.description.setup[L"k"] = L"w";
    EXPECT_EQ(read(L"k", L"d"), L"w");
}

TEST_F(SetupDocument, RemovesAKeyWhoseTextEqualsTheDefault) {
    document_->WriteValue(*node_, L"k", L"v", L"d");
    document_->WriteValue(*node_, L"k", L"d", L"d");
    EXPECT_TRUE(host_.description.setup.empty());
    EXPECT_EQ(read(L"k", L"d"), L"d");
}

TEST_F(SetupDocument, StartsAsOneThatIsRead) {
    EXPECT_EQ(document_->GetMode(), 0);
    document_->SetMode(true);
    EXPECT_EQ(document_->GetMode(), 1);
    EXPECT_EQ(document_->GetRootNode(), node_);
}

TEST_F(SetupDocument, OfAFactoryIsEmptyAndOnItsOwn) {
    const auto made = host_.app()->GetXmlFactory()->CreateDocument(true);
    EXPECT_EQ(made->GetMode(), 1);
    EXPECT_FALSE(made->GetRootNode());
    const auto root = made->CreateNode(L"root", L"");
    made->SetRootNode(*root);
    EXPECT_EQ(made->GetRootNode(), root);
    made->WriteValue(*root, L"k", L"v", L"");
    EXPECT_TRUE(host_.description.setup.empty());
}

TEST_F(SetupDocument, NodesHaveChildrenInTheirOrder) {
    const auto a = make(L"a");
    const auto b = make(L"b");
    node_->AppendChild(*a);
    node_->AppendChild(*b);
    node_->AppendChild(*make(L"a"));
    EXPECT_EQ(node_->GetChildCount(), 3);
    EXPECT_EQ(node_->FindChild(L"a"), a);
    EXPECT_EQ(node_->GetChild(1), b);
    EXPECT_EQ(a->GetParent(), node_);
    EXPECT_FALSE(node_->FindChild(L"c"));
    EXPECT_FALSE(node_->GetChild(3));
    EXPECT_FALSE(node_->GetChild(-1));
    node_->RemoveChild(*a);
    EXPECT_FALSE(a->GetParent());
    EXPECT_EQ(node_->GetChildCount(), 2);
    node_->ClearChildren();
    EXPECT_EQ(node_->GetChildCount(), 0);
    EXPECT_FALSE(b->GetParent());
}

TEST_F(SetupDocument, NodesHaveAttributesBesideTheirChildren) {
    const auto a = make(L"a");
    node_->AppendAttribute(*a);
    EXPECT_EQ(node_->GetAttributeCount(), 1);
    EXPECT_EQ(node_->GetChildCount(), 0);
    EXPECT_EQ(node_->FindAttribute(L"a"), a);
    EXPECT_EQ(node_->GetAttribute(0), a);
    EXPECT_EQ(a->GetName() + a->GetValue(), L"avalue of a");
    a->SetValue(L"new");
    EXPECT_EQ(node_->GetAttribute(0)->GetValue(), L"new");
    node_->RemoveAttribute(*a);
    node_->AppendAttribute(*a);
    node_->ClearAttributes();
    EXPECT_EQ(node_->GetAttributeCount(), 0);
}

TEST_F(SetupDocument, NodesBelongToOneParentAtMost) {
    const auto a = make(L"a");
    const auto b = make(L"b");
    node_->AppendChild(*a);
    b->AppendChild(*a);
    EXPECT_EQ(node_->GetChildCount(), 0);
    EXPECT_EQ(a->GetParent(), b);
}

TEST_F(SetupDocument, NodesAreNeverBelowThemselves) {
    const auto a = make(L"a");
    const auto b = make(L"b");
    a->AppendChild(*b);
    EXPECT_THROW(a->AppendChild(*a), Host::HostError);
    EXPECT_THROW(b->AppendChild(*a), Host::HostError);
    EXPECT_EQ(b->GetChildCount(), 0);
}

TEST_F(SetupDocument, NodesAreCopiedWithAllThatIsBelowThem) {
    const auto a = make(L"a");
    a->AppendChild(*make(L"child"));
    a->AppendAttribute(*make(L"attribute"));
    document_->WriteValue(*a, L"k", L"v", L"");
    const auto copy = a->Clone();
    a->ClearChildren();
    EXPECT_EQ(copy->GetName(), L"a");
    EXPECT_FALSE(copy->GetParent());
    EXPECT_EQ(copy->FindChild(L"child")->GetParent(), copy);
    EXPECT_EQ(copy->GetAttributeCount(), 1);
    std::wstring text;
    document_->ReadValue(*copy, L"k", text, L"");
    EXPECT_EQ(text, L"v");
}

TEST_F(SetupDocument, NodesEndWithTheLastThatHoldsThem) {
    auto a = make(L"a");
    a->AppendChild(*make(L"child"));
    const auto child = a->GetChild(0);
    a = nullptr;
    EXPECT_FALSE(child->GetParent());
    EXPECT_EQ(host_.ledger.held(),
              (std::vector<std::string>{"document x 1", "node x 1", "node x 1"}));
}

TEST_F(SetupDocument, CopiesOfTheSetupNodeAreOnTheirOwn) {
    host_.description.setup[L"k"] = L"v";
    const auto copy = node_->Clone();
    document_->WriteValue(*copy, L"k", L"other", L"");
    EXPECT_EQ(host_.description.setup.at(L"k"), L"v");
}

}  // namespace
}  // namespace Rotavue::HostKit
