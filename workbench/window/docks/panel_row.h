#pragma once

#include "plugin/framework/host/panel/host_widgets.h"
#include "plugin/framework/host/ref.h"

#include <QFormLayout>
#include <QPointer>
#include <QWidget>

#include <functional>
#include <string>

namespace Rotavue::Workbench {

namespace Host = Meridax::Host;

/// Hears which widget the user has changed.
using WidgetChanged = std::function<void(Host::Ref<Host::IHostPropertyControl>)>;

/// Where a widget of the panel stands on the screen. A plug-in may hold a widget for longer than
/// the window shows it: then all of this does nothing.
class PanelRow {
public:
    PanelRow(QFormLayout& form, QWidget& editor) : form_(&form), editor_(&editor) {}

    void setVisible(bool visible) const;
    void setEnabled(bool enabled) const;

    /// Takes the row out of its form and destroys what stands in it.
    void remove() const;

private:
    QPointer<QFormLayout> form_;
    QPointer<QWidget> editor_;
};

/// A caption as Qt's labels take it: an ampersand stands for itself.
QString plainCaption(const std::wstring& caption);

}  // namespace Rotavue::Workbench
