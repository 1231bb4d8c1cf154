#pragma once

#include "plugin/module/windows/interfaces/document_operations.h"
#include "plugin/module/windows/proxies/proxy_object.h"

namespace Meridax::Host::Binary {

template <>
class Proxy<IHostXmlNode> final : public ProxyObject<IHostXmlNode> {
public:
    using ProxyObject::ProxyObject;

    void SetValue(const std::wstring& text) override { return call<&IHostXmlNode::SetValue>(text); }
    void AppendChild(IHostXmlNode& node) override { return call<&IHostXmlNode::AppendChild>(node); }
    void RemoveChild(IHostXmlNode& node) override { return call<&IHostXmlNode::RemoveChild>(node); }
    void ClearChildren() override { return call<&IHostXmlNode::ClearChildren>(); }
    Ref<IHostXmlNode> FindChild(const std::wstring& name) override {
        return call<&IHostXmlNode::FindChild>(name);
    }
    Ref<IHostXmlNode> GetChild(std::int32_t index) override {
        return call<&IHostXmlNode::GetChild>(index);
    }
    std::int32_t GetChildCount() override { return call<&IHostXmlNode::GetChildCount>(); }
    Ref<IHostXmlNode> Clone() override { return call<&IHostXmlNode::Clone>(); }
    Ref<IHostXmlNode> GetParent() override { return call<&IHostXmlNode::GetParent>(); }
    void AppendAttribute(IHostXmlNode& node) override {
        return call<&IHostXmlNode::AppendAttribute>(node);
    }
    void RemoveAttribute(IHostXmlNode& node) override {
        return call<&IHostXmlNode::RemoveAttribute>(node);
    }
    Ref<IHostXmlNode> FindAttribute(const std::wstring& name) override {
        return call<&IHostXmlNode::FindAttribute>(name);
    }
    Ref<IHostXmlNode> GetAttribute(std::int32_t index) override {
        return call<&IHostXmlNode::GetAttribute>(index);
    }
    std::int32_t GetAttributeCount() override { return call<&IHostXmlNode::GetAttributeCount>(); }
    void ClearAttributes() override { return call<&IHostXmlNode::ClearAttributes>(); }
    std::wstring GetName() override { return call<&IHostXmlNode::GetName>(); }
    std::wstring GetValue() override { return call<&IHostXmlNode::GetValue>(); }
};

template <>
class Proxy<IHostXmlDocument> final : public ProxyObject<IHostXmlDocument> {
public:
    using ProxyObject::ProxyObject;

    Ref<IHostXmlNode> GetRootNode() override { return call<&IHostXmlDocument::GetRootNode>(); }
    void SetRootNode(IHostXmlNode& node) override {
        return call<&IHostXmlDocument::SetRootNode>(node);
    }
    Ref<IHostXmlNode> CreateNode(const std::wstring& name, const std::wstring& value) override {
        return call<&IHostXmlDocument::CreateNode>(name, value);
    }
    void WriteValue(IHostXmlNode& node, const std::wstring& key, const std::wstring& value,
                    const std::wstring& defaultValue) override {
        return call<&IHostXmlDocument::WriteValue>(node, key, value, defaultValue);
    }
    void ReadValue(IHostXmlNode& node, const std::wstring& key, std::wstring& value,
                   const std::wstring& defaultValue) override {
        return call<&IHostXmlDocument::ReadValue>(node, key, value, defaultValue);
    }
    std::int32_t GetMode() override { return call<&IHostXmlDocument::GetMode>(); }
    void SetMode(bool write) override { return call<&IHostXmlDocument::SetMode>(write); }
};

template <>
class Proxy<IHostXmlFactory> final : public ProxyObject<IHostXmlFactory> {
public:
    using ProxyObject::ProxyObject;

    Ref<IHostXmlDocument> CreateDocument(bool write) override {
        return call<&IHostXmlFactory::CreateDocument>(write);
    }
};

}  // namespace Meridax::Host::Binary
