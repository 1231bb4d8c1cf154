#pragma once

#include <QKeySequence>
#include <QObject>
#include <QString>
#include <QStringList>

#include <filesystem>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include "workbench/bench/bench.h"
#include "workbench/files/autosave.h"
#include "workbench/files/loading_bar.h"
#include "workbench/files/message_bar.h"
#include "workbench/files/offer_bar.h"
#include "workbench/files/recent_files.h"
#include "workbench/files/recording_opener.h"
#include "workbench/files/view_keeper.h"

class QAction;
class QMainWindow;
class QMenu;
class QSettings;

namespace Rotavue::Workbench {

/// The files of a window: its File menu, what is dropped on it, and the question before changes are
/// lost. Recordings are added to what the bench shows; a view takes its place.
class FileActions : public QObject {
    Q_OBJECT

public:
    /// Puts its actions before those that the menu has, and watches the window for drops. Bench and
    /// settings must outlive this; the window is its parent.
    FileActions(Bench& bench, QMainWindow& window, QMenu& menu, QSettings& settings);

    /// To be put into the window, where there is room for them.
    MessageBar& messages() { return *messages_; }
    LoadingBar& loading() { return *loading_; }
    OfferBar& offers() { return *offers_; }

    /// From now on what is not saved is kept in that folder, and what a crash has left there is
    /// offered. To be called once, when all that makes a view is there.
    void startAutosave(const QString& folder);
    Autosave* autosave() const { return autosave_; }

    /// Opens recordings, and the last view among the files.
    void open(const QStringList& files, const RecordingOptions& options = {});

    /// What controls begin with; unset: what suits the recording.
    void setFirstSettings(std::optional<Settings> settings) { first_ = std::move(settings); }

    /// The curves that recordings are first shown with; the raw orbit unless set.
    void setFirstCurves(std::vector<CurveRequest> curves) { curves_ = std::move(curves); }

    /// The view's file; empty for a view that has none yet.
    const QString& viewFile() const { return viewFile_; }

    /// Where *Save as* begins: the view's file, or one named after its planes beside what was last
    /// opened.
    QString proposedFile() const;

    /// Saves the view. False, having told why, if that fails.
    bool saveTo(const QString& file);

    /// Asks whether changes shall be saved, if there are any. False where the user wants to stay,
    /// and behind a question that is open already: that one comes first.
    bool mayLoseChanges();

    RecordingOpener& opener() { return opener_; }
    RecordingLoader& loader() { return opener_.loader(); }

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void viewFileChanged(const QString& file);

    /// The view has a name, and no file of that name yet.
    void viewNamed(const QString& name);

private:
    void makeMenu(QMenu& menu);
    QAction* makeAction(const QString& name, const QString& text, const QKeySequence& key,
                        void (FileActions::*slot)());
    void fillRecent();
    void setViewFile(const QString& file);
    void leaveViewFile();
    void nameRecovered();

    void newView();
    void askForFiles();
    void save();
    void saveAs();
    bool saveOrAsk();
    bool saveUnderNewName();
    bool write(const std::function<QString()>& name);
    QString askForName();

    /// A view that has come is not shown before the user has answered.
    template <class Question>
    auto whileAsking(Question question);

    void enableActions();
    void openView(const QString& file);
    void openUnsaved(const QString& file);
    bool leaveOutGone(View& view);
    void loadPending();
    void endUnsaved(bool restored);
    void takeLoaded(const LoadRequest& request, const std::shared_ptr<const PlaneSource>& source);
    void dropPendingView(const LoadRequest& request);
    void showLoadedView();
    void showPendingView();
    void askForPendingView();
    void addRecording(const LoadRequest& request, const std::shared_ptr<const PlaneSource>& source);
    void offerQuestion(const LoadRequest& request, const QString& line);
    void tell(const QString& line) { messages_->tell(line); }

    // A view is shown only once all of its recordings are there.
    struct PendingView {
        QString file;
        View view;
        std::vector<std::shared_ptr<const PlaneSource>> planes;
        int changes = 0;         ///< that its user may lose
        bool isUnsaved = false;  ///< a crash left it behind
        bool isComplete = true;  ///< with all of its recordings

        bool isLoaded() const { return planes.size() == view.planes.size(); }
    };

    Bench& bench_;
    QMainWindow& window_;
    RecentFiles recent_;
    RecordingOpener opener_;
    QString viewFile_;
    QString name_;  ///< under which a view without a file is offered to be saved
    std::optional<PendingView> pending_;
    int changes_ = 0;  ///< of the bench, so far
    int asking_ = 0;   ///< questions that are open
    std::optional<Settings> first_;
    std::vector<CurveRequest> curves_{CurveRequest{}};
    QMenu* recentMenu_;
    MessageBar* messages_;
    LoadingBar* loading_;
    OfferBar* offers_;
    Autosave* autosave_ = nullptr;
    QList<QAction*> saving_;
};

}  // namespace Rotavue::Workbench
