#pragma once

#include <QDialog>

#include <string>
#include <vector>

#include "workbench/files/import_preview.h"
#include "workbench/recording/recording_options.h"

class QCheckBox;
class QComboBox;
class QLabel;

namespace Rotavue::Workbench {

class ImportFields;
struct RoleName;

/// What a person is asked for.
enum class ImportPurpose {
    Open,         ///< a recording that doesn't explain itself
    Mend,         ///< a recording that cannot be read as it was told
    Correct,      ///< a recording that is shown, and may have been misunderstood
    FurtherPlane  ///< other columns of such a recording
};

/// Asks what the numbers of a recording mean: its first rows, a role for each column, and what the
/// file doesn't say about probes, keyphasor and bearing. What is wrong is told in the dialog,
/// beside its buttons.
class ImportDialog : public QDialog {
    Q_OBJECT

public:
    /// Begins with the preview's roles, and with `known` in the fields.
    ImportDialog(const ImportPreview& preview, const RecordingOptions& known,
                 QWidget* parent = nullptr, ImportPurpose purpose = ImportPurpose::Open);

    /// What is told is kept in no machine file and for no other recording: neither is offered.
    void keepNothing();

    /// What was told, complete once the dialog is accepted; the path of a machine file stays as it
    /// is known.
    const RecordingOptions& options() const { return options_; }

    /// The next recording of this shape is not asked about.
    bool isUsedWithoutAsking() const;

    /// A machine file shall be written beside the recording.
    bool isKeptBeside() const;

    void accept() override;

private:
    QWidget* makeTable();
    QComboBox* makeRoles(std::size_t column, QWidget* parent);
    QWidget* makeEnd(ImportPurpose purpose);
    void showUnits();

    /// Each gives false, having told what is wrong.
    bool takeRoles(RecordingOptions& options);
    bool takeRole(RecordingOptions& options, const RoleName& role);
    bool takeFields(RecordingOptions& options);
    bool refuse(QWidget* widget, const QString& line);

    ColumnRole roleOf(std::size_t column) const;
    std::string columnName(std::size_t column) const;

    ImportPreview preview_;
    RecordingOptions options_;
    std::vector<QComboBox*> roles_;  ///< one for each column
    ImportFields* fields_ = nullptr;
    QCheckBox* silent_ = nullptr;
    QCheckBox* beside_ = nullptr;
    QLabel* fault_ = nullptr;
};

}  // namespace Rotavue::Workbench
