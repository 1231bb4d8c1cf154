#include "workbench/files/import_fields.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "workbench/recording/option_text.h"

namespace Rotavue::Workbench {
namespace {

// How a clearance was measured, by its place in the box; the first one is no answer.
constexpr int ClearanceDiametral = 1;
constexpr int ClearanceRadial = 2;

QString text(const std::string& utf8) {
    return QString::fromStdString(utf8);
}

QString nameOf(std::string_view pointer) {
    return QString::fromUtf8(pointer.data(), static_cast<qsizetype>(pointer.size()));
}

QString hintOf(const std::string& told, const QString& otherwise) {
    return told.empty() ? otherwise : text(told);
}

QString allowed(std::string_view pointer) {
    return ImportFields::tr("Allowed here: %1").arg(text(allowedText(itemAt(pointer).kind)));
}

std::string typed(const QLineEdit& field) {
    return field.text().trimmed().toStdString();
}

bool isNegative(const QLineEdit& field) {
    return field.text().trimmed().startsWith(u'-');
}

}  // namespace

ImportFields::ImportFields(const ImportPreview& preview, QWidget* parent)
    : QWidget(parent), unit_(preview.unit), warning_(new QLabel(this)) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    auto* sides = new QHBoxLayout;
    auto* left = new QFormLayout;
    auto* right = new QFormLayout;
    sides->addLayout(left, 1);
    sides->addLayout(right, 1);
    fillLeft(*left, preview);
    fillRight(*right, preview);
    warning_->setObjectName(QStringLiteral("importWarning"));
    warning_->setTextFormat(Qt::PlainText);
    warning_->setWordWrap(true);
    column->addLayout(sides);
    column->addWidget(warning_);
    connect(fields_["/unit"], &QLineEdit::textChanged, this, &ImportFields::showUnits);
    for (const char* pointer : {"/x/sensitivity", "/y/sensitivity"})
        connect(fields_[pointer], &QLineEdit::textChanged, this, &ImportFields::showWarning);
    showUnits();
    showWarning();
}

void ImportFields::fillLeft(QFormLayout& form, const ImportPreview& preview) {
    const QString rate = preview.rate ? text(numberText(*preview.rate)) : tr("from the time");
    addField(form, tr("&Sample rate, Hz"), "/rate", rate);
    addField(form, tr("&Unit"), "/unit", hintOf(preview.unit, tr("such as um")));
    addField(form, tr("&X probe at"), "/x/angle", tr("90, or 45 R"));
    addField(form, tr("&Y probe at"), "/y/angle", tr("0, or 45 L"));
    addScaled(form, tr("X: %1 for one %2"), "/x/sensitivity",
              tr("X: number in the file for one %2"), tr("1"), &ColumnUnits::x);
    addScaled(form, tr("Y: %1 for one %2"), "/y/sensitivity",
              tr("Y: number in the file for one %2"), tr("1"), &ColumnUnits::y);
    addScaled(form, tr("X at rest, %1"), "/x/rest", tr("X at rest, as in the file"), tr("0"),
              &ColumnUnits::x);
    addScaled(form, tr("Y at rest, %1"), "/y/rest", tr("Y at rest, as in the file"), tr("0"),
              &ColumnUnits::y);
    addWords(form, tr("Coupl&ing"), "/coupling", {"DC", "AC"});
    addWords(form, tr("&Rotation"), "/rotation", {tr("not known"), "CW", "CCW"});
}

void ImportFields::fillRight(QFormLayout& form, const ImportPreview& preview) {
    addField(form, tr("&Machine"), "/machine", hintOf(preview.machine, tr("its name")));
    addField(form, tr("Poi&nt"), "/point", hintOf(preview.point, tr("such as Bearing 1")));
    addWords(form, tr("&Keyphasor holds"), "/keyphasor/kind",
             {tr("what its values look like"), "none", "volts", "ramp", "speed"});
    addWords(form, tr("Pulse &edge"), "/keyphasor/edge", {"rising", "falling"});
    addScaled(form, tr("Pulse &level, %1"), "/keyphasor/level", tr("Pulse &level, as in the file"),
              tr("halfway"), &ColumnUnits::keyphasor);
    addScaled(form, tr("Pulse &hysteresis, %1"), "/keyphasor/hysteresis",
              tr("Pulse &hysteresis, as in the file"), tr("a quarter of the swing"),
              &ColumnUnits::keyphasor);
    addField(form, tr("&Pulses per turn"), "/keyphasor/pulsesPerTurn", tr("1"));
    addField(form, tr("Keyphasor at"), "/keyphasor/angle", tr("0"));
    QWidget* clearance = makeClearance();
    form.addRow(tr("&Clearance, %2"), clearance);
    auto* label = qobject_cast<QLabel*>(form.labelForField(clearance));
    labels_.push_back({label, label->text(), label->text(), &ColumnUnits::x});
}

QLineEdit* ImportFields::addField(QFormLayout& form, const QString& name, std::string_view pointer,
                                  const QString& hint) {
    auto* field = new QLineEdit(this);
    field->setObjectName(nameOf(pointer));
    field->setPlaceholderText(hint);
    field->setToolTip(allowed(pointer));
    form.addRow(name, field);
    fields_[std::string(pointer)] = field;
    return field;
}

