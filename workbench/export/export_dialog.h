#pragma once

#include "workbench/export/export_settings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QStringList>
#include <QTimer>

#include <functional>
#include <memory>
#include <string>

class QFormLayout;
class QSettings;

namespace Rotavue::Workbench {

/// Gives the bytes of a picture's file. Raises `std::runtime_error` where there can be none.
using PicturePainter = std::function<std::string(const PictureOrder&, const ExportSettings&)>;

/// Opens what the program remembers from one start to the next.
using OpenMemory = std::function<std::unique_ptr<QSettings>()>;

/// What is exported, and how a dialog speaks of it.
struct ExportSubject {
    QString title;             ///< of the dialog
    QString key;               ///< under which the settings are remembered
    QString folder;            ///< where the file goes until there is something to remember
    QString name;              ///< of the file, without its ending
    ExportSettings usual;      ///< until there is something to remember
    bool planes = false;       ///< there are several, that could share one scale
    PicturePainter painter;    ///< must not outlive what it paints
    OpenMemory memory = {};    ///< of the dialog
    QStringList sources = {};  ///< files that no picture may replace: what it is made from
};

/// Asks how a picture is to be saved, shows it as it will be, and saves it. A file that is there is
/// replaced only after a second press of the button, which says so, and never if the picture is
/// made from it; the file is written beside its place and renamed, so that nobody meets half of
/// one.
class ExportDialog : public QDialog {
public:
    explicit ExportDialog(ExportSubject subject, QWidget* parent = nullptr);

    /// The file that was saved; empty before.
    const QString& savedFile() const { return saved_; }

    ExportSettings settings() const;

    // The widgets, by which a test works the dialog as a user does.
    QComboBox format;
    QComboBox unit;
    QDoubleSpinBox width;
    QDoubleSpinBox height;
    QSpinBox dotsPerInch;
    QCheckBox header;
    QCheckBox sameScale;
    QLineEdit file;
    QLabel preview;
    QLabel otherSize;
    QLabel message;
    QPushButton save;

    void showPreview();

private:
    QFormLayout* makeForm();
    void connectWidgets();
    void fill(const ExportSettings& settings);
    void browse();
    void changed();
    void changeUnit();
    void changeEnding();
    void saveFile();
    bool mayWrite();
    bool isSource(const QString& path) const;
    void say(const QString& line);

    ExportSubject subject_;
    SizeUnit lastUnit_ = SizeUnit::Pixels;
    QString mayReplace_;  ///< the file that a second press replaces
    QString saved_;
    QTimer soon_;
};

}  // namespace Rotavue::Workbench
