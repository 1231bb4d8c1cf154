#include "workbench/files/import_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

#include "workbench/recording/machine_file.h"
#include "workbench/recording/option_text.h"
#include "workbench/recording/recording_error.h"

namespace Rotavue::Workbench {
namespace {

struct RoleName {
    ColumnRole role;
    const char* name;
    const char* pointer;  // of the column's name in a machine file
};

constexpr std::array RoleNames = {
    RoleName{ColumnRole::Unused, QT_TRANSLATE_NOOP("ImportDialog", "not used"), ""},
    RoleName{ColumnRole::Time, QT_TRANSLATE_NOOP("ImportDialog", "time"), "/time/column"},
    RoleName{ColumnRole::X, QT_TRANSLATE_NOOP("ImportDialog", "X probe"), "/x/column"},
    RoleName{ColumnRole::Y, QT_TRANSLATE_NOOP("ImportDialog", "Y probe"), "/y/column"},
    RoleName{ColumnRole::Keyphasor, QT_TRANSLATE_NOOP("ImportDialog", "keyphasor"),
             "/keyphasor/column"},
};

// How a clearance was measured, by its place in the box; the first one is no answer.
constexpr int ClearanceDiametral = 1;
constexpr int ClearanceRadial = 2;

QString text(const std::string& utf8) {
    return QString::fromStdString(utf8);
}

QString nameOf(std::string_view pointer) {
    return QString::fromUtf8(pointer.data(), static_cast<qsizetype>(pointer.size()));
}

QString headerOf(const RecordingColumn& column) {
    return text(column.unit.empty() ? column.name : column.name + " [" + column.unit + ']');
}

QString allowed(const OptionItem& item) {
    return text(allowedText(item.kind));
}

}  // namespace

ImportDialog::ImportDialog(const ImportPreview& preview, const RecordingOptions& known,
                           QWidget* parent)
    : QDialog(parent), preview_(preview), options_(known) {
    setObjectName(QStringLiteral("importDialog"));
    setWindowTitle(tr("What %1 holds").arg(text(preview.file.filename().string())));
    auto* column = new QVBoxLayout(this);
    column->addWidget(makeTable(), 1);
    column->addWidget(makeFields());
    column->addWidget(makeEnd());
    fill(known);
    resize(760, 640);
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
        auto* roles = new QComboBox(table);
        for (const RoleName& role : RoleNames)
            roles->addItem(tr(role.name));
        roles->setCurrentIndex(static_cast<int>(column.role));
        roles->setObjectName(QStringLiteral("role%1").arg(i + 1));
        roles->setAccessibleName(tr("Role of column %1").arg(headerOf(column)));
        roles_.push_back(roles);
        table->setCellWidget(0, i, roles);
        for (std::size_t row = 0; row < preview_.rows.size(); ++row)
            table->setItem(static_cast<int>(row) + 1, i,
                           new QTableWidgetItem(text(preview_.rows[row][index])));
    }
    table->resizeColumnsToContents();
    return table;
}

QWidget* ImportDialog::makeFields() {
    auto* box = new QWidget(this);
    auto* sides = new QHBoxLayout(box);
    sides->setContentsMargins(0, 0, 0, 0);
    auto* left = new QFormLayout;
    auto* right = new QFormLayout;
    sides->addLayout(left, 1);
    sides->addLayout(right, 1);
    const QString rate = preview_.rate ? text(numberText(*preview_.rate)) : tr("from the time");
    addField(*left, tr("&Sample rate, Hz"), "/rate", rate);
    addField(*left, tr("&Unit"), "/unit",
             preview_.unit.empty() ? tr("such as um") : text(preview_.unit));
    addField(*left, tr("&X probe at"), "/x/angle", tr("90, or 45 R"));
    addField(*left, tr("&Y probe at"), "/y/angle", tr("0, or 45 L"));
    addField(*left, tr("X: volts for one unit"), "/x/sensitivity", tr("1"));
    addField(*left, tr("Y: volts for one unit"), "/y/sensitivity", tr("1"));
    addWords(*left, tr("&Rotation"), "/rotation", {tr("not known"), "CW", "CCW"});
    addWords(*right, tr("&Keyphasor holds"), "/keyphasor/kind",
             {tr("what its values look like"), "none", "volts", "ramp", "speed"});
    addWords(*right, tr("Pulse &edge"), "/keyphasor/edge", {"rising", "falling"});
    addField(*right, tr("Pulse &level, V"), "/keyphasor/level", tr("halfway"));
    addField(*right, tr("&Pulses per turn"), "/keyphasor/pulsesPerTurn", tr("1"));
    addField(*right, tr("Keyphasor at"), "/keyphasor/angle", tr("0"));
    right->addRow(tr("&Clearance"), makeClearance());
    return box;
}

QWidget* ImportDialog::makeClearance() {
    auto* box = new QWidget(this);
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    width_ = new QLineEdit(box);
    width_->setObjectName(QStringLiteral("clearanceWidth"));
    width_->setPlaceholderText(tr("across"));
    height_ = new QLineEdit(box);
    height_->setObjectName(QStringLiteral("clearanceHeight"));
    height_->setPlaceholderText(tr("upright"));
    clearanceKind_ = new QComboBox(box);
    clearanceKind_->setObjectName(QStringLiteral("clearanceKind"));
    clearanceKind_->addItems({tr("of which?"), tr("diameters"), tr("radii")});
    for (QWidget* widget : {static_cast<QWidget*>(width_), static_cast<QWidget*>(height_),
                            static_cast<QWidget*>(clearanceKind_)})
        row->addWidget(widget);
    return box;
}

