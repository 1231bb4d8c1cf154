#pragma once

#include "plugin/framework/host/data/host_app.h"
#include "plugin/framework/host/document/host_xml.h"
#include "plugin/framework/host/ref.h"
#include "plugin/setup_document/node.h"

#include <cstdint>
#include <string>

namespace Meridax::Utils::Dcom::Utils {

using Serialization::NodePtr;

/// `Node` over the host's objects: one node of the host and the document that owns it. Most
/// operations are one call of the host behind the checks that `Node` names. Every node handed out
/// is a `MeridaxDCOMNodeCreator` over the same document, whose direction they all share.
///
/// Beside `XmlException`, every operation that calls the host raises `HostError`: a failed call
/// with its own status, a null where the host must give an object with 0x80004003, a text that the
/// memory does not hold with 0x8007000E.
class MeridaxDCOMNode : public Serialization::Node {
public:
    /// A node over a document and one of its nodes, each of which may be null.
    MeridaxDCOMNode(Host::Ref<Host::IHostXmlDocument> document, Host::Ref<Host::IHostXmlNode> inner,
                    bool isDummy = false);

    /// The root of the document; a copy of `source` becomes its child, unless `source` is empty.
    MeridaxDCOMNode(Host::Ref<Host::IHostXmlDocument> document, const NodePtr& source);

    /// The root of a new document of its own.
    MeridaxDCOMNode(const std::string& rootName, const std::string& rootValue,
                    const Host::Ref<Host::IHostApp>& application, bool writing);

    /// The root of a new document of its own, a copy of `source` that goes in its direction. An
    /// empty `source` raises `HostError` 0x80004003.
    MeridaxDCOMNode(const NodePtr& source, const Host::Ref<Host::IHostApp>& application);

    void close() override;
    NodePtr getChild(const std::string& childName) override;
    NodePtr readChild(const std::string& childName) override;
    NodePtr createNode(std::string nodeName, std::string value) override;

    /// Raises `XmlException` 7 for a node of another class, and leaves this one as it is. A node
    /// that is assigned to itself loses its element.
    void assign(NodePtr other) override;

    void assignNew(std::string nodeName, std::string value) override;
    void setValue(std::string text) override;
    NodePtr appendChild(const NodePtr& node) override;
    NodePtr addChild(std::string childName) override;
    NodePtr clone() override;
    NodePtr appendAttribute(const NodePtr& node) override;
    void clearChildren() override;
    void clearAttributes() override;
    NodePtr findChild(const std::string& childName) const override;
    NodePtr findAttribute(const std::string& attributeName) const override;
    NodePtr attributeAt(std::uint64_t index) const override;
    NodePtr childAt(std::uint64_t index) const override;
    std::int32_t attributeCount() const override;
    std::int32_t childCount() const override;
    void removeAttribute(NodePtr& node) override;
    void removeAttributeAt(std::uint64_t index) override;
    void removeAttributeNamed(const std::string& attributeName) override;
    void removeChild(NodePtr& node) override;
    void removeChildAt(std::uint64_t index) override;
    void removeChildNamed(const std::string& childName) override;
    std::string getName() const override;
    std::string getValue() const override;
    NodePtr getParent() const override;
    void setWriting(bool writing) override;
    bool isWriting() const override;
    bool isValid() const override;
    bool isEmpty() const override;
    void writeValue(const std::string& key, const std::string& value,
                    const std::string& defaultValue) override;
    void readValue(const std::string& key, std::string& value,
                   const std::string& defaultValue) const override;
    void addAttribute(const std::string& attributeName, const std::string& value) override;
    NodePtr getOrAddChild(const std::string& childName) override;

private:
    Host::IHostXmlDocument& needDocument() const;
    Host::IHostXmlNode& needInner() const;
    Host::IHostXmlNode& needBoth() const;
    Host::Ref<Host::IHostXmlNode> created(const std::string& nodeName,
                                          const std::string& value) const;
    Host::Ref<Host::IHostXmlNode> resolved(const NodePtr& node) const;
    NodePtr handOut(Host::Ref<Host::IHostXmlNode> node, bool asDummy = false) const;

    Host::Ref<Host::IHostXmlDocument> document_;
    Host::Ref<Host::IHostXmlNode> inner_;  ///< released before the document
};

}  // namespace Meridax::Utils::Dcom::Utils
