#include "workbench/recording/column_roles.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string>

#include "workbench/recording/column_name.h"
#include "workbench/recording/nearest_name.h"

namespace Rotavue::Workbench {
namespace {

using Words = std::span<const std::string_view>;

constexpr auto TimeWords =
    std::to_array<std::string_view>({"t", "time", "zeit", "timestamp", "seconds", "sec"});
constexpr auto XWords = std::to_array<std::string_view>({"x", "horizontal", "horiz"});
constexpr auto YWords = std::to_array<std::string_view>({"y", "vertical", "vertikal", "vert"});
constexpr auto RampWords =
    std::to_array<std::string_view>({"phi", "angle", "winkel", "phase", "theta"});
constexpr auto PulseWords = std::to_array<std::string_view>(
    {"keyphasor", "keyphase", "kph", "kp", "tacho", "tach", "sync", "pulse", "pulses", "trigger"});
constexpr auto SpeedWords = std::to_array<std::string_view>({"rpm", "speed", "drehzahl"});
constexpr auto AxisStems = std::to_array<std::string_view>(
    {"probe", "disp", "displacement", "sensor", "channel", "ch", "brg", "bearing", "lager"});

constexpr std::size_t LeastTimeRows = 3;
constexpr double LargestTimeError = 1.5;          // in steps
constexpr double LargestRelativeTimeError = 0.1;  // of the whole span, for a table of few rows

bool isOneOf(std::string_view word, Words words) {
    return std::find(words.begin(), words.end(), word) != words.end();
}

// "probex" and "xprobe" as well as "x", and with the bearing's number "brg1x". A number alone is no
// stem: "1X" is an order.
bool namesAxis(std::string word, std::string_view axis) {
    std::erase_if(word, [](char c) { return c >= '0' && c <= '9'; });
    return std::any_of(std::begin(AxisStems), std::end(AxisStems), [&](std::string_view stem) {
        return word == std::string(stem) + std::string(axis) ||
               word == std::string(axis) + std::string(stem);
    });
}

// The axis of a diagram isn't the axis of a probe: "X-Axis Value" names no X.
bool hasWord(const RecordingColumn& column, Words words) {
    const std::vector<std::string> own = wordsOf(column.name);
    if (isOneOf("axis", std::vector<std::string_view>(own.begin(), own.end()))) return false;
    return std::any_of(own.begin(), own.end(), [&](const std::string& word) {
        return isOneOf(word, words) ||
               (words.front().size() == 1 && namesAxis(word, words.front()));
    });
}

bool isSpeedUnit(std::string_view unit) {
    return unit == "rpm" || unit == "RPM" || unit == "1/min" || unit == "Hz";
}

class RoleAssigner {
public:
    RoleAssigner(const std::filesystem::path& file, const SourceHead& head,
                 const RecordingOptions& options)
        : file_(file), head_(head), options_(options), columns_(head.columns) {}

    /// What is named and what can be guessed; the rest stays open.
    std::vector<RecordingColumn> guess();

    /// The same; throws where a name is wrong, or where a probe stays open.
    std::vector<RecordingColumn> assign();

private:
    struct NamedColumn {
        ColumnRole role;
        const std::optional<std::string>& name;
    };
    std::vector<NamedColumn> namedColumns() const;
    void checkNames();
    void takeNamed(const NamedColumn& named);
    RecordingColumn* find(const std::string& name);
    void guessFromNames();
    void guessFromOrder();
    void giveFirst(ColumnRole role, Words words);
    void giveNext(ColumnRole role);
    bool wants(ColumnRole role) const;
    std::size_t unusedCount() const;
    [[noreturn]] void refuseName(const std::string& name) const;
    void refuseMissing(ColumnRole role, std::string_view name) const;
    std::vector<std::string> names() const;

