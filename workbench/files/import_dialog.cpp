#include "workbench/files/import_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

#include "workbench/files/import_fields.h"
#include "workbench/recording/machine_file.h"
#include "workbench/recording/option_text.h"
#include "workbench/recording/recording_error.h"

namespace Rotavue::Workbench {

/// How a role is called, and where the name of its column stands in a machine file.
struct RoleName {
    ColumnRole role;
    const char* name;
    const char* pointer;
};

namespace {

constexpr std::array RoleNames = {
    RoleName{ColumnRole::Unused, QT_TRANSLATE_NOOP("ImportDialog", "not used"), ""},
    RoleName{ColumnRole::Time, QT_TRANSLATE_NOOP("ImportDialog", "time"), "/time/column"},
    RoleName{ColumnRole::X, QT_TRANSLATE_NOOP("ImportDialog", "X probe"), "/x/column"},
    RoleName{ColumnRole::Y, QT_TRANSLATE_NOOP("ImportDialog", "Y probe"), "/y/column"},
    RoleName{ColumnRole::Keyphasor, QT_TRANSLATE_NOOP("ImportDialog", "keyphasor"),
             "/keyphasor/column"},
};

QString text(const std::string& utf8) {
    return QString::fromStdString(utf8);
}

QString headerOf(const RecordingColumn& column) {
    return text(column.unit.empty() ? column.name : column.name + " [" + column.unit + ']');
}

}  // namespace

ImportDialog::ImportDialog(const ImportPreview& preview, const RecordingOptions& known,
                           QWidget* parent, ImportPurpose purpose)
    : QDialog(parent),
      preview_(preview),
      options_(known),
      fields_(new ImportFields(preview, this)) {
    setObjectName(QStringLiteral("importDialog"));
    setWindowTitle(tr("What %1 holds").arg(text(preview.file.filename().string())));
    auto* column = new QVBoxLayout(this);
    column->addWidget(makeTable(), 1);
    column->addWidget(fields_);
    column->addWidget(makeEnd(purpose));
    fields_->fill(known);
    showUnits();
    resize(860, 700);
}

// The first row of the table holds the roles, those below the file's first rows.
QWidget* ImportDialog::makeTable() {
    const int columns = static_cast<int>(preview_.columns.size());
    auto* table = new QTableWidget(static_cast<int>(preview_.rows.size()) + 1, columns, this);
    table->setObjectName(QStringLiteral("importRows"));
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->verticalHeader()->hide();
    for (int i = 0; i < columns; ++i) {
        const auto index = static_cast<std::size_t>(i);
        const RecordingColumn& column = preview_.columns[index];
        table->setHorizontalHeaderItem(i, new QTableWidgetItem(headerOf(column)));
        table->setCellWidget(0, i, makeRoles(index, table));
        for (std::size_t row = 0; row < preview_.rows.size(); ++row)
            table->setItem(static_cast<int>(row) + 1, i,
                           new QTableWidgetItem(text(preview_.rows[row][index])));
    }
    table->resizeColumnsToContents();
    return table;
}

QComboBox* ImportDialog::makeRoles(std::size_t column, QWidget* parent) {
    auto* roles = new QComboBox(parent);
    for (const RoleName& role : RoleNames)
        roles->addItem(tr(role.name));
    roles->setCurrentIndex(static_cast<int>(preview_.columns[column].role));
    roles->setObjectName(QStringLiteral("role%1").arg(column + 1));
    roles->setAccessibleName(tr("Role of column %1").arg(headerOf(preview_.columns[column])));
    connect(roles, &QComboBox::currentIndexChanged, this, &ImportDialog::showUnits);
    roles_.push_back(roles);
    return roles;
}

QWidget* ImportDialog::makeEnd(ImportPurpose purpose) {
    auto* box = new QWidget(this);
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(0, 0, 0, 0);
    silent_ = new QCheckBox(tr("Use &again without asking for recordings of this shape"), box);
    silent_->setObjectName(QStringLiteral("useWithoutAsking"));
    const auto machineFile = machineFileOf(preview_.file).filename().string();
    beside_ = new QCheckBox(tr("Keep it &beside the recording, in %1").arg(text(machineFile)), box);
    beside_->setObjectName(QStringLiteral("keepBeside"));
    beside_->setChecked(true);
    // Without names any other file of as many columns would have this shape.
    silent_->setHidden(!preview_.hasNames);
    fault_ = new QLabel(box);
    fault_->setObjectName(QStringLiteral("importFault"));
    fault_->setTextFormat(Qt::PlainText);
    fault_->setWordWrap(true);
    fault_->hide();
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Open | QDialogButtonBox::Cancel, box);
    if (purpose == ImportPurpose::Correct)
        buttons->button(QDialogButtonBox::Open)->setText(tr("&Read again"));
    connect(buttons, &QDialogButtonBox::accepted, this, &ImportDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ImportDialog::reject);
    for (QWidget* widget : {static_cast<QWidget*>(silent_), static_cast<QWidget*>(beside_),
                            static_cast<QWidget*>(fault_), static_cast<QWidget*>(buttons)})
        column->addWidget(widget);
    return box;
}

