#pragma once

#include <QString>
#include <QWidget>

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "workbench/files/import_preview.h"
#include "workbench/recording/recording_options.h"

class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;

namespace Rotavue::Workbench {

/// The unit that the file gives each of these columns; empty: none, or no column.
struct ColumnUnits {
    std::string x;
    std::string y;
    std::string keyphasor;
};

/// The fields of an import dialog for what a recording doesn't say about machine, probes, keyphasor
/// and bearing: one for each item of a machine file but for the columns. Each is named after its
/// place there, such as "/x/angle".
class ImportFields : public QWidget {
public:
    /// The preview tells what stands in a field that is left empty.
    explicit ImportFields(const ImportPreview& preview, QWidget* parent = nullptr);

    void fill(const RecordingOptions& known);

    /// Values of a column are told in its own unit: the labels say which one that is.
    void setColumnUnits(const ColumnUnits& units);

    /// What keeps a field from being taken, and the widget to mend it in.
    struct Fault {
        QWidget* widget;
        QString line;
    };

    /// Sets the items that are told here and unsets those that are left open.
    std::optional<Fault> take(RecordingOptions& options) const;

    QWidget* rateField() const;

private:
    struct Label {
        QLabel* label;
        QString text;  ///< %1: the column's unit, %2: that of the displacements
        QString bare;  ///< the same where the column has no unit
        std::string ColumnUnits::*column;
    };

    void fillLeft(QFormLayout& form, const ImportPreview& preview);
    void fillRight(QFormLayout& form, const ImportPreview& preview);
    QLineEdit* addField(QFormLayout& form, const QString& name, std::string_view pointer,
                        const QString& hint);
    void addScaled(QFormLayout& form, const QString& name, std::string_view pointer,
                   const QString& bare, const QString& hint, std::string ColumnUnits::*column);
    void addWords(QFormLayout& form, const QString& name, std::string_view pointer,
                  const QStringList& words);
    QWidget* makeClearance();
    void showUnits();
    void showWarning();

    std::optional<Fault> takeField(const std::string& pointer, QLineEdit& field,
                                   RecordingOptions& options) const;
    std::optional<Fault> takeClearance(RecordingOptions& options) const;

    std::string unit_;  ///< of the displacements, as the file tells it
    ColumnUnits units_;
    std::vector<Label> labels_;
    std::map<std::string, QLineEdit*> fields_;  ///< by place in a machine file
    std::map<std::string, QComboBox*> words_;
    QComboBox* clearanceKind_ = nullptr;
    QLabel* warning_ = nullptr;
};

}  // namespace Rotavue::Workbench
