#pragma once

#include "plugin/setup_document/meridax_dcom_node.h"
#include "tests/plugin/setup_document/fake_xml.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace Meridax::Tests {

/// A fake document with one element, "setup", and nodes over them.
class XmlFixture : public testing::Test {
protected:
    using DcomNode = Utils::Dcom::Utils::MeridaxDCOMNode;
    using NodePtr = Utils::Serialization::NodePtr;
    using Calls = std::vector<std::wstring>;

    ~XmlFixture() override {
        element = nullptr;
        document = nullptr;
        EXPECT_EQ(journal.alive, 0) << "objects of the host that something still holds";
    }

    Host::Ref<FakeXmlNode> fakeNode(const std::wstring& name, const std::wstring& value = {}) {
        return Host::Ref<FakeXmlNode>::share(new FakeXmlNode(journal, name, value));
    }

    Host::Ref<Host::IHostXmlDocument> hostDocument() const {
        return Host::Ref<Host::IHostXmlDocument>::share(document.get());
    }

    static Host::Ref<Host::IHostXmlNode> hostNode(const Host::Ref<FakeXmlNode>& node) {
        return Host::Ref<Host::IHostXmlNode>::share(node.get());
    }

    /// A node over the document and its element, as the bridge makes it.
    std::shared_ptr<DcomNode> setupNode() {
        return std::make_shared<DcomNode>(hostDocument(), hostNode(element));
    }

    /// The calls since the last time that this was asked.
    Calls calls() { return std::exchange(journal.calls, {}); }

    XmlJournal journal;
    Host::Ref<FakeXmlDocument> document =
        Host::Ref<FakeXmlDocument>::share(new FakeXmlDocument(journal));
    Host::Ref<FakeXmlNode> element = fakeNode(L"setup");
};

}  // namespace Meridax::Tests
