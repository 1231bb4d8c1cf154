#include "workbench/files/file_actions.h"

#include <QAction>
#include <QDir>
#include <QDropEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QMainWindow>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QTimer>
#include <QUrl>

#include <algorithm>
#include <exception>

#include "workbench/bench/safe_name.h"
#include "workbench/files/usable.h"

namespace Rotavue::Workbench {
namespace {

const QString ViewSuffix = QStringLiteral(".rotavue");

std::filesystem::path pathOf(const QString& file) {
    return std::filesystem::path(file.toStdString());
}

QString textOf(const std::filesystem::path& file) {
    return QString::fromStdString(file.string());
}

QStringList localFiles(const QMimeData& dropped) {
    QStringList files;
    for (const QUrl& url : dropped.urls())
        if (url.isLocalFile()) files.append(url.toLocalFile());
    return files;
}

QString planeNames(const Bench& bench) {
    QStringList names;
    for (const auto& plane : bench.planes())
        names += QString::fromStdString(plane->name());
    names.removeDuplicates();
    return names.join(QStringLiteral(", "));
}

}  // namespace

FileActions::FileActions(Bench& bench, QMainWindow& window, QMenu& menu, QSettings& settings)
    : QObject(&window),
      bench_(bench),
      window_(window),
      recent_(settings),
      opener_(settings, &window),
      recentMenu_(new QMenu(tr("Open &recent"), &menu)),
      messages_(new MessageBar(&window)),
      loading_(new LoadingBar(opener_.loader(), opener_.reader(), &window)),
      offers_(new OfferBar(&window)) {
    setObjectName(QStringLiteral("files"));
    makeMenu(menu);
    window.setAcceptDrops(true);
    window.installEventFilter(this);
    connect(&opener_, &RecordingOpener::failed, this, &FileActions::tell);
    connect(&opener_, &RecordingOpener::misread, this, &FileActions::offerQuestion);
    connect(&bench, &Bench::troubled, this, &FileActions::tell);
    connect(&bench.undoStack(), &QUndoStack::indexChanged, this, [this] { ++changes_; });
    connect(&bench, &Bench::planesChanged, this, &FileActions::enableActions);
    connect(this, &FileActions::viewFileChanged, this, &FileActions::enableActions);
    enableActions();
    connect(&loader(), &RecordingLoader::loaded, this, &FileActions::takeLoaded);
    connect(&loader(), &RecordingLoader::failed, this,
            [this](const LoadRequest& request) { dropPendingView(request); });
    connect(&loader(), &RecordingLoader::cancelled, this,
            [this](const LoadRequest& request) { dropPendingView(request); });
}

void FileActions::makeMenu(QMenu& menu) {
    recentMenu_->setObjectName(QStringLiteral("recentMenu"));
    recentMenu_->setToolTipsVisible(true);
    connect(recentMenu_, &QMenu::aboutToShow, this, &FileActions::fillRecent);
    QAction* const before = menu.actions().value(0);
    menu.insertAction(before, makeAction(QStringLiteral("newView"), tr("&New view"),
                                         QKeySequence::New, &FileActions::newView));
    menu.insertAction(before, makeAction(QStringLiteral("open"), tr("&Open..."), QKeySequence::Open,
                                         &FileActions::askForFiles));
    menu.insertMenu(before, recentMenu_);
    menu.insertSeparator(before);
    saving_ = {makeAction(QStringLiteral("saveView"), tr("&Save view"), QKeySequence::Save,
                          &FileActions::save),
               makeAction(QStringLiteral("saveViewAs"), tr("Save view &as..."),
                          QKeySequence::SaveAs, &FileActions::saveAs)};
    for (QAction* action : saving_)
        menu.insertAction(before, action);
}

void FileActions::enableActions() {
    const bool any = !bench_.planes().empty() || !viewFile_.isEmpty();
    for (QAction* action : saving_)
        setUsable(*action, any, tr("nothing is open"));
}

QAction* FileActions::makeAction(const QString& name, const QString& text, const QKeySequence& key,
                                 void (FileActions::*slot)()) {
    auto* action = new QAction(text, this);
    action->setObjectName(name);
    action->setShortcut(key);
    action->setToolTip(QString(text).remove(u'&') + " (" +
                       action->shortcut().toString(QKeySequence::NativeText) + ')');
    connect(action, &QAction::triggered, this, slot);
    return action;
}

// Files that are gone stay in the list, greyed: a disk may come back.
void FileActions::fillRecent() {
    recentMenu_->clear();
    int number = 0;
    for (const QString& file : recent_.files()) {
        const QFileInfo info(file);
        const QString name = info.fileName().replace(u'&', QStringLiteral("&&"));
        QAction* action = recentMenu_->addAction(
            QStringLiteral("&%1  %2").arg(QString::number(++number % 10), name));
        action->setToolTip(file);
        action->setEnabled(info.exists());
        connect(action, &QAction::triggered, this, [this, file] { open({file}); });
    }
    if (number > 0) recentMenu_->addSeparator();
    QAction* clear = recentMenu_->addAction(tr("&Clear this list"));
    clear->setEnabled(number > 0);
    connect(clear, &QAction::triggered, this, [this] { recent_.clear(); });
}

void FileActions::setViewFile(const QString& file) {
    name_.clear();
    viewFile_ = QFileInfo(file).absoluteFilePath();
    recent_.add(viewFile_);
    Q_EMIT viewFileChanged(viewFile_);
}

// The view's file stays as it is.
void FileActions::newView() {
    if (!mayLoseChanges()) return;
    showView(bench_, {}, {});
    leaveViewFile();
}

void FileActions::leaveViewFile() {
    name_.clear();
    viewFile_.clear();
    Q_EMIT viewFileChanged(viewFile_);
}

// The file that it was once saved in, if any, stays as it is: which of both counts is for the user
// to say.
void FileActions::nameRecovered() {
    leaveViewFile();
    name_ = safeName(tr("Recovered %1").arg(planeNames(bench_)));
    Q_EMIT viewNamed(name_);
}

// Not the way out of a wrong answer alone: what a machine file says wrongly is told anew as well.
void FileActions::offerQuestion(const LoadRequest& request, const QString& line) {
    messages_->tell(line,
                    {tr("&Tell What It Holds..."), [this, request] { opener_.mend(request); }});
}

void FileActions::askForFiles() {
    const QString filter =
        tr("Recordings and views (*.csv *.txt *.tsv *.wav *.rotavue);;All files (*)");
    open(QFileDialog::getOpenFileNames(&window_, tr("Open"), recent_.folder(), filter));
}

void FileActions::open(const QStringList& files, const RecordingOptions& options) {
    QString view;
    for (const QString& file : files) {
        if (isViewName(pathOf(file))) {
            view = file;
        } else {
            opener_.open(pathOf(file), options);
        }
    }
    if (!view.isEmpty()) opener_.afterwards([this, view] { openView(view); });
}

void FileActions::openView(const QString& file) {
    if (pending_) return tell(tr("%1: another view is being opened").arg(file));
    try {
        PendingView pending{.file = file, .view = readView(pathOf(file)), .planes = {}};
        if (!mayLoseChanges()) return;
        pending_ = std::move(pending);
        pending_->changes = changes_;
    } catch (const std::exception& error) {
        return tell(QString::fromUtf8(error.what()));
    }
    loadPending();
}

void FileActions::loadPending() {
    const std::vector<ViewPlane> planes = pending_->view.planes;
    if (planes.empty()) return showLoadedView();
    for (std::size_t i = 0; i < planes.size(); ++i)
        loader().load({planes[i].recording, planes[i].options, true, planes[i].compensation});
}

// A recording that is read anew is shown by who asked for that, recording_questions.h.
void FileActions::takeLoaded(const LoadRequest& request,
                             const std::shared_ptr<const PlaneSource>& source) {
    if (request.instead) return;
    if (!request.isOfView) return addRecording(request, source);
    if (!pending_) return;
    pending_->planes.push_back(source);
    showLoadedView();
}

// Without one of its recordings a view is not shown, and what was shown stays.
void FileActions::dropPendingView(const LoadRequest& request) {
    if (!request.isOfView || !pending_) return;
    const bool isUnsaved = pending_->isUnsaved;
    pending_.reset();
    loader().cancelWaitingOfView();
    if (isUnsaved) endUnsaved(false);
}

// What a question is about stays while it is open.
void FileActions::showLoadedView() {
    if (pending_ && pending_->isLoaded() && asking_ == 0) showPendingView();
}

// A view is long in coming: its user may have gone on with what is shown. The question waits until
// the loader has told all.
void FileActions::showPendingView() {
    if (pending_->changes != changes_ && !bench_.undoStack().isClean()) {
        QTimer::singleShot(0, this, &FileActions::askForPendingView);
        return;
    }
    PendingView pending = std::move(*pending_);
    pending_.reset();
    try {
        showView(bench_, pending.view, pending.planes);
    } catch (const std::exception& error) {
        tell(QString::fromUtf8(error.what()));
        if (pending.isUnsaved) endUnsaved(false);
        return;
    }
    if (!pending.isUnsaved) return setViewFile(pending.file);
    bench_.undoStack().resetClean();
    nameRecovered();
    endUnsaved(pending.isComplete);
}

void FileActions::startAutosave(const QString& folder) {
    autosave_ = new Autosave(
        bench_, *offers_, folder, [this] { return viewOf(bench_); }, this);
    connect(autosave_, &Autosave::wanted, this, &FileActions::openUnsaved);
    connect(autosave_, &Autosave::failed, this, &FileActions::tell);
}

void FileActions::openUnsaved(const QString& file) {
    try {
        PendingView pending{
            .file = file, .view = readView(pathOf(file)), .planes = {}, .isUnsaved = true};
        if (pending_ || !mayLoseChanges()) return endUnsaved(false);
        pending.isComplete = leaveOutGone(pending.view);
        if (pending.view.planes.empty()) return endUnsaved(pending.isComplete);
        pending_ = std::move(pending);
        pending_->changes = changes_;
    } catch (const std::exception& error) {
        tell(QString::fromUtf8(error.what()));
        return endUnsaved(false);
    }
    loadPending();
}

/// Takes planes out whose recording is gone, and tells of each. True where none is.
bool FileActions::leaveOutGone(View& view) {
    const auto isGone = [this](const ViewPlane& plane) {
        std::error_code fault;
        if (std::filesystem::exists(plane.recording, fault)) return false;
        tell(tr("%1: found no such file, its plane is not restored").arg(textOf(plane.recording)));
        return true;
    };
    return std::erase_if(view.planes, isGone) == 0;
}

// Half a view is kept for the next start: a disk may come back.
void FileActions::endUnsaved(bool restored) {
    if (autosave_ == nullptr) return;
    if (restored) return autosave_->restored();
    autosave_->notRestored();
}

void FileActions::askForPendingView() {
    if (!pending_ || asking_ > 0) return;
    pending_->changes = changes_;
    const bool isWanted = mayLoseChanges();
    if (isWanted) return showPendingView();
    const bool isUnsaved = pending_->isUnsaved;
    pending_.reset();
    if (isUnsaved) endUnsaved(false);
}

// To have opened a recording is nothing that could be lost.
void FileActions::addRecording(const LoadRequest& request,
                               const std::shared_ptr<const PlaneSource>& source) {
    const bool fresh = viewFile_.isEmpty() && bench_.undoStack().isClean();
    try {
        PlaneSetup setup{.curves = curves_, .settings = first_};
        setup.options.reference = request.options;
        bench_.addPlane(source, setup);
    } catch (const std::exception& error) {
        return tell(QString::fromUtf8(error.what()));
    }
    if (fresh) bench_.undoStack().setClean();
    recent_.add(textOf(request.file));
}

void FileActions::save() {
    saveOrAsk();
}

void FileActions::saveAs() {
    saveUnderNewName();
}

bool FileActions::saveOrAsk() {
    return viewFile_.isEmpty() ? saveUnderNewName() : saveTo(viewFile_);
}

QString FileActions::proposedFile() const {
    if (!viewFile_.isEmpty()) return viewFile_;
    const QString name = name_.isEmpty() ? safeName(planeNames(bench_)) : name_;
    return QDir(recent_.folder()).filePath(name + ViewSuffix);
}

template <class Question>
auto FileActions::whileAsking(Question question) {
    ++asking_;
    const auto answer = question();
    --asking_;
    if (pending_) QTimer::singleShot(0, this, &FileActions::showLoadedView);
    return answer;
}

/// Empty where the user thinks better of it.
QString FileActions::askForName() {
    QString file = whileAsking([this] {
        return QFileDialog::getSaveFileName(&window_, tr("Save view as"), proposedFile(),
                                            tr("Views (*.rotavue)"));
    });
    // A name that the dialog hasn't seen may be that of another file.
    if (file.isEmpty() || file.endsWith(ViewSuffix)) return file;
    file += ViewSuffix;
    if (!QFileInfo::exists(file)) return file;
    tell(tr("%1: found a file of this name, allowed: a new one").arg(file));
    return {};
}

bool FileActions::saveUnderNewName() {
    return write([this] { return askForName(); });
}

bool FileActions::saveTo(const QString& file) {
    return write([&file] { return file; });
}

// The view is that of the moment in which its user wants it saved. What comes while the name is
// asked for is not in the file, and stays a change.
bool FileActions::write(const std::function<QString()>& name) {
    try {
        const View view = viewOf(bench_);
        const int changes = changes_;
        const QString file = name();
        if (file.isEmpty()) return false;
        writeView(pathOf(file), view);
        setViewFile(file);
        if (changes != changes_) {
            bench_.undoStack().resetClean();
            return true;
        }
    } catch (const std::exception& error) {
        tell(QString::fromUtf8(error.what()));
        return false;
    }
    bench_.undoStack().setClean();
    if (autosave_ != nullptr) autosave_->forget();
    return true;
}

bool FileActions::mayLoseChanges() {
    if (bench_.undoStack().isClean()) return true;
    if (asking_ > 0) return false;
    QMessageBox question(QMessageBox::Question, tr("Unsaved changes"),
                         tr("Save the changes of this view?"),
                         QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, &window_);
    question.setObjectName(QStringLiteral("saveQuestion"));
    const int answer = whileAsking([&question] { return question.exec(); });
    // What has come while the name was asked for is in no file yet.
    if (answer == QMessageBox::Save) return saveOrAsk() && mayLoseChanges();
    return answer == QMessageBox::Discard;
}

bool FileActions::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::DragEnter) {
        auto* drag = static_cast<QDropEvent*>(event);
        if (!localFiles(*drag->mimeData()).isEmpty()) drag->acceptProposedAction();
        return true;
    }
    if (event->type() == QEvent::Drop) {
        auto* drop = static_cast<QDropEvent*>(event);
        drop->acceptProposedAction();
        open(localFiles(*drop->mimeData()));
        return true;
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace Rotavue::Workbench