    std::filesystem::path file_;
    const SourceHead& head_;
    const RecordingOptions& options_;
    std::vector<RecordingColumn> columns_;
};

std::vector<RecordingColumn> RoleAssigner::guess() {
    for (const NamedColumn& named : namedColumns())
        takeNamed(named);
    if (head_.namesGiven) {
        guessFromNames();
    } else {
        guessFromOrder();
    }
    return columns_;
}

std::vector<RecordingColumn> RoleAssigner::assign() {
    checkNames();
    guess();
    refuseMissing(ColumnRole::X, "x");
    refuseMissing(ColumnRole::Y, "y");
    return std::move(columns_);
}

std::vector<RoleAssigner::NamedColumn> RoleAssigner::namedColumns() const {
    std::vector<NamedColumn> named = {{ColumnRole::X, options_.x.column},
                                      {ColumnRole::Y, options_.y.column},
                                      {ColumnRole::Time, options_.timeColumn}};
    if (options_.keyphasor.kind != KeyphasorKind::None)
        named.push_back({ColumnRole::Keyphasor, options_.keyphasor.column});
    return named;
}

void RoleAssigner::checkNames() {
    std::vector<const RecordingColumn*> taken;
    for (const auto& [role, name] : namedColumns()) {
        if (!name) continue;
        const RecordingColumn* column = find(*name);
        if (!column) refuseName(*name);
        if (std::find(taken.begin(), taken.end(), column) != taken.end()) {
            throw RecordingError({file_}, "column " + inQuotes(*name) + " named for two purposes",
                                 "a column of its own for each");
        }
        taken.push_back(column);
    }
}

void RoleAssigner::takeNamed(const NamedColumn& named) {
    RecordingColumn* column = named.name ? find(*named.name) : nullptr;
    if (column && column->role == ColumnRole::Unused) column->role = named.role;
}

RecordingColumn* RoleAssigner::find(const std::string& name) {
    const std::string bare = splitUnit(name).name;
    for (RecordingColumn& column : columns_) {
        if (column.name == bare || column.name == name) return &column;
    }
    std::size_t number = 0;
    const char* end = name.data() + name.size();
    if (!name.starts_with('#')) return nullptr;
    const auto [stop, fault] = std::from_chars(name.data() + 1, end, number);
    const bool inside = fault == std::errc() && stop == end && number - 1 < columns_.size();
    return inside ? &columns_[number - 1] : nullptr;
}

void RoleAssigner::guessFromNames() {
    giveFirst(ColumnRole::Time, TimeWords);
    giveFirst(ColumnRole::X, XWords);
    giveFirst(ColumnRole::Y, YWords);
    giveFirst(ColumnRole::Keyphasor, RampWords);
    giveFirst(ColumnRole::Keyphasor, PulseWords);
    giveFirst(ColumnRole::Keyphasor, SpeedWords);
}

void RoleAssigner::guessFromOrder() {
    RecordingColumn& first = columns_.front();
    const bool rises = !head_.preview.empty() && looksLikeTime(head_.preview.front());
    if (rises && first.role == ColumnRole::Unused && wants(ColumnRole::Time)) {
        first.role = ColumnRole::Time;
    }
    const bool named = options_.x.column && options_.y.column;
    if (!named && unusedCount() > 3) return;
    giveNext(ColumnRole::X);
    giveNext(ColumnRole::Y);
    if (unusedCount() == 1) giveNext(ColumnRole::Keyphasor);
}

void RoleAssigner::giveFirst(ColumnRole role, Words words) {
    if (!wants(role)) return;
    for (RecordingColumn& column : columns_) {
        if (column.role != ColumnRole::Unused || !hasWord(column, words)) continue;
        column.role = role;
        return;
    }
}

void RoleAssigner::giveNext(ColumnRole role) {
    if (!wants(role)) return;
    for (RecordingColumn& column : columns_) {
        if (column.role != ColumnRole::Unused) continue;
        column.role = role;
        return;
    }
}

bool RoleAssigner::wants(ColumnRole role) const {
    if (role == ColumnRole::Keyphasor && options_.keyphasor.kind == KeyphasorKind::None) {
        return false;
    }
    return std::none_of(columns_.begin(), columns_.end(),
                        [&](const RecordingColumn& column) { return column.role == role; });
}

std::size_t RoleAssigner::unusedCount() const {
    return static_cast<std::size_t>(std::count_if(
        columns_.begin(), columns_.end(),
        [](const RecordingColumn& column) { return column.role == ColumnRole::Unused; }));
}

std::vector<std::string> RoleAssigner::names() const {
    std::vector<std::string> names;
    for (const RecordingColumn& column : columns_)
        names.push_back(column.name);
    return names;
}

void RoleAssigner::refuseName(const std::string& name) const {
    throw RecordingError({file_},
                         "no column " + inQuotes(name) + " (the nearest name is " +
                             inQuotes(nearestName(name, names())) + ")",
                         listText(names()));
}

void RoleAssigner::refuseMissing(ColumnRole role, std::string_view name) const {
    if (!wants(role)) return;
    throw RecordingError({file_},
                         "no column for " + std::string(name) + " among " + listText(names()),
                         "two probes, in columns named x and y or named by an option");
}

}  // namespace

std::vector<RecordingColumn> assignRoles(const std::filesystem::path& file, const SourceHead& head,
                                         const RecordingOptions& options) {
    return RoleAssigner(file, head, options).assign();
}

std::vector<RecordingColumn> guessRoles(const SourceHead& head, const RecordingOptions& options) {
    return RoleAssigner({}, head, options).guess();
}

std::vector<std::string> furtherProbes(const std::vector<RecordingColumn>& columns) {
    std::vector<std::string> names;
    for (const RecordingColumn& column : columns) {
        const bool unused = column.role == ColumnRole::Unused;
        if (unused && (hasWord(column, XWords) || hasWord(column, YWords)))
            names.push_back(column.name);
    }
    return names;
}

std::vector<RecordingColumn> nextPlane(std::vector<RecordingColumn> columns) {
    const auto isProbe = [](const RecordingColumn& column) {
        return column.role == ColumnRole::X || column.role == ColumnRole::Y;
    };
    const auto last = std::find_if(columns.rbegin(), columns.rend(), isProbe).base();
    const auto give = [&](ColumnRole role, Words words) {
        const auto next = std::find_if(last, columns.end(), [&](const RecordingColumn& column) {
            return column.role == ColumnRole::Unused && hasWord(column, words);
        });
        if (next != columns.end()) next->role = role;
    };
    for (auto column = columns.begin(); column != last; ++column)
        if (isProbe(*column)) column->role = ColumnRole::Unused;
    give(ColumnRole::X, XWords);
    give(ColumnRole::Y, YWords);
    return columns;
}

bool looksLikeTime(std::span<const double> values) {
    if (values.size() < LeastTimeRows) return false;
    const double step = (values.back() - values.front()) / static_cast<double>(values.size() - 1);
    if (!(step > 0.0)) return false;
    const double span = values.back() - values.front();
    const double tolerance = std::min(LargestTimeError * step, LargestRelativeTimeError * span);
    for (std::size_t i = 1; i < values.size(); ++i) {
        const double line = values.front() + step * static_cast<double>(i);
        const bool straight = std::abs(values[i] - line) <= tolerance;
        if (!straight || values[i] < values[i - 1]) return false;
    }
    return true;
}

std::optional<KeyphasorKind> kindFromName(const RecordingColumn& column) {
    const bool isVoltage = column.unit == "V" || column.unit == "mV";
    const bool isAngle = column.unit == "deg" || column.unit == "\u00B0" || column.unit == "rad";
    if (isVoltage) return KeyphasorKind::Volts;
    if (isAngle) return KeyphasorKind::Ramp;
    if (isSpeedUnit(column.unit)) return KeyphasorKind::Speed;
    if (hasWord(column, RampWords)) return KeyphasorKind::Ramp;
    if (hasWord(column, SpeedWords)) return KeyphasorKind::Speed;
    return std::nullopt;
}

}  // namespace Rotavue::Workbench
