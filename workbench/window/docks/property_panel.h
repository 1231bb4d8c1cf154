#pragma once

#include "plugin/framework/host/panel/host_property_panel.h"
#include "plugin/framework/host/panel/host_widgets.h"
#include "plugin/framework/host/ref.h"

#include <QString>
#include <QWidget>

#include <functional>

class QTabWidget;

namespace Rotavue::Workbench {

class ElidedLabel;
class HostPanel;

namespace Host = Meridax::Host;

/// The messages of one control that the property panel needs. Each sends one and may throw.
struct PanelMessages {
    std::function<void(Host::Ref<Host::IHostPropertyPanel>)> build;   ///< 34, once per panel
    std::function<void(Host::Ref<Host::IHostPropertyPanel>)> fill;    ///< 35
    std::function<void(Host::Ref<Host::IHostPropertyControl>)> read;  ///< 36, after a change
};

/// The property panel of one control: the pages and widgets that the plug-in itself describes. What
/// the user changes goes to the control at once; the panel is then filled anew, which is when the
/// plug-in shows, hides, enables and disables the other widgets.
class PropertyPanel final : public QWidget {
    Q_OBJECT

public:
    explicit PropertyPanel(QWidget* parent = nullptr);
    ~PropertyPanel() override;

    /// Shows the pages of that control, in the place of any other's; the tab of the same name stays
    /// in front.
    void show(const QString& controlName, PanelMessages messages);

    /// The control that is shown has another name now.
    void rename(const QString& controlName);

    /// Shows that there is no control.
    void clear();

    /// Fills the widgets anew: the settings have changed elsewhere, by an edit in place or by undo.
    void refresh();

    QSize sizeHint() const override { return {260, 380}; }

Q_SIGNALS:
    /// The control has taken a change of that widget, and its settings may be others than before.
    /// Its accessible name is its caption; null where the widget is gone.
    void changed(const QWidget* editor);

    /// The control refused a message.
    void failed(const QString& message);

private:
    void take(const Host::Ref<Host::IHostPropertyControl>& widget);
    void guard(const std::function<void()>& messages);
    const QWidget* editorOf(const Host::Ref<Host::IHostPropertyControl>& widget) const;

    ElidedLabel* title_;
    QTabWidget* tabs_;
    PanelMessages messages_;
    Host::Ref<HostPanel> panel_;
};

}  // namespace Rotavue::Workbench
