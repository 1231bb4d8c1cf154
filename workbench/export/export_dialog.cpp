#include "workbench/export/export_dialog.h"

#include "workbench/analysis/replace_file.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QImage>
#include <QPixmap>
#include <QProgressBar>
#include <QSettings>
#include <QVBoxLayout>

#include <algorithm>
#include <filesystem>
#include <stdexcept>
#include <utility>

namespace Rotavue::Workbench {

namespace {

constexpr int PreviewSide = 460;
constexpr int PreviewDelay = 120;  // ms, so that a spin box can be turned
constexpr double LargestEntry = 99'999.0;
constexpr int ProgressSteps = 1000;
constexpr int LookInterval = 10;    // ms; what is saved is told so much later at the most
constexpr int ProgressDelay = 500;  // ms: what is quick shows no progress
constexpr double PartOfPainting = 0.9;

QString folderOf(QSettings& place, const QString& usual) {
    const QString folder = place.value("folder", usual).toString();
    return QDir(folder).exists() ? folder : QDir::currentPath();
}

QString withEnding(const QString& file, PictureFormat format) {
    for (const char* ending : {".png", ".svg", ".pdf"}) {
        if (file.endsWith(QLatin1String(ending), Qt::CaseInsensitive))
            return file.chopped(4) + '.' + endingOf(format);
    }
    return file.isEmpty() ? file : file + '.' + endingOf(format);
}

/// A picture of the same layout with as many pixels as the preview has.
PictureOrder previewOf(PictureOrder order, double pixelsPerPoint) {
    const double room = PreviewSide * pixelsPerPoint;
    order.format = PictureFormat::Png;
    order.scale = room / std::max(order.width, order.height);
    order.fileWidth = order.fileHeight = 0;
    return order;
}

}  // namespace

ExportDialog::ExportDialog(ExportSubject subject, QWidget* parent)
    : QDialog(parent), subject_(std::move(subject)) {
    setObjectName("exportDialog");
    setWindowTitle(subject_.title);
    preview.setFixedSize(PreviewSide, PreviewSide);
    preview.setAlignment(Qt::AlignCenter);
    preview.setAccessibleName(tr("Preview"));
    auto* columns = new QHBoxLayout(this);
    columns->addWidget(&preview);
    auto* right = new QVBoxLayout;
    columns->addLayout(right, 1);
    form_ = new QWidget;
    form_->setLayout(makeForm());
    form_->layout()->setContentsMargins(0, 0, 0, 0);
    right->addWidget(form_);
    right->addStretch(1);
    message.setWordWrap(true);
    message.setTextFormat(Qt::PlainText);
    right->addWidget(&message);
    progress_ = new QProgressBar;
    progress_->setObjectName("exportProgress");
    progress_->setRange(0, ProgressSteps);
    progress_->hide();
    right->addWidget(progress_);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    buttons->addButton(&save, QDialogButtonBox::AcceptRole);
    right->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    const auto memory = subject_.memory();
    QSettings& place = *memory;
    place.beginGroup("export/" + subject_.key);
    fill(stored(place, subject_.usual));
    file.setText(QDir(folderOf(place, subject_.folder))
                     .filePath(subject_.name + '.' + endingOf(settings().format)));
    connectWidgets();
    changed();
    showPreview();
}

QFormLayout* ExportDialog::makeForm() {
    format.addItems({tr("PNG, pixels"), tr("SVG, lines"), tr("PDF, lines")});
    unit.addItems({tr("pixels"), tr("mm")});
    for (QDoubleSpinBox* side : {&width, &height}) {
        side->setRange(1.0, LargestEntry);
        side->setAccelerated(true);
        side->setKeyboardTracking(false);
    }
    dotsPerInch.setRange(LeastDotsPerInch, MostDotsPerInch);
    dotsPerInch.setSuffix(tr(" dpi"));
    dotsPerInch.setToolTip(tr("Pixels of an inch on paper: 96 for a screen, 300 for print"));
    dotsPerInch.setKeyboardTracking(false);
    header.setText(tr("&Header with machine, probes, speed and scale"));
    sameScale.setText(tr("One &scale for all planes"));
    otherSize.setEnabled(false);
    auto* size = new QHBoxLayout;
    size->addWidget(&width, 1);
    size->addWidget(new QLabel(QStringLiteral("\u00d7")));
    size->addWidget(&height, 1);
    size->addWidget(&unit);
    auto* place = new QHBoxLayout;
    auto* browseButton = new QPushButton(tr("&Browse..."));
    browseButton->setAutoDefault(false);
    connect(browseButton, &QPushButton::clicked, this, &ExportDialog::browse);
    file.setMinimumWidth(260);
    place->addWidget(&file, 1);
    place->addWidget(browseButton);
    auto* form = new QFormLayout;
    const auto labelled = [](const QString& text, QWidget& buddy) {
        auto* label = new QLabel(text);
        label->setBuddy(&buddy);
        return label;
    };
    form->addRow(tr("&Kind"), &format);
    form->addRow(labelled(tr("Si&ze"), width), size);
    form->addRow(QString(), &otherSize);
    form->addRow(tr("&Resolution"), &dotsPerInch);
    form->addRow(QString(), subject_.planes ? &sameScale : &header);
    form->addRow(labelled(tr("&File"), file), place);
    (subject_.planes ? header : sameScale).setParent(nullptr);
    return form;
}

void ExportDialog::connectWidgets() {
    soon_.setSingleShot(true);
    soon_.setInterval(PreviewDelay);
    connect(&soon_, &QTimer::timeout, this, &ExportDialog::showPreview);
    look_.setInterval(LookInterval);
    connect(&look_, &QTimer::timeout, this, &ExportDialog::lookForFile);
    connect(&format, &QComboBox::currentIndexChanged, this, &ExportDialog::changeEnding);
    connect(&unit, &QComboBox::currentIndexChanged, this, &ExportDialog::changeUnit);
    for (QDoubleSpinBox* side : {&width, &height})
        connect(side, &QDoubleSpinBox::valueChanged, this, &ExportDialog::changed);
    connect(&dotsPerInch, &QSpinBox::valueChanged, this, &ExportDialog::changed);
    for (QCheckBox* box : {&header, &sameScale})
        connect(box, &QCheckBox::toggled, this, &ExportDialog::changed);
    connect(&file, &QLineEdit::textChanged, this, &ExportDialog::changed);
    connect(&save, &QPushButton::clicked, this, &ExportDialog::saveFile);
    save.setDefault(true);
}

void ExportDialog::fill(const ExportSettings& settings) {
    lastUnit_ = settings.unit;
    format.setCurrentIndex(static_cast<int>(settings.format));
    unit.setCurrentIndex(static_cast<int>(settings.unit));
    for (QDoubleSpinBox* side : {&width, &height})
        side->setDecimals(settings.unit == SizeUnit::Pixels ? 0 : 1);
    width.setValue(settings.width);
    height.setValue(settings.height);
    dotsPerInch.setValue(settings.dotsPerInch);
    header.setChecked(settings.header);
    sameScale.setChecked(settings.sameScale);
}

ExportSettings ExportDialog::settings() const {
    return {.format = static_cast<PictureFormat>(format.currentIndex()),
            .unit = static_cast<SizeUnit>(unit.currentIndex()),
            .width = width.value(),
            .height = height.value(),
            .dotsPerInch = dotsPerInch.value(),
            .header = header.isChecked(),
            .sameScale = sameScale.isChecked()};
}

void ExportDialog::say(const QString& line) {
    message.setText(line);
}

void ExportDialog::changed() {
    const ExportSettings now = settings();
    const bool pixels = now.unit == SizeUnit::Pixels;
    dotsPerInch.setEnabled(now.format == PictureFormat::Png);
    otherSize.setText(QStringLiteral("%1 \u00d7 %2 %3")
                          .arg(converted(now.width, now.unit, now), 0, 'f', pixels ? 1 : 0)
                          .arg(converted(now.height, now.unit, now), 0, 'f', pixels ? 1 : 0)
                          .arg(pixels ? tr("mm") : tr("pixels")));
    mayReplace_.clear();
    save.setText(tr("&Save"));
    const QString fault = faultOf(now);
    say(fault);
    save.setEnabled(fault.isEmpty() && !file.text().trimmed().isEmpty());
    soon_.start();
}

void ExportDialog::changeUnit() {
    ExportSettings now = settings();
    if (now.unit == lastUnit_) return;
    const double wide = converted(now.width, lastUnit_, now);
    const double high = converted(now.height, lastUnit_, now);
    lastUnit_ = now.unit;
    now.width = wide;
    now.height = high;
    fill(now);
    changed();
}

void ExportDialog::changeEnding() {
    file.setText(withEnding(file.text(), settings().format));
    changed();
}

void ExportDialog::browse() {
    const QString chosen = QFileDialog::getSaveFileName(this, subject_.title, file.text(),
                                                        tr("Pictures (*.png *.svg *.pdf)"), nullptr,
                                                        QFileDialog::DontConfirmOverwrite);
    if (chosen.isEmpty()) return;
    for (int i = 0; i < format.count(); ++i) {
        const QString ending = '.' + endingOf(static_cast<PictureFormat>(i));
        if (chosen.endsWith(ending, Qt::CaseInsensitive)) format.setCurrentIndex(i);
    }
    file.setText(withEnding(chosen, settings().format));
}

void ExportDialog::showPreview() try {
    if (!faultOf(settings()).isEmpty()) return;
    const double ratio = devicePixelRatioF();
    const PictureOrder order = previewOf(orderOf(settings()), ratio);
    QImage image = QImage::fromData(
        QByteArray::fromStdString(subject_.painter(order, settings())(ReadingProgress())), "png");
    image.setDevicePixelRatio(ratio);
    preview.setPixmap(QPixmap::fromImage(image));
} catch (const std::exception& error) {
    preview.clear();
    say(QString::fromUtf8(error.what()));
}

/// By another name, too: through a link, say.
bool ExportDialog::isSource(const QString& path) const {
    return std::any_of(subject_.sources.begin(), subject_.sources.end(), [&](const QString& one) {
        std::error_code none;
        return std::filesystem::equivalent(one.toStdString(), path.toStdString(), none);
    });
}

/// Whether the place is free, or the user has been told that it is not and means it.
bool ExportDialog::mayWrite() {
    const QString path = file.text();
    if (isSource(path)) {
        say(tr("%1 is what the picture is made from, and is never replaced.")
                .arg(QFileInfo(path).fileName()));
        return false;
    }
    if (!QFileInfo::exists(path) || mayReplace_ == path) return true;
    mayReplace_ = path;
    save.setText(tr("&Replace"));
    say(tr("%1 is there already.").arg(QFileInfo(path).fileName()));
    return false;
}

void ExportDialog::saveFile() try {
    if (isSaving() || !mayWrite()) return;
    savingTo_ = file.text();
    saving_ = std::make_unique<Saving>(
        [paint = subject_.painter(orderOf(settings()), settings()),
         path = std::filesystem::path(savingTo_.toStdString())](const ReadingWatch& watch) {
            const ReadingProgress progress(watch);
            const std::string bytes = paint(progress.between(0.0, PartOfPainting));
            progress.reach(PartOfPainting);
            return replaceFile(path, bytes);
        });
    since_.start();
    look_.start();
    form_->setEnabled(false);
    save.setEnabled(false);
    say({});
} catch (const std::exception& error) {
    say(QString::fromUtf8(error.what()));
}

void ExportDialog::lookForFile() {
    if (!isSaving()) return;
    if (saving_->isDone()) return takeSaved();
    progress_->setValue(static_cast<int>(saving_->part() * ProgressSteps));
    if (since_.elapsed() >= ProgressDelay) progress_->show();
}

void ExportDialog::takeSaved() try {
    const auto saving = std::move(saving_);
    look_.stop();
    progress_->hide();
    form_->setEnabled(true);
    changed();
    if (const std::error_code fault = saving->take())
        return say(tr("%1 cannot be written: %2.")
                       .arg(savingTo_, QString::fromStdString(fault.message())));
    remember();
    saved_ = savingTo_;
    accept();
} catch (const ReadingCancelled&) {
    say(tr("Cancelled: nothing is saved."));
} catch (const std::exception& error) {
    say(QString::fromUtf8(error.what()));
}

void ExportDialog::remember() {
    const auto memory = subject_.memory();
    QSettings& place = *memory;
    place.beginGroup("export/" + subject_.key);
    store(settings(), place);
    place.setValue("folder", QFileInfo(savingTo_).absolutePath());
}

void ExportDialog::reject() {
    if (!isSaving()) return QDialog::reject();
    saving_->cancel();
    say(tr("Cancelling..."));
}

}  // namespace Rotavue::Workbench