QWidget* ImportDialog::makeEnd() {
    auto* box = new QWidget(this);
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(0, 0, 0, 0);
    silent_ = new QCheckBox(tr("Use &again without asking for recordings of this shape"), box);
    silent_->setObjectName(QStringLiteral("useWithoutAsking"));
    const auto machineFile = machineFileOf(preview_.file).filename().string();
    beside_ = new QCheckBox(tr("Keep it &beside the recording, in %1").arg(text(machineFile)), box);
    beside_->setObjectName(QStringLiteral("keepBeside"));
    beside_->setChecked(true);
    fault_ = new QLabel(box);
    fault_->setObjectName(QStringLiteral("importFault"));
    fault_->setTextFormat(Qt::PlainText);
    fault_->setWordWrap(true);
    fault_->hide();
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Open | QDialogButtonBox::Cancel, box);
    connect(buttons, &QDialogButtonBox::accepted, this, &ImportDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ImportDialog::reject);
    for (QWidget* widget : {static_cast<QWidget*>(silent_), static_cast<QWidget*>(beside_),
                            static_cast<QWidget*>(fault_), static_cast<QWidget*>(buttons)})
        column->addWidget(widget);
    return box;
}

void ImportDialog::addField(QFormLayout& form, const QString& name, std::string_view pointer,
                            const QString& hint) {
    auto* field = new QLineEdit(this);
    field->setObjectName(nameOf(pointer));
    field->setPlaceholderText(hint);
    field->setToolTip(allowed(itemAt(pointer)));
    form.addRow(name, field);
    fields_[std::string(pointer)] = field;
}

// A word that no machine file takes says that nothing is told.
void ImportDialog::addWords(QFormLayout& form, const QString& name, std::string_view pointer,
                            const QStringList& words) {
    auto* box = new QComboBox(this);
    box->setObjectName(nameOf(pointer));
    box->addItems(words);
    form.addRow(name, box);
    words_[std::string(pointer)] = box;
}

void ImportDialog::fill(const RecordingOptions& known) {
    for (const auto& [pointer, field] : fields_)
        field->setText(text(itemText(known, itemAt(pointer)).value_or("")));
    for (const auto& [pointer, box] : words_) {
        const auto word = itemText(known, itemAt(pointer));
        if (word) box->setCurrentText(text(*word));
    }
    width_->setText(text(itemText(known, itemAt("/clearance/width")).value_or("")));
    height_->setText(text(itemText(known, itemAt("/clearance/height")).value_or("")));
    const bool told = known.clearanceWidth || known.clearanceHeight;
    if (told) clearanceKind_->setCurrentIndex(ClearanceDiametral);
}

bool ImportDialog::isUsedWithoutAsking() const {
    return silent_->isChecked();
}

bool ImportDialog::isKeptBeside() const {
    return beside_->isChecked();
}

void ImportDialog::accept() {
    RecordingOptions options;
    if (!takeRoles(options) || !takeFields(options) || !takeClearance(options)) return;
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
    for (const RoleName& role : RoleNames) {
        if (role.role == ColumnRole::Unused) continue;
        bool taken = false;
        for (std::size_t i = 0; i < roles_.size(); ++i) {
            if (roleOf(i) != role.role) continue;
            if (taken)
                return refuse(roles_[i], tr("Two columns have the role: %1").arg(tr(role.name)));
            taken = setItem(options, itemAt(role.pointer), columnName(i));
        }
        const bool needed = role.role == ColumnRole::X || role.role == ColumnRole::Y;
        if (needed && !taken)
            return refuse(roles_.front(), tr("No column has the role: %1").arg(tr(role.name)));
    }
    const bool keyphasor = options.keyphasor.column.has_value();
    if (!keyphasor) options.keyphasor.kind = KeyphasorKind::None;
    return true;
}

bool ImportDialog::takeFields(RecordingOptions& options) {
    for (const auto& [pointer, field] : fields_) {
        const std::string typed = field->text().trimmed().toStdString();
        const OptionItem& item = itemAt(pointer);
        if (!typed.empty() && !setItem(options, item, typed))
            return refuse(field, tr("Allowed here: %1").arg(allowed(item)));
    }
    for (const auto& [pointer, box] : words_) {
        const bool open = pointer == "/keyphasor/kind" && options.keyphasor.kind;
        if (!open) setItem(options, itemAt(pointer), box->currentText().toStdString());
    }
    const bool timed = options.timeColumn || options.rate || preview_.rate;
    if (!timed) return refuse(fields_["/rate"], tr("A time column or a sample rate is needed"));
    return true;
}

bool ImportDialog::takeClearance(RecordingOptions& options) {
    const auto take = [&](QLineEdit* field, std::string_view pointer) {
        const std::string typed = field->text().trimmed().toStdString();
        if (typed.empty() || setItem(options, itemAt(pointer), typed)) return true;
        return refuse(field, tr("Allowed here: %1").arg(allowed(itemAt(pointer))));
    };
    if (!take(width_, "/clearance/width") || !take(height_, "/clearance/height")) return false;
    const bool told = options.clearanceWidth || options.clearanceHeight;
    const int kind = clearanceKind_->currentIndex();
    if (told && kind != ClearanceDiametral && kind != ClearanceRadial)
        return refuse(clearanceKind_, tr("Is the clearance told as diameters or as radii?"));
    if (kind != ClearanceRadial) return true;
    if (options.clearanceWidth) *options.clearanceWidth *= 2.0;
    if (options.clearanceHeight) *options.clearanceHeight *= 2.0;
    return true;
}

bool ImportDialog::refuse(QWidget* widget, const QString& line) {
    fault_->setText(line);
    fault_->show();
    widget->setFocus();
    return false;
}

}  // namespace Rotavue::Workbench
