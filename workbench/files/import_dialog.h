#pragma once

#include <QDialog>

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "workbench/files/import_preview.h"
#include "workbench/recording/recording_options.h"

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;

namespace Rotavue::Workbench {

/// Asks what the numbers of a recording mean: its first rows, a role for each column, and what the
/// file doesn't say about probes, keyphasor and bearing. What is wrong is told in the dialog,
/// beside its buttons.
class ImportDialog : public QDialog {
    Q_OBJECT

public:
    /// Begins with the preview's guess, and with `known` over it.
    ImportDialog(const ImportPreview& preview, const RecordingOptions& known,
                 QWidget* parent = nullptr);

    /// What was told, complete once the dialog is accepted.
    const RecordingOptions& options() const { return options_; }

    /// The next recording of this shape is not asked about.
    bool isUsedWithoutAsking() const;

    /// A machine file shall be written beside the recording.
    bool isKeptBeside() const;

    void accept() override;

private:
    QWidget* makeTable();
    QWidget* makeFields();
    QWidget* makeClearance();
    QWidget* makeEnd();
    void addField(QFormLayout& form, const QString& name, std::string_view pointer,
                  const QString& hint);
    void addWords(QFormLayout& form, const QString& name, std::string_view pointer,
                  const QStringList& words);
    void fill(const RecordingOptions& known);

    /// Each gives false, having told what is wrong.
    bool takeRoles(RecordingOptions& options);
    bool takeFields(RecordingOptions& options);
    bool takeClearance(RecordingOptions& options);
    bool refuse(QWidget* widget, const QString& line);

    ColumnRole roleOf(std::size_t column) const;
    std::string columnName(std::size_t column) const;

    ImportPreview preview_;
    RecordingOptions options_;
    std::vector<QComboBox*> roles_;             ///< one for each column
    std::map<std::string, QLineEdit*> fields_;  ///< by place in a machine file
    std::map<std::string, QComboBox*> words_;
    QLineEdit* width_ = nullptr;
    QLineEdit* height_ = nullptr;
    QComboBox* clearanceKind_ = nullptr;
    QCheckBox* silent_ = nullptr;
    QCheckBox* beside_ = nullptr;
    QLabel* fault_ = nullptr;
};

}  // namespace Rotavue::Workbench
