#pragma once

#include "workbench/export/export_settings.h"
#include "workbench/recording/background_task.h"
#include "workbench/recording/reading_watch.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDoubleSpinBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QStringList>
#include <QTimer>

#include <functional>
#include <memory>
#include <string>
#include <system_error>

class QFormLayout;
class QProgressBar;
class QSettings;

namespace Rotavue::Workbench {

/// Paints a picture that has been drawn, and gives the bytes of its file. Any thread may ask; it
/// owns all that it uses. Raises `std::runtime_error` where there can be none, and
/// `ReadingCancelled`.
using PaintFile = std::function<std::string(const ReadingProgress&)>;

/// Draws a picture, on the window's thread. Raises `std::runtime_error` where that fails.
using PicturePainter = std::function<PaintFile(const PictureOrder&, const ExportSettings&)>;

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
///
/// Painting and writing are done off the window's thread, with progress from half a second on. A
/// cancel meanwhile leaves the dialog open and no file, unless it comes too late: then the file is
/// there and told of.
class ExportDialog : public QDialog {
public:
    explicit ExportDialog(ExportSubject subject, QWidget* parent = nullptr);

    /// The file that was saved; empty before.
    const QString& savedFile() const { return saved_; }

    bool isSaving() const { return saving_ != nullptr; }

    /// Cancels what is being saved; closes the dialog where nothing is.
    void reject() override;

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
    void lookForFile();
    void takeSaved();
    void remember();
    bool mayWrite();
    bool isSource(const QString& path) const;
    void say(const QString& line);

    using Saving = BackgroundTask<std::error_code>;

    ExportSubject subject_;
    SizeUnit lastUnit_ = SizeUnit::Pixels;
    QString mayReplace_;  ///< the file that a second press replaces
    QString saved_;
    QTimer soon_;
    QWidget* form_ = nullptr;  ///< all that asks for something
    QProgressBar* progress_ = nullptr;
    std::unique_ptr<Saving> saving_;  ///< null: nothing is being saved
    QString savingTo_;
    QElapsedTimer since_;  ///< it is being saved
    QTimer look_;
};

}  // namespace Rotavue::Workbench
