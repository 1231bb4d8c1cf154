#pragma once

#include "plugin/framework/host/document/host_xml.h"
#include "plugin/module/windows/interfaces/operation.h"

namespace Meridax::Host::Binary {

template <>
struct Table<IHostXmlFactory> {
    static constexpr std::string_view Text = "IHostXmlFactory";
    using Operations =
        OperationList<Operation<1, "CreateDocument", &IHostXmlFactory::CreateDocument>>;
};

template <>
struct Table<IHostXmlDocument> {
    static constexpr std::string_view Text = "IHostXmlDocument";
    using Operations = OperationList<Operation<1, "GetRootNode", &IHostXmlDocument::GetRootNode>,
                                     Operation<2, "SetRootNode", &IHostXmlDocument::SetRootNode>,
                                     Operation<3, "CreateNode", &IHostXmlDocument::CreateNode>,
                                     Operation<10, "WriteValue", &IHostXmlDocument::WriteValue>,
                                     Operation<11, "ReadValue", &IHostXmlDocument::ReadValue>,
                                     Operation<13, "GetMode", &IHostXmlDocument::GetMode>,
                                     Operation<14, "SetMode", &IHostXmlDocument::SetMode>>;
};

template <>
struct Table<IHostXmlNode> {
    static constexpr std::string_view Text = "IHostXmlNode";
    using Operations =
        OperationList<Operation<1, "SetValue", &IHostXmlNode::SetValue>,
                      Operation<2, "AppendChild", &IHostXmlNode::AppendChild>,
                      Operation<3, "RemoveChild", &IHostXmlNode::RemoveChild>,
                      Operation<4, "ClearChildren", &IHostXmlNode::ClearChildren>,
                      Operation<5, "FindChild", &IHostXmlNode::FindChild>,
                      Operation<6, "GetChild", &IHostXmlNode::GetChild>,
                      Operation<7, "GetChildCount", &IHostXmlNode::GetChildCount>,
                      Operation<8, "Clone", &IHostXmlNode::Clone>,
                      Operation<9, "GetParent", &IHostXmlNode::GetParent>,
                      Operation<10, "AppendAttribute", &IHostXmlNode::AppendAttribute>,
                      Operation<11, "RemoveAttribute", &IHostXmlNode::RemoveAttribute>,
                      Operation<12, "FindAttribute", &IHostXmlNode::FindAttribute>,
                      Operation<13, "GetAttribute", &IHostXmlNode::GetAttribute>,
                      Operation<14, "GetAttributeCount", &IHostXmlNode::GetAttributeCount>,
                      Operation<15, "ClearAttributes", &IHostXmlNode::ClearAttributes>,
                      Operation<16, "GetName", &IHostXmlNode::GetName>,
                      Operation<17, "GetValue", &IHostXmlNode::GetValue>>;
};

}  // namespace Meridax::Host::Binary
