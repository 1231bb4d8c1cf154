#include "host_kit/memory/memory_document.h"

#include <utility>

namespace Rotavue::HostKit {

using Host::IHostXmlNode;
using Host::Ref;

MemoryDocument::MemoryDocument(MemoryHost& host, bool writing, std::shared_ptr<MemoryNode> root)
    : PassingObject(host), writing_(writing), root_(std::move(root)) {}

Ref<IHostXmlNode> MemoryDocument::GetRootNode() {
    return call(operation("IHostXmlDocument.GetRootNode"),
                [&] { return Ref<IHostXmlNode>::share(root_.get()); });
}

void MemoryDocument::SetRootNode(IHostXmlNode& node) {
    const auto part = [&] { root_ = own<MemoryNode>(node).self(); };
    call(operation("IHostXmlDocument.SetRootNode"), part, node);
}

Ref<IHostXmlNode> MemoryDocument::CreateNode(const std::wstring& nodeName,
                                             const std::wstring& value) {
    return call(
        operation("IHostXmlDocument.CreateNode"),
        [&] {
            const auto node = std::make_shared<MemoryNode>(host_, nodeName, value);
            return Ref<IHostXmlNode>::share(node.get());
        },
        nodeName, value);
}

void MemoryDocument::WriteValue(IHostXmlNode& node, const std::wstring& key,
                                const std::wstring& value, const std::wstring& defaultValue) {
    const auto part = [&] {
        MemoryNode::Texts& texts = own<MemoryNode>(node).texts();
        value == defaultValue ? void(texts.erase(key)) : void(texts[key] = value);
    };
    call(operation("IHostXmlDocument.WriteValue"), part, node, key, value, defaultValue);
}

void MemoryDocument::ReadValue(IHostXmlNode& node, const std::wstring& key, std::wstring& value,
                               const std::wstring& defaultValue) {
    const auto stored = [&] {
        const MemoryNode::Texts& texts = own<MemoryNode>(node).texts();
        const auto found = texts.find(key);
        return found != texts.end() ? found->second : defaultValue;
    };
    value = call(operation("IHostXmlDocument.ReadValue"), stored, node, key, value, defaultValue);
}

std::int32_t MemoryDocument::GetMode() {
    return call(operation("IHostXmlDocument.GetMode"), [&] { return writing_ ? 1 : 0; });
}

void MemoryDocument::SetMode(bool write) {
    call(
        operation("IHostXmlDocument.SetMode"), [&] { writing_ = write; }, write);
}

Ref<Host::IHostXmlDocument> MemoryXmlFactory::CreateDocument(bool write) {
    return call(
        operation("IHostXmlFactory.CreateDocument"),
        [&] {
            const auto document = std::make_shared<MemoryDocument>(host_, write);
            return Ref<Host::IHostXmlDocument>::share(document.get());
        },
        write);
}

}  // namespace Rotavue::HostKit
