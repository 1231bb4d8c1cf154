#include "plugin/setup_document/meridax_dcom_node.h"

#include "plugin/setup_document/crossing_text.h"
#include "plugin/setup_document/meridax_dcom_node_creator.h"
#include "plugin/setup_document/node_import.h"
#include "plugin/setup_document/xml_exception.h"

#include <limits>
#include <utility>

namespace Meridax::Utils::Dcom::Utils {
namespace {

using Host::IHostXmlDocument;
using Host::IHostXmlNode;
using Host::Ref;
using Serialization::XmlException;

namespace XmlError = Serialization::XmlError;

// The one value of `GetMode` that means writing.
constexpr std::int32_t WritingMode = 1;

std::int32_t hostIndex(std::uint64_t index) {
    if (index > std::numeric_limits<std::int32_t>::max()) {
        throw XmlException(XmlError::IndexTooLarge);
    }
    return static_cast<std::int32_t>(index);
}

void refuseDummy(const NodePtr& node) {
    if (node != nullptr && node->isDummy()) throw XmlException(XmlError::DummyArgument);
}

void removeFromAttributes(IHostXmlNode& inner, const Ref<IHostXmlNode>& node) {
    if (node) inner.RemoveAttribute(*node);
}

}  // namespace

MeridaxDCOMNode::MeridaxDCOMNode(Ref<IHostXmlDocument> document, Ref<IHostXmlNode> inner,
                                 bool isDummy)
    : Node(isDummy), document_(std::move(document)), inner_(std::move(inner)) {}

MeridaxDCOMNode::MeridaxDCOMNode(Ref<IHostXmlDocument> document, const NodePtr& source)
    : document_(std::move(document)), inner_(document_->GetRootNode()) {
    if (source == nullptr) return;
    const Ref<IHostXmlNode> copy = importNode(*document_, source);
    inner_->AppendChild(*copy);
}

MeridaxDCOMNode::MeridaxDCOMNode(const std::string& rootName, const std::string& rootValue,
                                 const Ref<Host::IHostApp>& application, bool writing)
    : document_(application->GetXmlFactory()->CreateDocument(writing)),
      inner_(created(rootName, rootValue)) {
    document_->SetRootNode(*inner_);
    document_->SetMode(writing);
}

MeridaxDCOMNode::MeridaxDCOMNode(const NodePtr& source, const Ref<Host::IHostApp>& application) {
    if (source == nullptr) Host::raiseNullObject();
    const bool writing = source->isWriting();
    document_ = application->GetXmlFactory()->CreateDocument(writing);
    inner_ = importNode(*document_, source);
    document_->SetRootNode(*inner_);
    document_->SetMode(writing);
}

IHostXmlDocument& MeridaxDCOMNode::needDocument() const {
    if (!document_) throw XmlException(XmlError::NoDocument);
    return *document_;
}

IHostXmlNode& MeridaxDCOMNode::needInner() const {
    if (!inner_) throw XmlException(XmlError::NoInnerNode);
    return *inner_;
}

IHostXmlNode& MeridaxDCOMNode::needBoth() const {
    needDocument();
    return needInner();
}

Ref<IHostXmlNode> MeridaxDCOMNode::created(const std::string& nodeName,
                                           const std::string& value) const {
    Ref<IHostXmlNode> node = document_->CreateNode(toHost(nodeName), toHost(value));
    if (!node) Host::raiseNullObject();
    return node;
}

// The host's node behind `node`; a copy of it where it is a foreign one or has none.
Ref<IHostXmlNode> MeridaxDCOMNode::resolved(const NodePtr& node) const {
    const auto* own = dynamic_cast<const MeridaxDCOMNode*>(node.get());
    return own != nullptr && own->inner_ ? own->inner_ : importNode(*document_, node);
}

NodePtr MeridaxDCOMNode::handOut(Ref<IHostXmlNode> node, bool asDummy) const {
    if (!node) return nullptr;
    return std::make_shared<MeridaxDCOMNodeCreator>(document_, std::move(node), asDummy);
}

void MeridaxDCOMNode::close() {
    if (!isValid()) return;
    inner_ = nullptr;
    document_ = nullptr;
}

NodePtr MeridaxDCOMNode::getChild(const std::string& childName) {
    return isWriting() ? addChild(childName) : readChild(childName);
}

NodePtr MeridaxDCOMNode::readChild(const std::string& childName) {
    if (NodePtr found = findChild(childName)) return found;
    return handOut(created(childName, ""), true);
}

NodePtr MeridaxDCOMNode::createNode(std::string nodeName, std::string value) {
    needDocument();
    return handOut(created(nodeName, value));
}

// The own element is let go first: a node that is assigned to itself has none from then on.
void MeridaxDCOMNode::assign(NodePtr other) {
    needDocument();
    const auto* own = dynamic_cast<const MeridaxDCOMNode*>(other.get());
    if (own == nullptr) throw XmlException(XmlError::NodeArgument);
    inner_ = nullptr;
    inner_ = own->inner_;
}

void MeridaxDCOMNode::assignNew(std::string nodeName, std::string value) {
    needDocument();
    inner_ = created(nodeName, value);
}

void MeridaxDCOMNode::setValue(std::string text) {
    needInner().SetValue(toHost(text));
}

NodePtr MeridaxDCOMNode::appendChild(const NodePtr& node) {
    IHostXmlNode& inner = needBoth();
    Ref<IHostXmlNode> child = resolved(node);
    inner.AppendChild(*child);
    return handOut(std::move(child));
}

NodePtr MeridaxDCOMNode::addChild(std::string childName) {
    IHostXmlNode& inner = needBoth();
    Ref<IHostXmlNode> child = created(childName, "");
    inner.AppendChild(*child);
    return handOut(std::move(child));
}

NodePtr MeridaxDCOMNode::clone() {
    Ref<IHostXmlNode> copy = needBoth().Clone();
    if (!copy) Host::raiseNullObject();
    return handOut(std::move(copy), isDummy());
}

NodePtr MeridaxDCOMNode::appendAttribute(const NodePtr& node) {
    IHostXmlNode& inner = needBoth();
    Ref<IHostXmlNode> attribute = resolved(node);
    inner.AppendAttribute(*attribute);
    return handOut(std::move(attribute));
}

void MeridaxDCOMNode::clearChildren() {
    needInner().ClearChildren();
}

void MeridaxDCOMNode::clearAttributes() {
    needInner().ClearAttributes();
}

NodePtr MeridaxDCOMNode::findChild(const std::string& childName) const {
    return handOut(needBoth().FindChild(toHost(childName)));
}

NodePtr MeridaxDCOMNode::findAttribute(const std::string& attributeName) const {
    return handOut(needBoth().FindAttribute(toHost(attributeName)));
}

NodePtr MeridaxDCOMNode::attributeAt(std::uint64_t index) const {
    IHostXmlNode& inner = needBoth();
    const std::int32_t position = hostIndex(index);
    return position < inner.GetAttributeCount() ? handOut(inner.GetAttribute(position)) : nullptr;
}

NodePtr MeridaxDCOMNode::childAt(std::uint64_t index) const {
    IHostXmlNode& inner = needBoth();
    const std::int32_t position = hostIndex(index);
    return position < inner.GetChildCount() ? handOut(inner.GetChild(position)) : nullptr;
}

std::int32_t MeridaxDCOMNode::attributeCount() const {
    return needInner().GetAttributeCount();
}

std::int32_t MeridaxDCOMNode::childCount() const {
    return needInner().GetChildCount();
}

void MeridaxDCOMNode::removeAttribute(NodePtr& node) {
    IHostXmlNode& inner = needInner();
    refuseDummy(node);
    const auto* own = dynamic_cast<const MeridaxDCOMNode*>(node.get());
    if (own != nullptr) inner.RemoveAttribute(*own->inner_);
    node.reset();
}

void MeridaxDCOMNode::removeAttributeAt(std::uint64_t index) {
    IHostXmlNode& inner = needInner();
    removeFromAttributes(inner, inner.GetAttribute(hostIndex(index)));
}

void MeridaxDCOMNode::removeAttributeNamed(const std::string& attributeName) {
    IHostXmlNode& inner = needInner();
    removeFromAttributes(inner, inner.FindChild(toHost(attributeName)));
}

void MeridaxDCOMNode::removeChild(NodePtr& node) {
    IHostXmlNode& inner = needInner();
    refuseDummy(node);
    const auto* own = dynamic_cast<const MeridaxDCOMNode*>(node.get());
    if (own != nullptr) inner.RemoveChild(*own->inner_);
    node.reset();
}

// The three removals below look like slips. Callers depend on them as they stand.
void MeridaxDCOMNode::removeChildAt(std::uint64_t index) {
    removeAttributeAt(index);
}

void MeridaxDCOMNode::removeChildNamed(const std::string& childName) {
    removeAttributeNamed(childName);
}

std::string MeridaxDCOMNode::getName() const {
    return fromHost(needInner().GetName());
}

std::string MeridaxDCOMNode::getValue() const {
    return fromHost(needInner().GetValue());
}

NodePtr MeridaxDCOMNode::getParent() const {
    return handOut(needBoth().GetParent());
}

void MeridaxDCOMNode::setWriting(bool writing) {
    needDocument().SetMode(writing);
}

bool MeridaxDCOMNode::isWriting() const {
    return needDocument().GetMode() == WritingMode;
}

bool MeridaxDCOMNode::isValid() const {
    return document_ && inner_;
}

bool MeridaxDCOMNode::isEmpty() const {
    IHostXmlNode& inner = needBoth();
    return inner.GetChildCount() == 0 && inner.GetAttributeCount() == 0 && inner.GetValue().empty();
}

void MeridaxDCOMNode::writeValue(const std::string& key, const std::string& value,
                                 const std::string& defaultValue) {
    IHostXmlNode& inner = needBoth();
    document_->WriteValue(inner, toHost(key), toHost(value), toHost(defaultValue));
}

void MeridaxDCOMNode::readValue(const std::string& key, std::string& value,
                                const std::string& defaultValue) const {
    IHostXmlNode& inner = needBoth();
    // A host that leaves the text alone leaves this one.
    std::wstring text = L"s";
    document_->ReadValue(inner, toHost(key), text, toHost(defaultValue));
    value = fromHost(text);
}

void MeridaxDCOMNode::addAttribute(const std::string& attributeName, const std::string& value) {
    IHostXmlNode& inner = needBoth();
    inner.AppendAttribute(*created(attributeName, value));
}

NodePtr MeridaxDCOMNode::getOrAddChild(const std::string& childName) {
    NodePtr found = findChild(childName);
    return found != nullptr ? found : addChild(childName);
}

}  // namespace Meridax::Utils::Dcom::Utils
