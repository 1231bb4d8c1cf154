#include "workbench/bench/bench.h"

#include "workbench/bench/change_command.h"
#include "workbench/bench/settings_command.h"
#include "workbench/bench/turn_step.h"
#include "workbench/scene/scheme_colors.h"

#include <algorithm>
#include <chrono>
#include <thread>
#include <utility>

namespace Rotavue::Workbench {

namespace {

constexpr std::chrono::milliseconds WorkInterval{20};

/// Steps of undo: one of them can be all that keeps a closed recording.
constexpr int MostSteps = 100;

}  // namespace

Bench::Bench(std::shared_ptr<HostKit::Module> module, QObject* parent)
    : QObject(parent), module_(std::move(module)), scheme_(LightNumber), playback_(*this) {
    connect(&playback_, &Playback::playingChanged, this, [this] {
        placePlanes();
        Q_EMIT cursorMoved(cursor_);
    });
    undo_.setUndoLimit(MostSteps);
    work_.setInterval(WorkInterval);
    connect(&work_, &QTimer::timeout, this, &Bench::lookForWork);
}

/// Commands hold planes, and planes hold controls of the module.
Bench::~Bench() {
    works_.clear();
    undo_.clear();
}

std::size_t Bench::placeOf(const Plane& plane) const {
    const auto found = std::find_if(planes_.begin(), planes_.end(),
                                    [&](const auto& one) { return one.get() == &plane; });
    return static_cast<std::size_t>(found - planes_.begin());
}

bool Bench::has(const Plane& plane) const {
    return placeOf(plane) < planes_.size();
}

PlaneTitle Bench::titleOf(const Plane& plane) const {
    const std::size_t place = placeOf(plane);
    return place == planes_.size() ? PlaneTitle{plane.name()} : titles_[place];
}

// They are asked for with each frame, and change with the planes alone.
void Bench::findTitles() {
    std::vector<const PlaneSource*> sources;
    for (const auto& one : planes_)
        sources.push_back(&one->original());
    titles_ = planeTitles(sources);
}

std::shared_ptr<Plane> Bench::shared(const Plane& plane) const {
    return planes_.at(placeOf(plane));
}

void Bench::insert(std::size_t place, std::shared_ptr<Plane> plane) {
    const bool first = planes_.empty();
    plane->setLight(scheme_ == LightNumber);
    planes_.insert(planes_.begin() + static_cast<std::ptrdiff_t>(place), std::move(plane));
    findTitles();
    if (first) cursor_ = duration();
    planes_[place]->resumeCurves();
    planes_[place]->showMoment(cursor_, hostState());
    watchWork();
    Q_EMIT planesChanged();
    if (first) Q_EMIT cursorMoved(cursor_);
}

void Bench::take(std::size_t place) {
    planes_[place]->suspendCurves();
    planes_.erase(planes_.begin() + static_cast<std::ptrdiff_t>(place));
    findTitles();
    if (planes_.empty()) playback_.pause();
    Q_EMIT planesChanged();
    if (cursor_ > duration()) setCursor(duration());
}

Bench::CursorMove Bench::takeWithCursor(std::size_t place) {
    const double from = cursor_;
    take(place);
    return {from, cursor_};
}

void Bench::insertWithCursor(std::size_t place, const std::shared_ptr<Plane>& plane,
                             const CursorMove& moved) {
    const bool hasStayed = cursor_ == moved.to;
    insert(place, plane);
    if (hasStayed && cursor_ != moved.from) setCursor(moved.from);
}

std::shared_ptr<Plane> Bench::makePlane(std::shared_ptr<const PlaneSource> source,
                                        const PlaneSetup& setup) const {
    return std::make_shared<Plane>(std::move(source), *module_, setup, scheme_ == LightNumber);
}

Plane& Bench::addPlane(std::shared_ptr<const PlaneSource> source, const PlaneSetup& setup) {
    const auto plane = makePlane(std::move(source), setup);
    const std::size_t place = planes_.size();
    const auto moved = std::make_shared<std::optional<CursorMove>>();
    undo_.push(new ChangeCommand(
        tr("opening %1").arg(QString::fromStdString(plane->name())),
        [this, place, plane, moved] {
            *moved ? insertWithCursor(place, plane, **moved) : insert(place, plane);
        },
        [this, place, moved] { *moved = takeWithCursor(place); }));
    return *plane;
}

// The planes that go live until everybody has heard that they are gone.
void Bench::showPlanes(std::vector<std::shared_ptr<Plane>> planes, double cursor) {
    playback_.pause();
    const auto gone = std::exchange(planes_, std::move(planes));
    findTitles();
    cursor_ = std::clamp(cursor, 0.0, duration());
    placePlanes();
    watchWork();
    Q_EMIT planesChanged();
    Q_EMIT cursorMoved(cursor_);
    undo_.clear();
    forms_.letGo();
}

namespace {

/// The settings of a plane, but for those that suit its recording: where they are others for the
/// new one, these.
// What a change has made of the accepted settings, where others were tried out meanwhile: those are
// not accepted with it.
Settings afterChange(const Settings& accepted, const Settings& before, const Settings& after) {
    Settings settings = accepted;
    for (const auto& [key, value] : after) {
        const auto found = before.find(key);
        if (found == before.end() || found->second != value) settings[key] = value;
    }
    return settings;
}

Settings settingsFor(const PlaneSource& source, const Plane& plane) {
    Settings settings = plane.acceptedSettings();
    const Settings before = usualSettings(plane.original());
    for (const auto& [key, value] : usualSettings(source))
        if (before.at(key) != value) settings[key] = value;
    return settings;
}

}  // namespace

Plane& Bench::replacePlane(Plane& plane, std::shared_ptr<const PlaneSource> source) {
    PlaneSetup setup{plane.curves(), settingsFor(*source, plane), plane.curveOptions(),
                     plane.colorNumbers()};
    setup.options.reference = source->options;
    const auto fresh = makePlane(std::move(source), setup);
    const std::size_t place = placeOf(plane);
    undo_.push(new ChangeCommand(
        tr("what %1 holds").arg(QString::fromStdString(fresh->name())),
        [this, place, fresh] { replace(place, fresh); },
        [this, place, kept = shared(plane)] { replace(place, kept); }));
    return *fresh;
}

// The bench is never empty in between: that would move the cursor and end a playback.
void Bench::replace(std::size_t place, const std::shared_ptr<Plane>& plane) {
    insert(place, plane);
    take(place + 1);
}

void Bench::removePlane(Plane& plane) {
    const std::size_t place = placeOf(plane);
    const std::shared_ptr<Plane> kept = shared(plane);
    const auto moved = std::make_shared<CursorMove>();
    undo_.push(new ChangeCommand(
        tr("closing %1").arg(QString::fromStdString(titleOf(plane).text())),
        [this, place, moved] { *moved = takeWithCursor(place); },
        [this, place, kept, moved] { insertWithCursor(place, kept, *moved); }));
}

void Bench::change(Plane& plane, const QString& what, std::function<void(Plane&)> make,
                   std::function<void(Plane&)> takeBack) {
    const std::shared_ptr<Plane> kept = shared(plane);
    const auto told = [this, kept](const std::function<void(Plane&)>& part) {
        return [this, kept, part] { apply(*kept, part); };
    };
    undo_.push(new ChangeCommand(what, told(make), told(takeBack)));
}

void Bench::apply(Plane& plane, const std::function<void(Plane&)>& part) {
    part(plane);
    plane.showMoment(cursor_, hostState());
    watchWork();
    Q_EMIT curvesChanged(&plane);
    Q_EMIT settingsChanged(&plane);
    Q_EMIT notesChanged(&plane);
}

void Bench::setCurves(Plane& plane, std::vector<CurveRequest> curves) {
    if (curves == plane.curves()) return;
    change(
        plane, tr("curves of %1").arg(QString::fromStdString(titleOf(plane).text())),
        [curves = std::move(curves)](Plane& one) { one.setCurves(curves); },
        [before = plane.curves()](Plane& one) { one.setCurves(before); });
}

void Bench::setCurveOptions(Plane& plane, CurveOptions options) {
    change(
        plane, tr("how curves are made"),
        [options = std::move(options)](Plane& one) { one.setCurveOptions(options); },
        [before = plane.curveOptions()](Plane& one) { one.setCurveOptions(before); });
}

void Bench::changeForm(Plane& plane, const QString& what,
                       const std::shared_ptr<const PlaneSource>& form) {
    undo_.push(new FormCommand(
        what, shared(plane), forms_.keep(plane.sharedShown()), forms_.keep(form),
        [this](Plane& one, const FormCommand::Form& kept) { showForm(one, kept); }));
}

void Bench::showForm(Plane& plane, const FormCommand::Form& kept) {
    const auto form = steps_.isPassing() ? forms_.find(*kept) : forms_.formOf(kept);
    if (form) apply(plane, [&](Plane& one) { one.show(form); });
}

void Bench::showCompensated(Plane& plane, std::shared_ptr<const PlaneSource> left) {
    changeForm(plane, tr("taking off run-out"), left);
}

void Bench::showOriginal(Plane& plane) {
    if (plane.sharedShown() == plane.sharedOriginal()) return;
    changeForm(plane, tr("run-out as measured"), plane.sharedOriginal());
}

void Bench::changeSettings(Plane& plane, const QString& what, int run, const Settings& before,
                           const Settings& after) {
    const auto load = [this](Plane& one, const Settings& settings) {
        apply(one, [&](Plane& loading) { loading.load(settings); });
    };
    std::vector<SettingsStep> steps{{shared(plane), before, after}};
    if (companions_) {
        for (const auto& [other, settings] : companions_(plane, after))
            steps.push_back({shared(*other), other->settings(), settings});
    }
    undo_.push(
        new SettingsCommand(what.isEmpty() ? tr("settings") : what, std::move(steps), run, load));
}

void Bench::setSettings(Plane& plane, const Settings& settings, const QString& what, int run) {
    changeSettings(plane, what, run, plane.acceptedSettings(), settings);
}

void Bench::noticeSettings(Plane& plane, const QString& what, int run) {
    const Settings before = plane.settings();
    if (!has(plane) || !plane.readBack()) return;
    if (!plane.isTryingOut()) return changeSettings(plane, what, run, before, plane.settings());
    const Settings accepted = plane.acceptedSettings();
    changeSettings(plane, what, run, accepted, afterChange(accepted, before, plane.settings()));
}

double Bench::duration() const {
    double longest = 0.0;
    for (const auto& plane : planes_) {
        const Recording& recording = plane->original().recording;
        const auto last = static_cast<double>(recording.sampleCount() - 1);
        longest = std::max(longest, last / recording.sampleRate);
    }
    return longest;
}

HostState Bench::hostState() const {
    return playback_.isPlaying() ? HostState::Acquiring : HostState::Stored;
}

void Bench::placePlanes() {
    for (const auto& plane : planes_)
        plane->showMoment(cursor_, hostState());
}

void Bench::setCursor(double seconds) {
    cursor_ = std::clamp(seconds, 0.0, duration());
    placePlanes();
    Q_EMIT cursorMoved(cursor_);
}

bool Bench::isWorking() const {
    return std::any_of(planes_.begin(), planes_.end(),
                       [](const auto& plane) { return plane->slowCurves().current() != nullptr; });
}

void Bench::watchWork() {
    if ((isWorking() || !works_.empty()) && !work_.isActive()) work_.start();
}

int Bench::beginWork(Work work) {
    const int number = nextWork_++;
    works_.emplace(number, std::move(work));
    watchWork();
    return number;
}

void Bench::endWork(int number) {
    if (works_.erase(number) == 0) return;
    if (works_.empty() && !isWorking()) lookForWork();
}

void Bench::cancelWork() {
    for (const auto& entry : std::exchange(works_, {}))
        entry.second.cancel();
    for (const auto& plane : planes_) {
        if (plane->slowCurves().current() == nullptr) continue;
        plane->cancelCurves();
        Q_EMIT notesChanged(plane.get());
    }
}

void Bench::finishWork() {
    for (lookForWork(); isWorking(); lookForWork())
        std::this_thread::sleep_for(WorkInterval);
}

void Bench::lookForWork() {
    for (const auto& plane : std::vector(planes_)) {
        if (!plane->showMadeCurves()) continue;
        Q_EMIT curvesChanged(plane.get());
        Q_EMIT notesChanged(plane.get());
    }
    deliverWork();
    if (tellOfCurves()) return;
    if (!works_.empty()) {
        const Work& work = works_.begin()->second;
        Q_EMIT worked(work.what, work.part());
        return;
    }
    Q_EMIT workEnded();
    work_.stop();
}

// What is delivered may begin and end other work.
void Bench::deliverWork() {
    const auto isDone = [](const auto& entry) { return entry.second.isDone(); };
    for (auto found = std::find_if(works_.begin(), works_.end(), isDone); found != works_.end();
         found = std::find_if(works_.begin(), works_.end(), isDone)) {
        const Work work = std::move(works_.extract(found).mapped());
        work.deliver();
    }
}

bool Bench::tellOfCurves() {
    for (const auto& plane : planes_) {
        const CurveRequest* made = plane->slowCurves().current();
        if (made == nullptr) continue;
        const auto what = QString::fromStdString(titleOf(*plane).text() + ", " + wordsOf(*made));
        Q_EMIT worked(what, plane->slowCurves().part());
        return true;
    }
    return false;
}

void Bench::stepTurns(const Plane& plane, int turns) {
    setCursor(steppedTime(plane, cursor_, turns));
}

void Bench::setScheme(std::int32_t scheme) {
    if (scheme == scheme_) return;
    scheme_ = scheme;
    for (const auto& plane : planes_)
        plane->setLight(scheme_ == LightNumber);
    Q_EMIT schemeChanged(scheme_);
}

}  // namespace Rotavue::Workbench
