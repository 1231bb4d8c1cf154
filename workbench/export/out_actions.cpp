#include "workbench/export/out_actions.h"

#include "host_kit/memory/memory_clipboard.h"
#include "workbench/bench/bench_task.h"
#include "workbench/bench/safe_name.h"
#include "workbench/bench/source_files.h"
#include "workbench/export/plane_picture.h"
#include "workbench/export/plane_report.h"
#include "workbench/files/usable.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QKeySequence>
#include <QPointer>
#include <QSettings>

#include <algorithm>
#include <exception>
#include <filesystem>
#include <optional>
#include <utility>

namespace Rotavue::Workbench {

namespace {

constexpr const char* PictureKey = "picture";

constexpr ExportSettings A4{
    .format = PictureFormat::Pdf, .unit = SizeUnit::Millimetres, .width = 210.0, .height = 297.0};

/// The module's clipboard while one message is sent.
class SuppliedClipboard {
public:
    explicit SuppliedClipboard(HostKit::Module& module) : module_(module) {
        module_.supplyClipboard(&clipboard_);
    }
    ~SuppliedClipboard() { module_.supplyClipboard(nullptr); }
    SuppliedClipboard(const SuppliedClipboard&) = delete;
    SuppliedClipboard& operator=(const SuppliedClipboard&) = delete;

    std::optional<std::wstring> take() { return clipboard_.takeText(); }

private:
    HostKit::Module& module_;
    HostKit::MemoryClipboard clipboard_;
};

/// A name that any file may have.
QString fileName(const std::string& name) {
    const QString text = safeName(QString::fromStdString(name));
    return text.isEmpty() ? QStringLiteral("orbit") : text;
}

/// Beside the recording.
QString folderOf(const Plane& plane) {
    const auto folder = std::filesystem::absolute(plane.original().recording.file).parent_path();
    return QString::fromStdString(folder.string());
}

PaintFile painterOf(DrawnPicture picture) {
    return [picture = std::make_shared<const DrawnPicture>(std::move(picture))](
               const ReadingProgress& progress) { return paint(*picture, progress); };
}

PaintFile painterOf(DrawnReport report) {
    return [report = std::make_shared<const DrawnReport>(std::move(report))](
               const ReadingProgress& progress) { return paintReport(*report, progress); };
}

PaintFile drawPlane(Plane& plane, Bench& bench, const PictureOrder& order, bool withHeader) {
    return painterOf(PlanePicture(plane, bench).drawn(order, withHeader));
}

void prepare(QAction& action, const char* name, const QString& text, const QKeySequence& keys,
             const QString& help) {
    action.setObjectName(name);
    action.setText(text);
    action.setShortcut(keys);
    action.setToolTip(help + " (" + keys.toString(QKeySequence::NativeText) + ')');
}

}  // namespace

OutActions::OutActions(Bench& bench, CurrentPlane current, Tell tell, OpenMemory memory,
                       QWidget& window)
    : QObject(&window),
      bench_(bench),
      current_(std::move(current)),
      tell_(std::move(tell)),
      memory_(std::move(memory)),
      window_(window) {
    prepare(copyNumbers, "copyNumbers", tr("&Copy numbers"), QKeySequence::Copy,
            tr("The curves' values as a table for a spreadsheet"));
    // A table or a text that has the focus copies what is selected in it.
    copyNumbers.setShortcutContext(Qt::WidgetWithChildrenShortcut);
    prepare(copyPicture, "copyPicture", tr("Copy &picture"),
            QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C), tr("The current plane as a picture"));
    prepare(exportPicture, "exportPicture", tr("&Export picture..."),
            QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_E),
            tr("The current plane as PNG, SVG or PDF"));
    prepare(exportReport, "exportReport", tr("Export &report page..."),
            QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_R),
            tr("All planes with their numbers on one page"));
    for (QAction* action : actions())
        action->setParent(this);
    connect(&copyNumbers, &QAction::triggered, this, [this] { attempt([this] { putNumbers(); }); });
    connect(&copyPicture, &QAction::triggered, this, [this] { attempt([this] { putPicture(); }); });
    connect(&exportPicture, &QAction::triggered, this,
            [this] { attempt([this] { openPicture(); }); });
    connect(&exportReport, &QAction::triggered, this,
            [this] { attempt([this] { openReport(); }); });
    connect(&bench_, &Bench::planesChanged, this, [this] { refresh(); });
    refresh();
}

