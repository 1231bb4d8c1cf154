// What a node raises when there is no memory left for a text on its way to or from the host.

#include "tests/support/exhausted_memory.h"

#include "plugin/setup_document/meridax_dcom_node.h"
#include "plugin/setup_document/node_import.h"
#include "tests/plugin/setup_document/unused_node.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>

namespace Meridax::Utils::Dcom::Utils {
namespace {

using Host::Ref;
using Tests::statusWithMemoryFor;

using NodeRef = Ref<Host::IHostXmlNode>;

// An element that takes no memory of its own. It finds nothing and gives its text once.
class QuietElement final : public Host::IHostXmlNode {
public:
    void retain() noexcept override {}
    void release() noexcept override {}
    void* offer(const Host::Guid&) override { return nullptr; }

    void SetValue(const std::wstring&) override {}
    void AppendChild(IHostXmlNode&) override {}
    void RemoveChild(IHostXmlNode&) override {}
    void ClearChildren() override {}
    NodeRef FindChild(const std::wstring&) override { return {}; }
    NodeRef GetChild(std::int32_t) override { return {}; }
    std::int32_t GetChildCount() override { return 0; }
    NodeRef Clone() override { return {}; }
    NodeRef GetParent() override { return {}; }
    void AppendAttribute(IHostXmlNode&) override {}
    void RemoveAttribute(IHostXmlNode&) override {}
    NodeRef FindAttribute(const std::wstring&) override { return {}; }
    NodeRef GetAttribute(std::int32_t) override { return {}; }
    std::int32_t GetAttributeCount() override { return 0; }
    void ClearAttributes() override {}
    std::wstring GetName() override { return std::move(text); }
    std::wstring GetValue() override { return std::move(text); }

    std::wstring text;
};

// A document of the same kind.
class QuietDocument final : public Host::IHostXmlDocument {
public:
    explicit QuietDocument(QuietElement& element) : element_(element) {}

    void retain() noexcept override {}
    void release() noexcept override {}
    void* offer(const Host::Guid&) override { return nullptr; }

    NodeRef GetRootNode() override { return NodeRef::share(&element_); }
    void SetRootNode(Host::IHostXmlNode&) override {}
    NodeRef CreateNode(const std::wstring&, const std::wstring&) override {
        return NodeRef::share(&element_);
    }
    void WriteValue(Host::IHostXmlNode&, const std::wstring&, const std::wstring&,
                    const std::wstring&) override {}
    void ReadValue(Host::IHostXmlNode&, const std::wstring&, std::wstring& value,
                   const std::wstring&) override {
        value = std::move(element_.text);
    }
    std::int32_t GetMode() override { return 0; }
    void SetMode(bool) override {}

private:
    QuietElement& element_;
};

class ExhaustedNode : public testing::Test {
protected:
    // Every text that does not fit is one that the host's call fails for.
    void expectOutOfMemory(const char* operation, const std::function<void()>& call) {
        std::size_t granted = 0;
        for (;; ++granted) {
            element.text = std::wstring(100, L't');
            const std::uint32_t status = statusWithMemoryFor(granted, call);
            if (status == Tests::Succeeded) break;
            EXPECT_EQ(status, 0x8007000EU) << operation << " after " << granted;
            ASSERT_LT(granted, 1000U) << operation;
        }
        EXPECT_GT(granted, 0U) << operation << " takes no memory at all";
    }

    QuietElement element;
    QuietDocument document{element};
    MeridaxDCOMNode node{Ref<Host::IHostXmlDocument>::share(&document), NodeRef::share(&element)};
    const std::string text = std::string(100, 'x');
};

TEST_F(ExhaustedNode, FailsWithTheStatusOfExhaustedMemory) {
    expectOutOfMemory("writeValue", [&] { node.writeValue(text, text, text); });
    expectOutOfMemory("findChild", [&] { node.findChild(text); });
    expectOutOfMemory("findAttribute", [&] { node.findAttribute(text); });
    expectOutOfMemory("removeChildNamed", [&] { node.removeChildNamed(text); });
    expectOutOfMemory("addAttribute", [&] { node.addAttribute(text, text); });
    expectOutOfMemory("getName", [&] { node.getName(); });
    expectOutOfMemory("getValue", [&] { node.getValue(); });
    std::string value;
    expectOutOfMemory("readValue", [&] { node.readValue(text, value, text); });
    EXPECT_EQ(value, std::string(100, 't'));
}

// A tree of one node whose texts are made beforehand.
class ReadyNode final : public Tests::UnusedNode {
public:
    Text getName() const override { return std::move(name_); }
    Text getValue() const override { return std::move(value_); }
    std::int32_t childCount() const override { return 0; }
    std::int32_t attributeCount() const override { return 0; }

private:
    mutable Text name_ = Text(100, 'n');
    mutable Text value_ = Text(100, 'v');
};

TEST_F(ExhaustedNode, FailsLikewiseToImportATree) {
    const NodePtr tree = std::make_shared<ReadyNode>();
    EXPECT_EQ(statusWithMemoryFor(0, [&] { importNode(document, tree); }), 0x8007000EU);
}

}  // namespace
}  // namespace Meridax::Utils::Dcom::Utils
