#include "plugin/setup_document/node_import.h"

#include "plugin/setup_document/crossing_text.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace Meridax::Utils::Dcom::Utils {
namespace {

using Host::IHostXmlDocument;
using Host::IHostXmlNode;
using Host::Ref;
using Serialization::NodePtr;

const NodePtr& required(const NodePtr& node) {
    if (node == nullptr) Host::raiseNullObject();
    return node;
}

Ref<IHostXmlNode> copyOfRoot(IHostXmlDocument& document, const NodePtr& source) {
    const std::wstring value = toHostStrictly(source->getValue());
    const std::wstring name = toHostStrictly(source->getName());
    return document.CreateNode(name, value);
}

Ref<IHostXmlNode> copyOf(IHostXmlDocument& document, const NodePtr& source) {
    const std::wstring name = toHost(source->getName());
    const std::wstring value = toHost(source->getValue());
    return document.CreateNode(name, value);
}

void copyAttributes(IHostXmlDocument& document, const NodePtr& source,
                    const Ref<IHostXmlNode>& target) {
    const std::int32_t count = source->attributeCount();
    for (std::int32_t i = 0; i < count; ++i) {
        const NodePtr attribute = required(source->attributeAt(static_cast<std::uint64_t>(i)));
        target->AppendAttribute(*copyOf(document, attribute));
    }
}

// One element whose children are being copied.
struct Level {
    NodePtr source;
    Ref<IHostXmlNode> target;
    std::int32_t count = source->childCount();
    std::int32_t next = 0;
};

Level copyNextChild(IHostXmlDocument& document, Level& level) {
    const NodePtr child = required(level.source->childAt(static_cast<std::uint64_t>(level.next++)));
    Ref<IHostXmlNode> copy = copyOf(document, child);
    copyAttributes(document, child, copy);
    level.target->AppendChild(*copy);
    return {child, std::move(copy)};
}

void copyChildren(IHostXmlDocument& document, const NodePtr& source,
                  const Ref<IHostXmlNode>& target) {
    std::vector<Level> path{{source, target}};
    while (!path.empty()) {
        if (path.back().next >= path.back().count) {
            path.pop_back();
        } else {
            path.push_back(copyNextChild(document, path.back()));
        }
    }
}

}  // namespace

Ref<IHostXmlNode> importNode(IHostXmlDocument& document, const NodePtr& source) {
    if (source == nullptr) return {};
    Ref<IHostXmlNode> copy = copyOfRoot(document, source);
    copyAttributes(document, source, copy);
    copyChildren(document, source, copy);
    return copy;
}

}  // namespace Meridax::Utils::Dcom::Utils
