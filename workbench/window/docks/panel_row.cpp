#include "workbench/window/docks/panel_row.h"

namespace Rotavue::Workbench {

void PanelRow::setVisible(bool visible) const {
    if (form_ && editor_) form_->setRowVisible(editor_, visible);
}

void PanelRow::setEnabled(bool enabled) const {
    if (!form_ || !editor_) return;
    editor_->setEnabled(enabled);
    if (QWidget* label = form_->labelForField(editor_)) label->setEnabled(enabled);
}

void PanelRow::remove() const {
    if (form_ && editor_) form_->removeRow(editor_);
}

QString plainCaption(const std::wstring& caption) {
    return QString::fromStdWString(caption).replace('&', QStringLiteral("&&"));
}

}  // namespace Rotavue::Workbench
