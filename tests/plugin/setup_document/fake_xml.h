#pragma once

#include "plugin/framework/host/data/host_app.h"
#include "plugin/framework/host/document/host_xml.h"
#include "plugin/framework/host/host_error.h"
#include "plugin/framework/host/ref.h"

#include <cstdint>
#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

namespace Meridax::Tests {

/// What the fake host was asked, in order, and what it is told to do wrong.
struct XmlJournal {
    std::vector<std::wstring> calls;  ///< "AppendChild(name of the node)"
    std::set<std::wstring> nulls;     ///< operations that answer a null object
    std::wstring failing;             ///< the operation that fails with 0x80004005
    std::vector<std::wstring> ended;  ///< nodes (by name) and documents that nothing holds any more
    int alive = 0;                    ///< fake objects that something still holds

    /// Notes a call and fails it where it is to fail.
    void note(const Host::Guid& interfaceId, const std::wstring& operation,
              const std::wstring& arguments);

    /// True when the operation is to answer null.
    bool answersNull(const std::wstring& operation) const { return nulls.contains(operation); }
};

/// A reference count over an interface; the object ends with its last reference.
template <class Interface>
class CountedFake : public Interface {
public:
    explicit CountedFake(XmlJournal& journal) : journal_(journal) { ++journal_.alive; }

    void retain() noexcept override { ++count_; }
    void release() noexcept override {
        if (--count_ == 0) delete this;
    }
    void* offer(const Host::Guid& interfaceId) override {
        if (interfaceId != Interface::Identifier) return nullptr;
        retain();
        return static_cast<Interface*>(this);
    }

    int references() const { return count_; }

protected:
    virtual ~CountedFake() { --journal_.alive; }

    void note(const std::wstring& operation, const std::wstring& arguments = {}) const {
        journal_.note(Interface::Identifier, operation, arguments);
    }

    XmlJournal& journal_;

private:
    int count_ = 0;
};

/// A node of the fake host. It keeps its children and attributes alive.
class FakeXmlNode final : public CountedFake<Host::IHostXmlNode> {
public:
    using Node = Host::Ref<Host::IHostXmlNode>;

    FakeXmlNode(XmlJournal& journal, std::wstring nodeName, std::wstring nodeValue)
        : CountedFake(journal), name(std::move(nodeName)), value(std::move(nodeValue)) {}

    void SetValue(const std::wstring& text) override;
    void AppendChild(IHostXmlNode& node) override;
    void RemoveChild(IHostXmlNode& node) override;
    void ClearChildren() override;
    Node FindChild(const std::wstring& wanted) override;
    Node GetChild(std::int32_t index) override;
    std::int32_t GetChildCount() override;
    Node Clone() override;
    Node GetParent() override;
    void AppendAttribute(IHostXmlNode& node) override;
    void RemoveAttribute(IHostXmlNode& node) override;
    Node FindAttribute(const std::wstring& wanted) override;
    Node GetAttribute(std::int32_t index) override;
    std::int32_t GetAttributeCount() override;
    void ClearAttributes() override;
    std::wstring GetName() override;
    std::wstring GetValue() override;

    std::wstring name;
    std::wstring value;
    std::vector<Host::Ref<FakeXmlNode>> children;
    std::vector<Host::Ref<FakeXmlNode>> attributes;
    FakeXmlNode* parent = nullptr;

private:
    ~FakeXmlNode() override;
    Node found(const std::vector<Host::Ref<FakeXmlNode>>& nodes, const std::wstring& wanted,
               const std::wstring& operation) const;
    Node at(const std::vector<Host::Ref<FakeXmlNode>>& nodes, std::int32_t index,
            const std::wstring& operation) const;
};

/// A document of the fake host, with one list of entries for all of its nodes.
class FakeXmlDocument final : public CountedFake<Host::IHostXmlDocument> {
public:
    using CountedFake::CountedFake;

    ~FakeXmlDocument() override { journal_.ended.emplace_back(L"the document"); }

    Host::Ref<Host::IHostXmlNode> GetRootNode() override;
    void SetRootNode(Host::IHostXmlNode& node) override;
    Host::Ref<Host::IHostXmlNode> CreateNode(const std::wstring& name,
                                             const std::wstring& value) override;
    void WriteValue(Host::IHostXmlNode& node, const std::wstring& key, const std::wstring& value,
                    const std::wstring& defaultValue) override;
    void ReadValue(Host::IHostXmlNode& node, const std::wstring& key, std::wstring& value,
                   const std::wstring& defaultValue) override;
    std::int32_t GetMode() override;
    void SetMode(bool write) override;

    Host::Ref<FakeXmlNode> root;
    std::map<std::wstring, std::wstring> entries;
    std::int32_t mode = 0;
    bool leavesTextAlone = false;  ///< `ReadValue` gives back what it was handed
};

/// The part of a host application that makes setup documents.
class FakeXmlApp final : public CountedFake<Host::IHostApp> {
public:
    using CountedFake::CountedFake;

    Host::Ref<Host::IHostXmlFactory> GetXmlFactory() override;

    Host::Ref<Host::IHostData> getData() override { refuse(); }
    void showMessage(const std::wstring&) override { refuse(); }
    bool isAcquiring() override { refuse(); }
    Host::HostVersion getVersion() override { refuse(); }
    Host::Ref<Host::IHostChannelList> createChannelList() override { refuse(); }

private:
    [[noreturn]] static void refuse() { throw std::logic_error("not part of this test"); }
};

}  // namespace Meridax::Tests
