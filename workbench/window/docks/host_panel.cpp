#include "workbench/window/docks/host_panel.h"

#include "plugin/framework/host/host_error.h"
#include "workbench/window/docks/color_button.h"
#include "workbench/window/docks/panel_widgets.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QEvent>
#include <QFormLayout>
#include <QGroupBox>
#include <QScrollArea>
#include <QSpinBox>
#include <QVBoxLayout>

namespace Rotavue::Workbench {

using Host::Ref;

namespace {

/// A number counts once it is entered, not with each of its digits.
template <class Box>
Box* numberBox() {
    auto* box = new Box;
    box->setKeyboardTracking(false);
    box->setAccelerated(true);
    return box;
}

/// The object as what the plug-in asked for.
template <class Interface, class Object>
Ref<Interface> asInterface(const Ref<Object>& object) {
    return Ref<Interface>::share(object.get());
}

/// Keeps the wheel, which scrolls the page, from changing a setting that the pointer happens to
/// pass: an editor takes it once it has the focus.
class WheelGuard final : public QObject {
public:
    explicit WheelGuard(QWidget& editor) : QObject(&editor) {
        editor.setFocusPolicy(Qt::StrongFocus);
        editor.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::Wheel) return false;
        if (static_cast<QWidget*>(watched)->hasFocus()) return false;
        event->ignore();
        return true;
    }
};

/// The place of the page of that name, or behind the last one.
int tabOf(const QTabWidget& tabs, const QString& name) {
    for (int i = 0; i < tabs.count(); ++i)
        if (tabs.widget(i)->objectName() == name) return i;
    return tabs.count();
}

}  // namespace

void removePage(QTabWidget& tabs, int place) {
    QWidget* page = tabs.widget(place);
    tabs.removeTab(place);
    page->hide();
    page->setParent(nullptr);
    page->deleteLater();
}

HostPage::HostPage(QWidget& body, WidgetChanged changed)
    : body_(&body), changed_(std::move(changed)) {}

void HostPage::openGroup(const QString& caption) {
    auto* group = new QGroupBox(caption);
    form_ = new QFormLayout(group);
    form_->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    auto* groups = qobject_cast<QVBoxLayout*>(body_->layout());
    groups->insertWidget(groups->count() - 1, group);
}

void HostPage::openForm() {
    if (!body_) throw Host::HostError(Host::Status::Abort);
    if (!form_) openGroup({});
}

void HostPage::AddGroup(const std::wstring& caption) {
    if (body_) openGroup(plainCaption(caption));
}

template <class Editor>
Editor& HostPage::labelled(Editor* editor, const std::wstring& caption) {
    form_->addRow(plainCaption(caption), editor);
    return *editor;
}

template <class Widget, class Editor>
Ref<Widget> HostPage::enter(const std::wstring& name, const std::wstring& caption, Editor& editor) {
    const PanelRow row(*form_, editor);
    const auto widget = Ref<Widget>::share(new Widget(name, row, changed_, editor));
    if (const auto old = widgets_.find(name); old != widgets_.end()) old->second.row.remove();
    editor.setObjectName(QString::fromStdWString(name));
    editor.setAccessibleName(QString::fromStdWString(caption));
    new WheelGuard(editor);
    auto* object = static_cast<Host::IHostPropertyControl*>(widget.get());
    widgets_.insert_or_assign(name, Entry{Ref<Host::IHostObject>::share(object), row});
    return widget;
}

Ref<Host::IHostNumberEdit> HostPage::AddNumberEdit(const std::wstring& name,
                                                   const std::wstring& caption) {
    openForm();
    return asInterface<Host::IHostNumberEdit>(
        enter<PanelNumberEdit>(name, caption, labelled(numberBox<QSpinBox>(), caption)));
}

Ref<Host::IHostObject> HostPage::FindControl(const std::wstring& name) {
    const auto found = widgets_.find(name);
    return found != widgets_.end() ? found->second.widget : Ref<Host::IHostObject>();
}

Ref<Host::IHostColorEdit> HostPage::AddColorEdit(const std::wstring& name,
                                                 const std::wstring& caption) {
    openForm();
    return asInterface<Host::IHostColorEdit>(
        enter<PanelColorEdit>(name, caption, labelled(new ColorButton, caption)));
}

Ref<Host::IHostFloatEdit> HostPage::AddFloatEdit(const std::wstring& name,
                                                 const std::wstring& caption) {
    openForm();
    return asInterface<Host::IHostFloatEdit>(
        enter<PanelFloatEdit>(name, caption, labelled(numberBox<QDoubleSpinBox>(), caption)));
}

Ref<Host::IHostComboBox> HostPage::AddComboBox(const std::wstring& name,
                                               const std::wstring& caption) {
    openForm();
    return asInterface<Host::IHostComboBox>(
        enter<PanelComboBox>(name, caption, labelled(new QComboBox, caption)));
}

Ref<Host::IHostCheckBox> HostPage::AddCheckBox(const std::wstring& name,
                                               const std::wstring& caption) {
    openForm();
    auto* box = new QCheckBox(plainCaption(caption));
    form_->addRow(box);
    return asInterface<Host::IHostCheckBox>(enter<PanelCheckBox>(name, caption, *box));
}

HostPanel::HostPanel(QTabWidget& tabs, WidgetChanged changed)
    : tabs_(&tabs), changed_(std::move(changed)) {}

Ref<Host::IHostPropertyPage> HostPanel::GetPage(const std::wstring& name) {
    const auto found = pages_.find(name);
    if (found == pages_.end()) return {};
    return Ref<Host::IHostPropertyPage>::share(found->second.get());
}

Ref<Host::IHostPropertyPage> HostPanel::AddPage(const std::wstring& name) {
    if (!tabs_) throw Host::HostError(Host::Status::Abort);
    auto* scroll = new QScrollArea;
    scroll->setObjectName(QString::fromStdWString(name));
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    auto* body = new QWidget;
    (new QVBoxLayout(body))->addStretch();
    scroll->setWidget(body);
    const int place = tabOf(*tabs_, scroll->objectName());
    if (place < tabs_->count()) removePage(*tabs_, place);
    tabs_->insertTab(place, scroll, plainCaption(name));
    const auto page = Ref<HostPage>::share(new HostPage(*body, changed_));
    pages_.insert_or_assign(name, page);
    return asInterface<Host::IHostPropertyPage>(page);
}

}  // namespace Rotavue::Workbench
