#pragma once

#include "host_kit/memory/memory_object.h"
#include "plugin/framework/host/document/host_xml.h"

#include <map>

namespace Rotavue::HostKit {

/// A node of a setup document. A node belongs to one parent at most: appending it elsewhere takes
/// it from where it was. Appending a node below itself, and any node of another host, are refused
/// with 0x80070057.
class MemoryNode final : public PassingObject<Host::IHostXmlNode> {
public:
    using Texts = std::map<std::wstring, std::wstring>;

    MemoryNode(MemoryHost& host, std::wstring name, std::wstring value);
    ~MemoryNode() override;

    std::string name() const override { return "node"; }
    std::shared_ptr<MemoryNode> self();

    /// The texts that a document stores under keys of this node.
    Texts& texts() { return outsideTexts_ != nullptr ? *outsideTexts_ : texts_; }

    /// Keeps the texts in a map of the caller's from now on.
    void keepTextsIn(Texts& outside) { outsideTexts_ = &outside; }

    void SetValue(const std::wstring& text) override;
    void AppendChild(Host::IHostXmlNode& node) override;
    void RemoveChild(Host::IHostXmlNode& node) override;
    void ClearChildren() override;
    Host::Ref<Host::IHostXmlNode> FindChild(const std::wstring& childName) override;
    Host::Ref<Host::IHostXmlNode> GetChild(std::int32_t index) override;
    std::int32_t GetChildCount() override;
    Host::Ref<Host::IHostXmlNode> Clone() override;
    Host::Ref<Host::IHostXmlNode> GetParent() override;
    void AppendAttribute(Host::IHostXmlNode& node) override;
    void RemoveAttribute(Host::IHostXmlNode& node) override;
    Host::Ref<Host::IHostXmlNode> FindAttribute(const std::wstring& attributeName) override;
    Host::Ref<Host::IHostXmlNode> GetAttribute(std::int32_t index) override;
    std::int32_t GetAttributeCount() override;
    void ClearAttributes() override;
    std::wstring GetName() override;
    std::wstring GetValue() override;

private:
    using Nodes = std::vector<std::shared_ptr<MemoryNode>>;

    void append(Nodes& nodes, Host::IHostXmlNode& node);
    void remove(Nodes& nodes, Host::IHostXmlNode& node);
    void clear(Nodes& nodes);
    Host::Ref<Host::IHostXmlNode> find(const Nodes& nodes, const std::wstring& wanted) const;
    Host::Ref<Host::IHostXmlNode> at(const Nodes& nodes, std::int32_t index) const;
    bool isBelow(const MemoryNode& other) const;
    std::shared_ptr<MemoryNode> copy() const;

    std::wstring name_;
    std::wstring value_;
    Texts texts_;
    Texts* outsideTexts_ = nullptr;
    Nodes children_;
    Nodes attributes_;
    MemoryNode* parent_ = nullptr;
};

/// A setup document. `WriteValue` stores a text under a key of the node, or removes the key when
/// the text equals the default.
class MemoryDocument final : public PassingObject<Host::IHostXmlDocument> {
public:
    MemoryDocument(MemoryHost& host, bool writing, std::shared_ptr<MemoryNode> root = nullptr);

    std::string name() const override { return "document"; }

    Host::Ref<Host::IHostXmlNode> GetRootNode() override;
    void SetRootNode(Host::IHostXmlNode& node) override;
    Host::Ref<Host::IHostXmlNode> CreateNode(const std::wstring& nodeName,
                                             const std::wstring& value) override;
    void WriteValue(Host::IHostXmlNode& node, const std::wstring& key, const std::wstring& value,
                    const std::wstring& defaultValue) override;
    void ReadValue(Host::IHostXmlNode& node, const std::wstring& key, std::wstring& value,
                   const std::wstring& defaultValue) override;
    std::int32_t GetMode() override;
    void SetMode(bool write) override;

private:
    bool writing_;
    std::shared_ptr<MemoryNode> root_;
};

class MemoryXmlFactory final : public LastingObject<Host::IHostXmlFactory> {
public:
    using LastingObject::LastingObject;

    std::string name() const override { return "factory"; }

    Host::Ref<Host::IHostXmlDocument> CreateDocument(bool write) override;
};

}  // namespace Rotavue::HostKit
