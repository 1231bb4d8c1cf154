#pragma once

#include "plugin/framework/host/document/host_xml.h"
#include "plugin/framework/host/ref.h"
#include "plugin/setup_document/node.h"

namespace Meridax::Utils::Dcom::Utils {

/// A copy of the tree below `source` as nodes of `document`, attached to nothing; null for an empty
/// source. `source` is a tree of any depth: the walk keeps its path on the heap.
///
/// The name and value of `source` itself go through strict UTF-8, so that invalid text there
/// becomes empty; all below it goes the way of other texts.
Host::Ref<Host::IHostXmlNode> importNode(Host::IHostXmlDocument& document,
                                         const Serialization::NodePtr& source);

}  // namespace Meridax::Utils::Dcom::Utils
