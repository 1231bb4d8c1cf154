#include "workbench/analysis/reference_orbit.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <nlohmann/json.hpp>

#include "workbench/analysis/analysis_error.h"
#include "workbench/analysis/replace_file.h"
#include "workbench/analysis/short_text.h"
#include "workbench/recording/input_file.h"
#include "workbench/recording/json_text.h"
#include "workbench/recording/recording_error.h"

namespace Rotavue::Workbench {
namespace {

using Json = nlohmann::json;

constexpr const char* Format = "rotavue reference orbit 1";
constexpr std::size_t LargestFile = 16u << 20;
constexpr double LargestNumber = 1e12;
constexpr JsonBounds Bounds = {2, 64};  // a reference has less than 20 parts

// Faults of files are told in one form, here and where recordings are read.
[[noreturn]] void refuse(const std::filesystem::path& file, const std::string& found,
                         const std::string& allowed = "a reference orbit") {
    throw AnalysisError(RecordingError({file}, found, allowed).what());
}

// The members of the file, one by one, each of the kind that it should have.
class ReferenceReader {
public:
    explicit ReferenceReader(const std::filesystem::path& file) : file_(file), json_(parse()) {}

    ReferenceOrbit read() const {
        if (!json_.is_object() || json_.value("format", Json()) != Format)
            refuse(file_, "no member \"format\" of \"" + std::string(Format) + '"');
        ReferenceOrbit reference;
        reference.machine = text("machine");
        reference.point = text("point");
        reference.xAngle = number("x_angle_deg", -360.0, 360.0);
        reference.yAngle = number("y_angle_deg", -360.0, 360.0);
        readOrbit(reference.orbit);
        return reference;
    }

private:
    Json parse() const {
        try {
            return parseJson(file_, readSmallFile(file_, LargestFile), Bounds);
        } catch (const RecordingError& error) {
            throw AnalysisError(error.what());
        }
    }

    void readOrbit(AveragedOrbit& orbit) const {
        orbit.unit = text("unit");
        orbit.speed = number("speed_rpm", 0.0, LargestNumber);
        orbit.averages = count("averages", 1, INT_MAX);
        orbit.revolutions = count("revolutions", 1, MostRevolutions);
        orbit.pointsPerTurn = count("points_per_turn", 1, MostPointsPerTurn);
        const auto size = static_cast<std::size_t>(orbit.revolutions * orbit.pointsPerTurn);
        orbit.x = list("x", size);
        orbit.y = list("y", size);
    }

    const Json& member(const char* name) const {
        const auto found = json_.find(name);
        if (found == json_.end()) refuse(file_, "no member \"" + std::string(name) + '"');
        return *found;
    }

    [[noreturn]] void refuseMember(const char* name, const std::string& allowed) const {
        refuse(file_, "something else in member \"" + std::string(name) + '"', allowed);
    }

    std::string text(const char* name) const {
        const Json& value = member(name);
        if (!value.is_string()) refuseMember(name, "a text");
        return value.get<std::string>();
    }

    double number(const char* name, double least, double most) const {
        const Json& value = member(name);
        if (value.is_number() && value.get<double>() >= least && value.get<double>() <= most)
            return value.get<double>();
        refuseMember(name, "a number from " + shortText(least) + " to " + shortText(most));
    }

    int count(const char* name, int least, int most) const {
        const double value = number(name, least, most);
        if (value != std::floor(value)) refuseMember(name, "a whole number");
        return static_cast<int>(value);
    }

    std::vector<double> list(const char* name, std::size_t size) const {
        const Json& values = member(name);
        const auto fits = [](const Json& value) {
            return value.is_number() && std::abs(value.get<double>()) <= LargestNumber;
        };
        if (!values.is_array() || values.size() != size ||
            !std::all_of(values.begin(), values.end(), fits))
            refuseMember(name, "a list of " + std::to_string(size) + " numbers");
        return values.get<std::vector<double>>();
    }

    std::filesystem::path file_;
    Json json_;
};

// The members in the order in which a reader looks for them.
nlohmann::ordered_json jsonOf(const ReferenceOrbit& reference) {
    const AveragedOrbit& orbit = reference.orbit;
    return {{"format", Format},
            {"unit", orbit.unit},
            {"machine", reference.machine},
            {"point", reference.point},
            {"speed_rpm", orbit.speed},
            {"averages", orbit.averages},
            {"revolutions", orbit.revolutions},
            {"points_per_turn", orbit.pointsPerTurn},
            {"x_angle_deg", reference.xAngle},
            {"y_angle_deg", reference.yAngle},
            {"x", orbit.x},
            {"y", orbit.y}};
}

std::string probesText(double xAngle, double yAngle) {
    return shortText(xAngle) + " and " + shortText(yAngle) + " degrees";
}

}  // namespace

ReferenceOrbit referenceFrom(const AveragedOrbit& orbit, const Recording& recording) {
    const MachineFacts& machine = recording.machine;
    return {orbit, machine.machine, machine.point, machine.xAngle, machine.yAngle};
}

ReferenceOrbit averagedReference(const Recording& recording, const ShaftTrack& track,
                                 const TimeSpan& span, const ReadingProgress& progress) {
    ReferenceOrbit reference =
        referenceFrom(averageOrbit(recording, track, {.span = span}, progress), recording);
    progress.reach(1.0);
    return reference;
}

void saveReference(const ReferenceOrbit& reference, const std::filesystem::path& file) {
    // A name from a file of another encoding is no reason to lose the orbit.
    const std::string text = jsonOf(reference).dump(2, ' ', false, Json::error_handler_t::replace);
    if (const std::error_code fault = replaceFile(file, text + '\n'))
        refuse(file, inQuotes(fault.message()), "a place where a file can be written");
}

ReferenceOrbit loadReference(const std::filesystem::path& file) {
    return ReferenceReader(file).read();
}

void checkComparable(const ReferenceOrbit& reference, const Recording& recording) {
    const MachineFacts& machine = recording.machine;
    const std::string& unit = reference.orbit.unit;
    if (!unit.empty() && !machine.unit.empty() && unit != machine.unit)
        throw AnalysisError("the reference orbit is in " + inQuotes(unit) +
                            ", and the recording in " + inQuotes(machine.unit));
    if (reference.xAngle != machine.xAngle || reference.yAngle != machine.yAngle)
        throw AnalysisError("the reference orbit has its probes at " +
                            probesText(reference.xAngle, reference.yAngle) +
                            ", and the recording at " + probesText(machine.xAngle, machine.yAngle));
}

}  // namespace Rotavue::Workbench
