#include "tests/plugin/setup_document/fake_xml.h"

#include "plugin/framework/host/status.h"

#include <algorithm>
#include <utility>

namespace Meridax::Tests {
namespace {

using Host::IHostXmlDocument;
using Host::IHostXmlNode;
using Host::Ref;

using Nodes = std::vector<Ref<FakeXmlNode>>;

FakeXmlNode& own(IHostXmlNode& node) {
    return static_cast<FakeXmlNode&>(node);
}

void removeFrom(Nodes& nodes, const IHostXmlNode& node) {
    std::erase_if(nodes, [&](const Ref<FakeXmlNode>& each) { return each.get() == &node; });
}

class FakeXmlFactory final : public CountedFake<Host::IHostXmlFactory> {
public:
    using CountedFake::CountedFake;

    Ref<IHostXmlDocument> CreateDocument(bool write) override {
        note(L"CreateDocument", write ? L"true" : L"false");
        if (journal_.answersNull(L"CreateDocument")) return {};
        return Ref<IHostXmlDocument>::share(new FakeXmlDocument(journal_));
    }
};

}  // namespace

void XmlJournal::note(const Host::Guid& interfaceId, const std::wstring& operation,
                      const std::wstring& arguments) {
    calls.push_back(operation + L"(" + arguments + L")");
    if (operation == failing) throw Host::HostError(Host::Status::Unspecified, interfaceId);
}

// A deep tree ends level by level and not by a call inside a call.
FakeXmlNode::~FakeXmlNode() {
    journal_.ended.push_back(name);
    Nodes pending = std::move(children);
    while (!pending.empty()) {
        const Ref<FakeXmlNode> last = std::move(pending.back());
        pending.pop_back();
        if (last->references() > 1) continue;
        std::ranges::move(last->children, std::back_inserter(pending));
        last->children.clear();
    }
}

FakeXmlNode::Node FakeXmlNode::found(const Nodes& nodes, const std::wstring& wanted,
                                     const std::wstring& operation) const {
    note(operation, wanted);
    if (journal_.answersNull(operation)) return {};
    const auto match =
        std::ranges::find(nodes, wanted, [](const auto& node) { return node->name; });
    return match == nodes.end() ? Node() : Node::share(match->get());
}

FakeXmlNode::Node FakeXmlNode::at(const Nodes& nodes, std::int32_t index,
                                  const std::wstring& operation) const {
    note(operation, std::to_wstring(index));
    if (journal_.answersNull(operation)) return {};
    const auto place = static_cast<std::size_t>(index);
    return place < nodes.size() ? Node::share(nodes[place].get()) : Node();
}

void FakeXmlNode::SetValue(const std::wstring& text) {
    note(L"SetValue", text);
    value = text;
}

void FakeXmlNode::AppendChild(IHostXmlNode& node) {
    note(L"AppendChild", own(node).name);
    own(node).parent = this;
    children.push_back(Ref<FakeXmlNode>::share(&own(node)));
}

void FakeXmlNode::RemoveChild(IHostXmlNode& node) {
    note(L"RemoveChild", own(node).name);
    removeFrom(children, node);
}

void FakeXmlNode::ClearChildren() {
    note(L"ClearChildren");
    children.clear();
}

FakeXmlNode::Node FakeXmlNode::FindChild(const std::wstring& wanted) {
    return found(children, wanted, L"FindChild");
}

FakeXmlNode::Node FakeXmlNode::GetChild(std::int32_t index) {
    return at(children, index, L"GetChild");
}

std::int32_t FakeXmlNode::GetChildCount() {
    note(L"GetChildCount");
    return static_cast<std::int32_t>(children.size());
}

FakeXmlNode::Node FakeXmlNode::Clone() {
    note(L"Clone");
    if (journal_.answersNull(L"Clone")) return {};
    return Node::share(new FakeXmlNode(journal_, name, value));
}

FakeXmlNode::Node FakeXmlNode::GetParent() {
    note(L"GetParent");
    return Node::share(parent);
}

void FakeXmlNode::AppendAttribute(IHostXmlNode& node) {
    note(L"AppendAttribute", own(node).name);
    attributes.push_back(Ref<FakeXmlNode>::share(&own(node)));
}

void FakeXmlNode::RemoveAttribute(IHostXmlNode& node) {
    note(L"RemoveAttribute", own(node).name);
    removeFrom(attributes, node);
}

FakeXmlNode::Node FakeXmlNode::FindAttribute(const std::wstring& wanted) {
    return found(attributes, wanted, L"FindAttribute");
}

FakeXmlNode::Node FakeXmlNode::GetAttribute(std::int32_t index) {
    return at(attributes, index, L"GetAttribute");
}

std::int32_t FakeXmlNode::GetAttributeCount() {
    note(L"GetAttributeCount");
    return static_cast<std::int32_t>(attributes.size());
}

void FakeXmlNode::ClearAttributes() {
    note(L"ClearAttributes");
    attributes.clear();
}

std::wstring FakeXmlNode::GetName() {
    note(L"GetName");
    return name;
}

std::wstring FakeXmlNode::GetValue() {
    note(L"GetValue");
    return value;
}

Ref<IHostXmlNode> FakeXmlDocument::GetRootNode() {
    note(L"GetRootNode");
    return Ref<IHostXmlNode>::share(root.get());
}

void FakeXmlDocument::SetRootNode(IHostXmlNode& node) {
    note(L"SetRootNode", own(node).name);
    root = Ref<FakeXmlNode>::share(&own(node));
}

Ref<IHostXmlNode> FakeXmlDocument::CreateNode(const std::wstring& name, const std::wstring& value) {
    note(L"CreateNode", name + L", " + value);
    if (journal_.answersNull(L"CreateNode")) return {};
    return Ref<IHostXmlNode>::share(new FakeXmlNode(journal_, name, value));
}

void FakeXmlDocument::WriteValue(IHostXmlNode& node, const std::wstring& key,
                                 const std::wstring& value, const std::wstring& defaultValue) {
    note(L"WriteValue", own(node).name + L", " + key + L", " + value + L", " + defaultValue);
    entries[key] = value;
}

void FakeXmlDocument::ReadValue(IHostXmlNode& node, const std::wstring& key, std::wstring& value,
                                const std::wstring& defaultValue) {
    note(L"ReadValue", own(node).name + L", " + key + L", " + value + L", " + defaultValue);
    if (leavesTextAlone) return;
    const auto stored = entries.find(key);
    value = stored == entries.end() ? defaultValue : stored->second;
}

std::int32_t FakeXmlDocument::GetMode() {
    note(L"GetMode");
    return mode;
}

void FakeXmlDocument::SetMode(bool write) {
    note(L"SetMode", write ? L"true" : L"false");
    mode = write ? 1 : 0;
}

Ref<Host::IHostXmlFactory> FakeXmlApp::GetXmlFactory() {
    note(L"GetXmlFactory");
    if (journal_.answersNull(L"GetXmlFactory")) return {};
    return Ref<Host::IHostXmlFactory>::share(new FakeXmlFactory(journal_));
}

}  // namespace Meridax::Tests