void ImportFields::addScaled(QFormLayout& form, const QString& name, std::string_view pointer,
                             const QString& bare, const QString& hint,
                             std::string ColumnUnits::*column) {
    QLineEdit* field = addField(form, name, pointer, hint);
    labels_.push_back({qobject_cast<QLabel*>(form.labelForField(field)), name, bare, column});
}

// A word that no machine file takes says that nothing is told.
void ImportFields::addWords(QFormLayout& form, const QString& name, std::string_view pointer,
                            const QStringList& words) {
    auto* box = new QComboBox(this);
    box->setObjectName(nameOf(pointer));
    box->addItems(words);
    form.addRow(name, box);
    words_[std::string(pointer)] = box;
}

QWidget* ImportFields::makeClearance() {
    auto* box = new QWidget(this);
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    const auto addSize = [&](const char* name, std::string_view pointer, const QString& hint) {
        auto* field = new QLineEdit(box);
        field->setObjectName(name);
        field->setPlaceholderText(hint);
        field->setToolTip(allowed(pointer));
        fields_[std::string(pointer)] = field;
        row->addWidget(field);
    };
    addSize("clearanceWidth", "/clearance/width", tr("across"));
    addSize("clearanceHeight", "/clearance/height", tr("upright"));
    clearanceKind_ = new QComboBox(box);
    clearanceKind_->setObjectName(QStringLiteral("clearanceKind"));
    clearanceKind_->addItems({tr("of which?"), tr("diameters"), tr("radii")});
    row->addWidget(clearanceKind_);
    return box;
}

void ImportFields::fill(const RecordingOptions& known) {
    for (const auto& [pointer, field] : fields_)
        field->setText(text(itemText(known, itemAt(pointer)).value_or("")));
    for (const auto& [pointer, box] : words_) {
        const auto word = itemText(known, itemAt(pointer));
        if (word) box->setCurrentText(text(*word));
    }
    // That there was no keyphasor column says nothing about one that is chosen now.
    const bool keyphasor = known.keyphasor.column || known.keyphasor.kind != KeyphasorKind::None;
    if (!keyphasor) words_["/keyphasor/kind"]->setCurrentIndex(0);
    const bool told = known.clearanceWidth || known.clearanceHeight;
    if (told) clearanceKind_->setCurrentIndex(ClearanceDiametral);
}

void ImportFields::setColumnUnits(const ColumnUnits& units) {
    units_ = units;
    showUnits();
}

void ImportFields::showUnits() {
    const std::string told = typed(*fields_["/unit"]);
    const QString unit = hintOf(told.empty() ? unit_ : told, tr("unit"));
    for (const Label& label : labels_) {
        const QString column = text(units_.*label.column);
        QString words = column.isEmpty() ? label.bare : label.text;
        label.label->setText(words.replace("%1", column).replace("%2", unit));
    }
}

// Drivers of eddy-current probes give less negative volts as the shaft comes nearer.
void ImportFields::showWarning() {
    const bool x = isNegative(*fields_["/x/sensitivity"]);
    const bool y = isNegative(*fields_["/y/sensitivity"]);
    warning_->setVisible(x || y);
    const QString probes = x && y ? tr("both probes") : x ? tr("the X probe") : tr("the Y probe");
    warning_->setText(tr("The negative number turns %1 round. A driver of -200 mV/mil on a data "
                         "sheet has 200 mV for one mil here: its voltage rises as the shaft comes "
                         "nearer.")
                          .arg(probes));
}

std::optional<ImportFields::Fault> ImportFields::take(RecordingOptions& options) const {
    for (const auto& [pointer, field] : fields_)
        if (const auto fault = takeField(pointer, *field, options)) return fault;
    for (const auto& [pointer, box] : words_) {
        clearItem(options, itemAt(pointer));
        setItem(options, itemAt(pointer), box->currentText().toStdString());
    }
    return takeClearance(options);
}

std::optional<ImportFields::Fault> ImportFields::takeField(const std::string& pointer,
                                                           QLineEdit& field,
                                                           RecordingOptions& options) const {
    const std::string told = typed(field);
    clearItem(options, itemAt(pointer));
    if (told.empty() || setItem(options, itemAt(pointer), told)) return std::nullopt;
    return Fault{&field, allowed(pointer)};
}

// Machine files hold diameters.
std::optional<ImportFields::Fault> ImportFields::takeClearance(RecordingOptions& options) const {
    const int kind = clearanceKind_->currentIndex();
    const bool told = options.clearanceWidth || options.clearanceHeight;
    if (told && kind != ClearanceDiametral && kind != ClearanceRadial)
        return Fault{clearanceKind_, tr("Is the clearance told as diameters or as radii?")};
    if (kind != ClearanceRadial) return std::nullopt;
    for (auto* size : {&options.clearanceWidth, &options.clearanceHeight})
        if (*size) **size *= 2.0;
    return std::nullopt;
}

QWidget* ImportFields::rateField() const {
    return fields_.at("/rate");
}

}  // namespace Rotavue::Workbench
