#pragma once

#include "host_kit/loader/module.h"
#include "workbench/bench/kept_forms.h"
#include "workbench/bench/plane.h"
#include "workbench/bench/plane_source.h"
#include "workbench/bench/plane_titles.h"
#include "workbench/bench/playback.h"
#include "workbench/bench/undo_steps.h"

#include <QObject>
#include <QString>
#include <QTimer>
#include <QUndoStack>

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace Rotavue::Workbench {

/// All bearing planes that a window shows, one cursor in time for all of them, and what can be
/// undone. Everything that a user does to a plane goes through an operation of this class: it
/// becomes one command of the undo stack, and every panel hears of it by a signal.
///
/// Not for any other thread than the one that made it. What takes long (reading a recording, taking
/// off run-out) is done elsewhere, on a `PlaneSource`, and handed in when it is ready.
class Bench : public QObject {
    Q_OBJECT

public:
    /// The module makes the planes' controls.
    explicit Bench(std::shared_ptr<HostKit::Module> module, QObject* parent = nullptr);
    ~Bench() override;

    HostKit::Module& module() { return *module_; }

    // Planes.

    /// In the order in which they are tiled.
    const std::vector<std::shared_ptr<Plane>>& planes() const { return planes_; }

    bool has(const Plane& plane) const;

    /// What a plane is called beside the others, as all outputs call it; a plane that is not on the
    /// bench by its name alone. Another one that comes or goes may change it.
    PlaneTitle titleOf(const Plane& plane) const;

    /// Adds a plane at the end [undoable]. On an empty bench the cursor goes to the recording's
    /// end. Raises what `Plane` raises.
    Plane& addPlane(std::shared_ptr<const PlaneSource> source, const PlaneSetup& setup = {});

    /// Makes a plane that is not on the bench yet. Raises what `Plane` raises.
    std::shared_ptr<Plane> makePlane(std::shared_ptr<const PlaneSource> source,
                                     const PlaneSetup& setup) const;

    /// Shows these planes in the place of all that were shown. Nothing can be undone afterwards.
    void showPlanes(std::vector<std::shared_ptr<Plane>> planes, double cursor);

    /// Shows the recording of a plane as it was read anew, in the plane's place and with its curves
    /// and settings [undoable]. What settings follow from the recording alone, such as that its
    /// clearance is drawn, changes with it; run-out that was taken off is left in. Raises what
    /// `Plane` raises.
    Plane& replacePlane(Plane& plane, std::shared_ptr<const PlaneSource> source);

    /// Takes a plane away [undoable].
    void removePlane(Plane& plane);

    /// What is left of a plane's recording without run-out, or the recording again [undoable].
    void showCompensated(Plane& plane, std::shared_ptr<const PlaneSource> left);
    void showOriginal(Plane& plane);

    // Assignment and settings.

    /// The curves that a plane shows [undoable].
    void setCurves(Plane& plane, std::vector<CurveRequest> curves);
    void setCurveOptions(Plane& plane, CurveOptions options);

    /// Lets a plane's control load settings [undoable]. `what` names the change in the menu;
    /// changes of one run (`beginRun`) that follow each other are one step of undo.
    void setSettings(Plane& plane, const Settings& settings, const QString& what = {},
                     int run = NoRun);

    /// To be called after a message that may have made the control change its settings: a widget
    /// read, a limit edited, a strip clicked. What is different becomes a command [undoable];
    /// without a difference, or for a plane that is not on the bench, nothing happens.
    void noticeSettings(Plane& plane, const QString& what = {}, int run = NoRun);

    static constexpr int NoRun = -1;

    /// What settings other planes need when a plane gets these; all of it is one step of undo.
    using Companions =
        std::function<std::vector<std::pair<Plane*, Settings>>(Plane& plane, const Settings& now)>;
    void setCompanions(Companions companions) { companions_ = std::move(companions); }

    /// The number of a run of changes that a user makes in one go.
    int beginRun() { return nextRun_++; }

    // Time.

    /// s after the first sample, from 0 to `duration`.
    double cursor() const { return cursor_; }
    void setCursor(double seconds);

    /// Of the longest recording, to its last sample, in s; 0 on an empty bench.
    double duration() const;

    /// Moves the cursor to the next passing of the keyphasor, or with a negative number to an
    /// earlier one. Without a keyphasor a step is what the plane shows.
    void stepTurns(const Plane& plane, int turns);

    Playback& playback() { return playback_; }

    // What takes long: curves, each of which comes when it is made, and what others make for a
    // plane.

    struct Work {
        QString what;                  ///< "Bearing 1 without run-out"
        std::function<double()> part;  ///< how much of it is done, 0 to 1
        std::function<void()> cancel;  ///< lets go of it
        std::function<bool()> isDone = [] { return false; };
        std::function<void()> deliver = {};  ///< called once, when it is done; it is ended by then
    };

    /// `worked` tells of it until it is done, ended or cancelled; the number is what ends it. Its
    /// functions are called on the bench's thread. bench_task.h has work on a thread of its own.
    int beginWork(Work work);

    /// Nothing happens for work that is over.
    void endWork(int number);

    /// Whether a curve is being made.
    bool isWorking() const;

    /// Gives up what is being made for any plane.
    void cancelWork();

    /// Waits until all curves are made.
    void finishWork();

    // The rest.

    /// Holds the newest hundred steps: one of them can be all that keeps a closed recording. Who
    /// steps here itself, and not by `steps`, waits for forms that have to be made anew.
    QUndoStack& undoStack() { return undo_; }

    /// Undo and redo.
    UndoSteps& steps() { return steps_; }

    /// The number of the colour scheme that planes are drawn in, scene/scheme_colors.h.
    std::int32_t scheme() const { return scheme_; }
    void setScheme(std::int32_t scheme);

    /// Tells the user of something that went wrong, one line; windows show it without standing in
    /// the way.
    void report(const QString& line) { Q_EMIT troubled(line); }

Q_SIGNALS:
    void planesChanged();                ///< one came or went
    void cursorMoved(double seconds);    ///< while playing, too
    void curvesChanged(Plane* plane);    ///< curves, their options, or what is compensated
    void settingsChanged(Plane* plane);  ///< of the control
    void notesChanged(Plane* plane);     ///< what a person should know
    void worked(const QString& what, double part);  ///< now and then; 0 to 1
    void workEnded();
    void schemeChanged(std::int32_t scheme);
    void troubled(const QString& line);

private:
    /// Pushes a change of one plane that is followed by the cursor's moment and by the signals.
    void change(Plane& plane, const QString& what, std::function<void(Plane&)> make,
                std::function<void(Plane&)> takeBack);

    /// Pushes a change of a plane's settings.
    void changeSettings(Plane& plane, const QString& what, int run, const Settings& before,
                        const Settings& after);
    void apply(Plane& plane, const std::function<void(Plane&)>& part);

    void insert(std::size_t place, std::shared_ptr<Plane> plane);
    void take(std::size_t place);

    /// Where the cursor stood before a plane was taken away, and where that has put it.
    struct CursorMove {
        double from = 0.0;
        double to = 0.0;
    };
    CursorMove takeWithCursor(std::size_t place);

    /// A plane that comes back brings the cursor back, unless it has been moved meanwhile.
    void insertWithCursor(std::size_t place, const std::shared_ptr<Plane>& plane,
                          const CursorMove& moved);
    void replace(std::size_t place, const std::shared_ptr<Plane>& plane);
    std::size_t placeOf(const Plane& plane) const;
    std::shared_ptr<Plane> shared(const Plane& plane) const;
    void findTitles();
    void placePlanes();
    HostState hostState() const;
    void watchWork();
    void lookForWork();
    void deliverWork();
    bool tellOfCurves();

    /// Pushes that a plane shows another form of its recording.
    void changeForm(Plane& plane, const QString& what,
                    const std::shared_ptr<const PlaneSource>& form);
    void showForm(Plane& plane, const FormCommand::Form& kept);

    std::shared_ptr<HostKit::Module> module_;
    std::vector<std::shared_ptr<Plane>> planes_;
    std::vector<PlaneTitle> titles_;  ///< of each of them
    KeptForms forms_;
    QUndoStack undo_;
    double cursor_ = 0.0;
    std::int32_t scheme_;
    int nextRun_ = 0;
    Companions companions_;
    Playback playback_;
    std::map<int, Work> works_;
    int nextWork_ = 0;
    QTimer work_;
    UndoSteps steps_{*this, undo_, forms_};
};

}  // namespace Rotavue::Workbench
