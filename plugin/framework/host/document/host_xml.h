#pragma once

#include "plugin/framework/host/host_object.h"
#include "plugin/framework/host/ref.h"

#include <cstdint>
#include <string>

namespace Meridax::Host {

/// [host implements] A node of a setup document: an element or an attribute. It comes as argument 1
/// of message 33, or from a document or another node.
class IHostXmlNode : public IHostObject {
public:
    static constexpr Guid Identifier = guid("{44A1B53F-7D56-41DD-A654-17D9B638B77C}");

    /// Sets the node's text value. [place 1]
    virtual void SetValue(const std::wstring& text) = 0;

    /// Adds a child element. [place 2]
    virtual void AppendChild(IHostXmlNode& node) = 0;

    /// Removes a child element. [place 3]
    virtual void RemoveChild(IHostXmlNode& node) = 0;

    /// Removes all child elements. [place 4]
    virtual void ClearChildren() = 0;

    /// The first child element of that name. [place 5 | may be null]
    virtual Ref<IHostXmlNode> FindChild(const std::wstring& name) = 0;

    /// The child element at that position, counted from 0. [place 6 | may be null]
    virtual Ref<IHostXmlNode> GetChild(std::int32_t index) = 0;

    /// The number of child elements. [place 7]
    virtual std::int32_t GetChildCount() = 0;

    /// A copy of the node. [place 8 | never null in normal use]
    virtual Ref<IHostXmlNode> Clone() = 0;

    /// The parent element. [place 9 | may be null]
    virtual Ref<IHostXmlNode> GetParent() = 0;

    /// Adds a name and value node to the attributes. [place 10]
    virtual void AppendAttribute(IHostXmlNode& node) = 0;

    /// Removes an attribute node. [place 11]
    virtual void RemoveAttribute(IHostXmlNode& node) = 0;

    /// The attribute node of that name. [place 12 | may be null]
    virtual Ref<IHostXmlNode> FindAttribute(const std::wstring& name) = 0;

    /// The attribute node at that position, counted from 0. [place 13 | may be null]
    virtual Ref<IHostXmlNode> GetAttribute(std::int32_t index) = 0;

    /// The number of attributes. [place 14]
    virtual std::int32_t GetAttributeCount() = 0;

    /// Removes all attributes. [place 15]
    virtual void ClearAttributes() = 0;

    /// The node's name. [place 16]
    virtual std::wstring GetName() = 0;

    /// The node's text value. [place 17]
    virtual std::wstring GetValue() = 0;

protected:
    ~IHostXmlNode() = default;
};

/// [host implements] A setup document. It comes as argument 0 of message 33, or from
/// `IHostXmlFactory`.
class IHostXmlDocument : public IHostObject {
public:
    static constexpr Guid Identifier = guid("{83BA9C2D-F71F-476F-AB58-27B80328D73C}");

    /// The root node. [place 1 | may be null]
    virtual Ref<IHostXmlNode> GetRootNode() = 0;

    /// Sets the root node. [place 2]
    virtual void SetRootNode(IHostXmlNode& node) = 0;

    /// Creates a detached node. [place 3 | never null in normal use]
    virtual Ref<IHostXmlNode> CreateNode(const std::wstring& name, const std::wstring& value) = 0;

    /// Stores the value under the key of the node; a value equal to the default need not be stored.
    /// [place 10]
    virtual void WriteValue(IHostXmlNode& node, const std::wstring& key, const std::wstring& value,
                            const std::wstring& defaultValue) = 0;

    /// Puts into `value` the stored text of the key, or the default when the key is absent.
    /// [place 11]
    virtual void ReadValue(IHostXmlNode& node, const std::wstring& key, std::wstring& value,
                           const std::wstring& defaultValue) = 0;

    /// 1 while the document is being written, any other value while it is being read. [place 13]
    virtual std::int32_t GetMode() = 0;

    /// Sets the direction of the document. [place 14]
    virtual void SetMode(bool write) = 0;

protected:
    ~IHostXmlDocument() = default;
};

/// [host implements] Makes setup documents. It comes from `IHostApp::GetXmlFactory`.
class IHostXmlFactory : public IHostObject {
public:
    static constexpr Guid Identifier = guid("{FF17D484-F89E-4BBE-B98D-16BA390113A3}");

    /// Creates an empty document in that direction. [place 1 | never null in normal use]
    virtual Ref<IHostXmlDocument> CreateDocument(bool write) = 0;

protected:
    ~IHostXmlFactory() = default;
};

}  // namespace Meridax::Host
