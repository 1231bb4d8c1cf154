#pragma once

#include "plugin/framework/host/panel/host_property_panel.h"
#include "plugin/framework/host/panel/host_widgets.h"
#include "workbench/window/docks/panel_row.h"
#include "workbench/window/docks/shared_object.h"

#include <QPointer>
#include <QTabWidget>

#include <map>
#include <string>

class QFormLayout;
class QVBoxLayout;

namespace Rotavue::Workbench {

/// Takes a page out of the tabs; it goes once the signal that is being delivered is over.
void removePage(QTabWidget& tabs, int place);

/// One page of the property panel: groups of rows on a page of tabs that scrolls where it is too
/// long. Adding a widget under a name that is taken puts a fresh one in its place. A widget that is
/// added once the window no longer shows the page is refused with 0x80004004.
class HostPage final : public SharedObject<Host::IHostPropertyPage> {
public:
    HostPage(QWidget& body, WidgetChanged changed);

    void AddGroup(const std::wstring& caption) override;
    Host::Ref<Host::IHostNumberEdit> AddNumberEdit(const std::wstring& name,
                                                   const std::wstring& caption) override;
    Host::Ref<Host::IHostObject> FindControl(const std::wstring& name) override;
    Host::Ref<Host::IHostColorEdit> AddColorEdit(const std::wstring& name,
                                                 const std::wstring& caption) override;
    Host::Ref<Host::IHostFloatEdit> AddFloatEdit(const std::wstring& name,
                                                 const std::wstring& caption) override;
    Host::Ref<Host::IHostComboBox> AddComboBox(const std::wstring& name,
                                               const std::wstring& caption) override;
    Host::Ref<Host::IHostCheckBox> AddCheckBox(const std::wstring& name,
                                               const std::wstring& caption) override;

private:
    struct Entry {
        Host::Ref<Host::IHostObject> widget;
        PanelRow row;
    };

    template <class Editor>
    Editor& labelled(Editor* editor, const std::wstring& caption);
    template <class Widget, class Editor>
    Host::Ref<Widget> enter(const std::wstring& name, const std::wstring& caption, Editor& editor);
    void openForm();
    void openGroup(const QString& caption);

    QPointer<QWidget> body_;
    QPointer<QFormLayout> form_;
    WidgetChanged changed_;
    std::map<std::wstring, Entry> widgets_;
};

/// The property panel as a plug-in fills it, over a widget of tabs. Adding a page under a name that
/// is taken puts a fresh one in its place.
class HostPanel final : public SharedObject<Host::IHostPropertyPanel> {
public:
    HostPanel(QTabWidget& tabs, WidgetChanged changed);

    Host::Ref<Host::IHostPropertyPage> GetPage(const std::wstring& name) override;
    Host::Ref<Host::IHostPropertyPage> AddPage(const std::wstring& name) override;

private:
    QPointer<QTabWidget> tabs_;
    WidgetChanged changed_;
    std::map<std::wstring, Host::Ref<HostPage>> pages_;
};

}  // namespace Rotavue::Workbench
