#pragma once

#include "plugin/framework/host/panel/host_property_panel.h"
#include "plugin/framework/host/panel/host_widgets.h"
#include "plugin/module/windows/interfaces/operation.h"

namespace Meridax::Host::Binary {

template <>
struct Table<IHostPropertyPanel> {
    static constexpr std::string_view Text = "IHostPropertyPanel";
    using Operations = OperationList<Operation<1, "GetPage", &IHostPropertyPanel::GetPage>,
                                     Operation<3, "AddPage", &IHostPropertyPanel::AddPage>>;
};

template <>
struct Table<IHostPropertyPage> {
    static constexpr std::string_view Text = "IHostPropertyPage";
    using Operations =
        OperationList<Operation<2, "AddGroup", &IHostPropertyPage::AddGroup>,
                      Operation<3, "AddNumberEdit", &IHostPropertyPage::AddNumberEdit>,
                      Operation<4, "FindControl", &IHostPropertyPage::FindControl>,
                      Operation<6, "AddColorEdit", &IHostPropertyPage::AddColorEdit>,
                      Operation<7, "AddFloatEdit", &IHostPropertyPage::AddFloatEdit>,
                      Operation<9, "AddComboBox", &IHostPropertyPage::AddComboBox>,
                      Operation<10, "AddCheckBox", &IHostPropertyPage::AddCheckBox>>;
};

template <>
struct Table<IHostPropertyControl> {
    static constexpr std::string_view Text = "IHostPropertyControl";
    using Operations = OperationList<Operation<1, "GetName", &IHostPropertyControl::GetName>,
                                     Operation<9, "SetVisible", &IHostPropertyControl::SetVisible>,
                                     Operation<11, "SetEnabled", &IHostPropertyControl::SetEnabled>,
                                     Operation<13, "SetFlag", &IHostPropertyControl::SetFlag>>;
};

template <>
struct Table<IHostCheckBox> {
    static constexpr std::string_view Text = "IHostCheckBox";
    using Operations =
        OperationList<Operation<1, "GetChecked", &IHostCheckBox::GetChecked, Truth::AsShort>,
                      Operation<2, "SetChecked", &IHostCheckBox::SetChecked>>;
};

template <>
struct Table<IHostComboBox> {
    static constexpr std::string_view Text = "IHostComboBox";
    using Operations = OperationList<Operation<1, "GetIndex", &IHostComboBox::GetIndex>,
                                     Operation<2, "SetIndex", &IHostComboBox::SetIndex>,
                                     Operation<4, "AddItem", &IHostComboBox::AddItem>>;
};

template <>
struct Table<IHostFloatEdit> {
    static constexpr std::string_view Text = "IHostFloatEdit";
    using Operations = OperationList<Operation<1, "GetValue", &IHostFloatEdit::GetValue>,
                                     Operation<2, "SetValue", &IHostFloatEdit::SetValue>,
                                     Operation<4, "SetMin", &IHostFloatEdit::SetMin>,
                                     Operation<6, "SetMax", &IHostFloatEdit::SetMax>>;
};

template <>
struct Table<IHostColorEdit> {
    static constexpr std::string_view Text = "IHostColorEdit";
    using Operations = OperationList<Operation<1, "GetColor", &IHostColorEdit::GetColor>,
                                     Operation<2, "SetColor", &IHostColorEdit::SetColor>>;
};

template <>
struct Table<IHostNumberEdit> {
    static constexpr std::string_view Text = "IHostNumberEdit";
    using Operations = OperationList<Operation<1, "GetValue", &IHostNumberEdit::GetValue>,
                                     Operation<2, "SetValue", &IHostNumberEdit::SetValue>,
                                     Operation<4, "SetMin", &IHostNumberEdit::SetMin>,
                                     Operation<6, "SetMax", &IHostNumberEdit::SetMax>>;
};

}  // namespace Meridax::Host::Binary
