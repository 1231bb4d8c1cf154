#include "host_kit/memory/memory_document.h"

#include <algorithm>
#include <utility>

namespace Rotavue::HostKit {

using Host::IHostXmlNode;
using Host::Ref;

MemoryNode::MemoryNode(MemoryHost& host, std::wstring name, std::wstring value)
    : PassingObject(host), name_(std::move(name)), value_(std::move(value)) {}

MemoryNode::~MemoryNode() {
    clear(children_);
    clear(attributes_);
}

std::shared_ptr<MemoryNode> MemoryNode::self() {
    return std::static_pointer_cast<MemoryNode>(shared_from_this());
}

bool MemoryNode::isBelow(const MemoryNode& other) const {
    const MemoryNode* node = this;
    while (node != nullptr && node != &other)
        node = node->parent_;
    return node != nullptr;
}

void MemoryNode::append(Nodes& nodes, IHostXmlNode& node) {
    const auto added = own<MemoryNode>(node).self();
    if (isBelow(*added)) throw Host::HostError(Host::Status::InvalidArgument);
    if (MemoryNode* before = added->parent_) {
        before->remove(before->children_, node);
        before->remove(before->attributes_, node);
    }
    nodes.push_back(added);
    added->parent_ = this;
}

void MemoryNode::remove(Nodes& nodes, IHostXmlNode& node) {
    const auto removed = own<MemoryNode>(node).self();
    if (std::erase(nodes, removed) > 0) removed->parent_ = nullptr;
}

void MemoryNode::clear(Nodes& nodes) {
    for (const auto& node : nodes)
        node->parent_ = nullptr;
    nodes.clear();
}

Ref<IHostXmlNode> MemoryNode::find(const Nodes& nodes, const std::wstring& wanted) const {
    const auto found = std::find_if(nodes.begin(), nodes.end(),
                                    [&](const auto& node) { return node->name_ == wanted; });
    return Ref<IHostXmlNode>::share(found != nodes.end() ? found->get() : nullptr);
}

Ref<IHostXmlNode> MemoryNode::at(const Nodes& nodes, std::int32_t index) const {
    const auto position = static_cast<std::uint32_t>(index);
    return Ref<IHostXmlNode>::share(position < nodes.size() ? nodes[position].get() : nullptr);
}

std::shared_ptr<MemoryNode> MemoryNode::copy() const {
    const auto result = std::make_shared<MemoryNode>(host_, name_, value_);
    result->texts() = outsideTexts_ != nullptr ? *outsideTexts_ : texts_;
    for (const auto& child : children_)
        result->append(result->children_, *child->copy());
    for (const auto& attribute : attributes_)
        result->append(result->attributes_, *attribute->copy());
    return result;
}

void MemoryNode::SetValue(const std::wstring& text) {
    call(
        operation("IHostXmlNode.SetValue"), [&] { value_ = text; }, text);
}

void MemoryNode::AppendChild(IHostXmlNode& node) {
    call(
        operation("IHostXmlNode.AppendChild"), [&] { append(children_, node); }, node);
}

void MemoryNode::RemoveChild(IHostXmlNode& node) {
    call(
        operation("IHostXmlNode.RemoveChild"), [&] { remove(children_, node); }, node);
}

void MemoryNode::ClearChildren() {
    call(operation("IHostXmlNode.ClearChildren"), [&] { clear(children_); });
}

Ref<IHostXmlNode> MemoryNode::FindChild(const std::wstring& childName) {
    return call(
        operation("IHostXmlNode.FindChild"), [&] { return find(children_, childName); }, childName);
}

Ref<IHostXmlNode> MemoryNode::GetChild(std::int32_t index) {
    return call(
        operation("IHostXmlNode.GetChild"), [&] { return at(children_, index); }, index);
}

std::int32_t MemoryNode::GetChildCount() {
    return call(operation("IHostXmlNode.GetChildCount"),
                [&] { return static_cast<std::int32_t>(children_.size()); });
}

Ref<IHostXmlNode> MemoryNode::Clone() {
    return call(operation("IHostXmlNode.Clone"),
                [&] { return Ref<IHostXmlNode>::share(copy().get()); });
}

Ref<IHostXmlNode> MemoryNode::GetParent() {
    return call(operation("IHostXmlNode.GetParent"),
                [&] { return Ref<IHostXmlNode>::share(parent_); });
}

void MemoryNode::AppendAttribute(IHostXmlNode& node) {
    call(
        operation("IHostXmlNode.AppendAttribute"), [&] { append(attributes_, node); }, node);
}

void MemoryNode::RemoveAttribute(IHostXmlNode& node) {
    call(
        operation("IHostXmlNode.RemoveAttribute"), [&] { remove(attributes_, node); }, node);
}

Ref<IHostXmlNode> MemoryNode::FindAttribute(const std::wstring& attributeName) {
    return call(
        operation("IHostXmlNode.FindAttribute"), [&] { return find(attributes_, attributeName); },
        attributeName);
}

Ref<IHostXmlNode> MemoryNode::GetAttribute(std::int32_t index) {
    return call(
        operation("IHostXmlNode.GetAttribute"), [&] { return at(attributes_, index); }, index);
}

std::int32_t MemoryNode::GetAttributeCount() {
    return call(operation("IHostXmlNode.GetAttributeCount"),
                [&] { return static_cast<std::int32_t>(attributes_.size()); });
}

void MemoryNode::ClearAttributes() {
    call(operation("IHostXmlNode.ClearAttributes"), [&] { clear(attributes_); });
}

std::wstring MemoryNode::GetName() {
    return call(operation("IHostXmlNode.GetName"), [&] { return name_; });
}

std::wstring MemoryNode::GetValue() {
    return call(operation("IHostXmlNode.GetValue"), [&] { return value_; });
}

}  // namespace Rotavue::HostKit