template <class Deed>
void OutActions::attempt(Deed deed) {
    try {
        deed();
    } catch (const std::exception& error) {
        bench_.report(QString::fromUtf8(error.what()));
    }
}

void OutActions::refresh() {
    for (QAction* action : actions())
        setUsable(*action, !bench_.planes().empty(), tr("nothing is open"));
}

std::shared_ptr<Plane> OutActions::current() const {
    const auto& planes = bench_.planes();
    const auto found = std::find_if(planes.begin(), planes.end(),
                                    [&](const auto& one) { return one.get() == current_(); });
    if (found != planes.end()) return *found;
    return planes.empty() ? nullptr : planes.front();
}

void OutActions::putNumbers() {
    const auto plane = current();
    if (!plane) return;
    SuppliedClipboard clipboard(bench_.module());
    plane->control().copy();
    const auto text = clipboard.take();
    if (!text) {
        bench_.report(tr("There are no numbers to copy."));
        return;
    }
    QGuiApplication::clipboard()->setText(QString::fromStdWString(*text));
    tell_(tr("The numbers are on the clipboard."));
}

void OutActions::putPicture() {
    const auto plane = current();
    if (!plane) return;
    const auto memory = memory_();
    QSettings& place = *memory;
    place.beginGroup(QStringLiteral("export/") + PictureKey);
    ExportSettings settings = stored(place, {});
    settings.format = PictureFormat::Png;
    if (!faultOf(settings).isEmpty()) settings = {};
    bench_.endWork(copying_);  // the newest wish counts
    copying_ = beginTask<QImage>(
        bench_,
        {.what = tr("the picture of %1").arg(QString::fromStdString(bench_.titleOf(*plane).text())),
         .make =
             [paint = drawPlane(*plane, bench_, orderOf(settings), settings.header)](
                 const ReadingWatch& watch) {
                 const std::string png = paint(ReadingProgress(watch));
                 return QImage::fromData(QByteArray::fromStdString(png), "png");
             },
         .done =
             [here = QPointer(this)](const QImage& image) {
                 if (here) here->put(image);
             },
         .failed =
             [here = QPointer(this)](const std::string& why) {
                 if (here) here->bench_.report(QString::fromStdString(why));
             }});
}

void OutActions::put(const QImage& picture) {
    QGuiApplication::clipboard()->setImage(picture);
    tell_(tr("The picture is on the clipboard."));
}

void OutActions::openPicture() {
    const auto plane = current();
    if (!plane) return;
    open({.title = tr("Export picture"),
          .key = PictureKey,
          .folder = folderOf(*plane),
          .name = fileName(bench_.titleOf(*plane).text()),
          .usual = {},
          .painter = [this, plane](const PictureOrder& order, const ExportSettings& settings) {
              return drawPlane(*plane, bench_, order, settings.header);
          }});
}

void OutActions::openReport() {
    if (bench_.planes().empty()) return;
    open({.title = tr("Export report page"),
          .key = "report",
          .folder = folderOf(*bench_.planes().front()),
          .name = fileName(reportTitle(bench_)) + tr(" report"),
          .usual = A4,
          .planes = true,
          .painter = [this](const PictureOrder& order, const ExportSettings& settings) {
              return painterOf(drawPlaneReport(bench_, order, settings.sameScale));
          }});
}

/// All planes': what one of them is made from is of use to the others.
QStringList OutActions::sources() const {
    QStringList files = kept_();
    for (const auto& file : sourceFiles(bench_))
        files += QString::fromStdString(file.string());
    return files;
}

/// The dialog stands in front of the window, and what plays stops: a picture is of one moment.
void OutActions::open(ExportSubject subject) {
    bench_.playback().pause();
    subject.memory = memory_;
    subject.sources = sources();
    auto* dialog = new ExportDialog(std::move(subject), &window_);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this,
            [this, dialog] { tell_(tr("Saved %1").arg(dialog->savedFile())); });
    dialog->open();
}

}  // namespace Rotavue::Workbench
