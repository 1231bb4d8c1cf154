#pragma once

#include "plugin/framework/host/host_object.h"
#include "plugin/framework/host/ref.h"

#include <string>

namespace Meridax::Host {

class IHostCheckBox;
class IHostColorEdit;
class IHostComboBox;
class IHostFloatEdit;
class IHostNumberEdit;

/// [host implements] One page of the property panel; it makes the widgets. It comes from
/// `IHostPropertyPanel`.
class IHostPropertyPage : public IHostObject {
public:
    static constexpr Guid Identifier = guid("{46D31C0C-521F-4E84-BF6D-0551CEE2C923}");

    /// Opens a captioned group; widgets added later fall into it. [place 2]
    virtual void AddGroup(const std::wstring& caption) = 0;

    /// Adds an integer edit. [place 3 | never null in normal use]
    virtual Ref<IHostNumberEdit> AddNumberEdit(const std::wstring& name,
                                               const std::wstring& caption) = 0;

    /// Finds a widget of the page by its name: a base object that is asked for the widget's own
    /// interface. [place 4 | may be null]
    virtual Ref<IHostObject> FindControl(const std::wstring& name) = 0;

    /// Adds a colour picker. [place 6 | never null in normal use]
    virtual Ref<IHostColorEdit> AddColorEdit(const std::wstring& name,
                                             const std::wstring& caption) = 0;

    /// Adds a floating-point edit. [place 7 | never null in normal use]
    virtual Ref<IHostFloatEdit> AddFloatEdit(const std::wstring& name,
                                             const std::wstring& caption) = 0;

    /// Adds a drop-down list. [place 9 | never null in normal use]
    virtual Ref<IHostComboBox> AddComboBox(const std::wstring& name,
                                           const std::wstring& caption) = 0;

    /// Adds a check box. [place 10 | never null in normal use]
    virtual Ref<IHostCheckBox> AddCheckBox(const std::wstring& name,
                                           const std::wstring& caption) = 0;

protected:
    ~IHostPropertyPage() = default;
};

/// [host implements] The property panel, a set of pages. It comes as the argument of messages 34
/// and 35.
class IHostPropertyPanel : public IHostObject {
public:
    static constexpr Guid Identifier = guid("{48B39869-9B9A-4D13-8763-A595B4155C57}");

    /// The page created earlier under that name. [place 1 | may be null]
    virtual Ref<IHostPropertyPage> GetPage(const std::wstring& name) = 0;

    /// Adds a page and gives it. [place 3 | never null in normal use]
    virtual Ref<IHostPropertyPage> AddPage(const std::wstring& name) = 0;

protected:
    ~IHostPropertyPanel() = default;
};

}  // namespace Meridax::Host