void ImportDialog::showUnits() {
    ColumnUnits units;
    for (std::size_t i = 0; i < roles_.size(); ++i) {
        const std::string& unit = preview_.columns[i].unit;
        if (roleOf(i) == ColumnRole::X) units.x = unit;
        if (roleOf(i) == ColumnRole::Y) units.y = unit;
        if (roleOf(i) == ColumnRole::Keyphasor) units.keyphasor = unit;
    }
    fields_->setColumnUnits(units);
}

void ImportDialog::keepNothing() {
    for (QCheckBox* box : {silent_, beside_}) {
        box->setChecked(false);
        box->hide();
    }
}

bool ImportDialog::isUsedWithoutAsking() const {
    return silent_->isChecked();
}

bool ImportDialog::isKeptBeside() const {
    return beside_->isChecked();
}

void ImportDialog::accept() {
    RecordingOptions options = options_;
    if (!takeFields(options) || !takeRoles(options)) return;
    options_ = options;
    QDialog::accept();
}

ColumnRole ImportDialog::roleOf(std::size_t column) const {
    return RoleNames[static_cast<std::size_t>(roles_[column]->currentIndex())].role;
}

// A name that several columns have, and one that a machine file would not take, is told by place.
std::string ImportDialog::columnName(std::size_t column) const {
    const std::string& name = preview_.columns[column].name;
    const auto same =
        std::count_if(preview_.columns.begin(), preview_.columns.end(),
                      [&](const RecordingColumn& other) { return other.name == name; });
    const bool plain = same == 1 && name.size() <= LongestItemText && !name.starts_with('#');
    return plain ? name : '#' + std::to_string(column + 1);
}

bool ImportDialog::takeRoles(RecordingOptions& options) {
    for (const RoleName& role : RoleNames)
        if (role.role != ColumnRole::Unused && !takeRole(options, role)) return false;
    if (!options.keyphasor.column) options.keyphasor.kind = KeyphasorKind::None;
    const bool timed = options.timeColumn || options.rate || preview_.rate;
    if (timed) return true;
    return refuse(fields_->rateField(), tr("A time column or a sample rate is needed"));
}

bool ImportDialog::takeRole(RecordingOptions& options, const RoleName& role) {
    bool taken = false;
    clearItem(options, itemAt(role.pointer));
    for (std::size_t i = 0; i < roles_.size(); ++i) {
        if (roleOf(i) != role.role) continue;
        if (taken) return refuse(roles_[i], tr("Two columns have the role: %1").arg(tr(role.name)));
        taken = setItem(options, itemAt(role.pointer), columnName(i));
    }
    const bool needed = role.role == ColumnRole::X || role.role == ColumnRole::Y;
    if (taken || !needed) return true;
    return refuse(roles_.front(), tr("No column has the role: %1").arg(tr(role.name)));
}

bool ImportDialog::takeFields(RecordingOptions& options) {
    const auto fault = fields_->take(options);
    return !fault || refuse(fault->widget, fault->line);
}

bool ImportDialog::refuse(QWidget* widget, const QString& line) {
    fault_->setText(line);
    fault_->show();
    widget->setFocus();
    return false;
}

}  // namespace Rotavue::Workbench
