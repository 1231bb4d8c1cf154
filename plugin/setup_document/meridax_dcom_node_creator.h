#pragma once

#include "plugin/setup_document/meridax_dcom_node.h"

namespace Meridax::Utils::Dcom::Utils {

/// The class of every node that a node hands out.
class MeridaxDCOMNodeCreator : public MeridaxDCOMNode {
public:
    using MeridaxDCOMNode::MeridaxDCOMNode;
};

}  // namespace Meridax::Utils::Dcom::Utils
