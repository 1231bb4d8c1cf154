#pragma once

#include "plugin/setup_document/node.h"

#include <cstdint>
#include <stdexcept>
#include <string>

namespace Meridax::Tests {

/// A node of another class than the plug-in's own. Every operation ends the test that reaches it; a
/// double overrides those that its tests are about.
class UnusedNode : public Utils::Serialization::Node {
public:
    using NodePtr = Utils::Serialization::NodePtr;
    using Text = std::string;

    void close() override { refuse(); }
    NodePtr getChild(const Text&) override { refuse(); }
    NodePtr readChild(const Text&) override { refuse(); }
    NodePtr createNode(Text, Text) override { refuse(); }
    void assign(NodePtr) override { refuse(); }
    void assignNew(Text, Text) override { refuse(); }
    void setValue(Text) override { refuse(); }
    NodePtr appendChild(const NodePtr&) override { refuse(); }
    NodePtr addChild(Text) override { refuse(); }
    NodePtr clone() override { refuse(); }
    NodePtr appendAttribute(const NodePtr&) override { refuse(); }
    void clearChildren() override { refuse(); }
    void clearAttributes() override { refuse(); }
    NodePtr findChild(const Text&) const override { refuse(); }
    NodePtr findAttribute(const Text&) const override { refuse(); }
    NodePtr attributeAt(std::uint64_t) const override { refuse(); }
    NodePtr childAt(std::uint64_t) const override { refuse(); }
    std::int32_t attributeCount() const override { refuse(); }
    std::int32_t childCount() const override { refuse(); }
    void removeAttribute(NodePtr&) override { refuse(); }
    void removeAttributeAt(std::uint64_t) override { refuse(); }
    void removeAttributeNamed(const Text&) override { refuse(); }
    void removeChild(NodePtr&) override { refuse(); }
    void removeChildAt(std::uint64_t) override { refuse(); }
    void removeChildNamed(const Text&) override { refuse(); }
    Text getName() const override { refuse(); }
    Text getValue() const override { refuse(); }
    NodePtr getParent() const override { refuse(); }
    void setWriting(bool) override { refuse(); }
    bool isWriting() const override { refuse(); }
    bool isValid() const override { refuse(); }
    bool isEmpty() const override { refuse(); }
    void writeValue(const Text&, const Text&, const Text&) override { refuse(); }
    void readValue(const Text&, Text&, const Text&) const override { refuse(); }
    void addAttribute(const Text&, const Text&) override { refuse(); }
    NodePtr getOrAddChild(const Text&) override { refuse(); }

private:
    [[noreturn]] static void refuse() { throw std::logic_error("not part of this test"); }
};

}  // namespace Meridax::Tests
