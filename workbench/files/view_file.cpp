#include "workbench/files/view_file.h"

#include <algorithm>
#include <array>
#include <limits>
#include <nlohmann/json.hpp>

#include "workbench/analysis/replace_file.h"
#include "workbench/files/json_place.h"
#include "workbench/recording/input_file.h"
#include "workbench/recording/json_text.h"
#include "workbench/recording/machine_file.h"
#include "workbench/recording/recording_error.h"
#include "workbench/scene/curve_colors.h"
#include "workbench/setup/setup_rules.h"

namespace Rotavue::Workbench {
namespace {

using Json = nlohmann::json;
using Path = std::filesystem::path;

constexpr int Version = 1;
constexpr std::size_t LargestFile = 4U << 20U;
constexpr JsonBounds Bounds = {8, 100'000};  // a view full of planes has less than half of them
constexpr std::size_t MostPlanes = 64;
constexpr std::size_t MostCurves = 64;
constexpr std::size_t MostOrders = 64;
constexpr std::size_t MostSettings = 64;
constexpr std::size_t LongestText = 4096;
constexpr double LargestNumber = 1e12;
constexpr double LargestOrder = 1000.0;
constexpr double LargestSpeed = 1e9;

// In the order of their enumerators.
constexpr std::array KindWords = {"raw",    "byAngle", "not1X",     "average",
                                  "orders", "below1X", "reference", "shaftCentre"};
constexpr std::array RestWords = {"centre", "bottom"};
constexpr std::array LabelWords = {"speed", "time"};
constexpr std::array FormWords = {"vector", "waveform"};

template <typename Enum>
std::size_t indexOf(Enum value) {
    return static_cast<std::size_t>(value);
}

// As it stands in the file: from the file's folder where there is such a way, with slashes.
std::string pathText(const Path& path, const Path& folder) {
    std::error_code fault;
    const Path absolute = std::filesystem::absolute(path, fault).lexically_normal();
    const Path relative = absolute.lexically_relative(folder);
    return (relative.empty() ? absolute : relative).generic_string();
}

Path folderOf(const Path& file) {
    std::error_code fault;
    return std::filesystem::absolute(file, fault).lexically_normal().parent_path();
}

class ViewReader {
public:
    explicit ViewReader(const Path& file) : file_(file), folder_(folderOf(file)) {}

    View read() const;

private:
    ViewPlane planeOf(const JsonPlace& place) const;
    Path pathOf(const JsonPlace& place) const;
    Path namedMachineFile(const JsonPlace& place) const;
    CurveRequest curveOf(const JsonPlace& place) const;
    ShaftCenterChoice shaftCenterOf(const JsonPlace& place) const;
    RunOutSource compensationOf(const JsonPlace& place) const;

    Path file_;
    Path folder_;
};

TimeSpan spanOf(const JsonPlace& place) {
    const std::vector<JsonPlace> ends = place.list(2, 2);
    const TimeSpan span{ends[0].number(0.0, LargestNumber), ends[1].number(0.0, LargestNumber)};
    if (span.from >= span.to) place.refuse("two times, the second one later");
    return span;
}

std::map<std::string, std::string> setupOf(const JsonPlace& place) {
    std::map<std::string, std::string> setup;
    for (const auto& [key, text] : place.members(MostSettings)) {
        if (!isSettingKey(key)) text.refuse("settings alone; " + unknownKey(key));
        setup[key] = text.text(LongestText);
    }
    return setup;
}

std::size_t colorOf(const JsonPlace& place) {
    return static_cast<std::size_t>(place.number(0.0, CurveColorsOnLight.size() - 1.0));
}

View ViewReader::read() const {
    const Json json = parseJson(file_, readSmallFile(file_, LargestFile), Bounds);
    const JsonPlace top(file_, json);
    top.checkMembers({"rotavueView", "cursor", "planes"});
    top.at("rotavueView").number(Version, Version);
    View view;
    if (const auto cursor = top.find("cursor")) view.cursor = cursor->number(0.0, LargestNumber);
    for (const JsonPlace& plane : top.at("planes").list(0, MostPlanes))
        view.planes.push_back(planeOf(plane));
    return view;
}

ViewPlane ViewReader::planeOf(const JsonPlace& place) const {
    place.checkMembers({"recording", "machineFile", "options", "curves", "speed", "shaftCentre",
                        "setup", "compensation"});
    ViewPlane plane;
    plane.recording = pathOf(place.at("recording"));
    if (const auto options = place.find("options"))
        plane.options = readMachineText(file_, options->value().dump());
    if (const auto file = place.find("machineFile"))
        plane.options.machineFile = namedMachineFile(*file);
    for (const JsonPlace& curve : place.at("curves").list(0, MostCurves)) {
        plane.curves.push_back(curveOf(curve));
        if (const auto color = curve.find("color")) plane.colors.push_back(colorOf(*color));
    }
    if (plane.colors.size() != plane.curves.size()) plane.colors.clear();
    plane.curveOptions.reference = plane.options;
    if (const auto speed = place.find("speed"))
        plane.curveOptions.speed = speed->number(0.0, LargestSpeed);
    if (const auto choice = place.find("shaftCentre"))
        plane.curveOptions.shaftCenter = shaftCenterOf(*choice);
    plane.setup = setupOf(place.at("setup"));
    if (const auto taken = place.find("compensation")) plane.compensation = compensationOf(*taken);
    return plane;
}

Path ViewReader::pathOf(const JsonPlace& place) const {
    const std::string text = place.text(LongestText);
    if (text.empty()) place.refuse("the name of a file");
    return (folder_ / Path(text)).lexically_normal();
}

// An empty name stays one: there is no machine file.
Path ViewReader::namedMachineFile(const JsonPlace& place) const {
    return place.text(LongestText).empty() ? Path() : pathOf(place);
}

CurveRequest ViewReader::curveOf(const JsonPlace& place) const {
    place.checkMembers({"kind", "orders", "file", "color"});
    CurveRequest curve;
    curve.kind = static_cast<CurveKind>(
        place.at("kind").word({KindWords[0], KindWords[1], KindWords[2], KindWords[3], KindWords[4],
                               KindWords[5], KindWords[6], KindWords[7]}));
    if (curve.kind == CurveKind::Harmonic) {
        for (const JsonPlace& order : place.at("orders").list(1, MostOrders))
            curve.orders.push_back(order.number(std::numeric_limits<double>::min(), LargestOrder));
    }
    if (curve.kind == CurveKind::Reference) curve.file = pathOf(place.at("file")).string();
    return curve;
}

ShaftCenterChoice ViewReader::shaftCenterOf(const JsonPlace& place) const {
    place.checkMembers({"interval", "rest", "restSpan", "labels"});
    ShaftCenterChoice choice;
    if (const auto interval = place.find("interval"))
        choice.interval = interval->number(std::numeric_limits<double>::min(), LargestNumber);
    if (const auto rest = place.find("rest"))
        choice.rest = static_cast<RestPosition>(rest->word({RestWords[0], RestWords[1]}));
    if (const auto span = place.find("restSpan")) choice.restSpan = spanOf(*span);
    if (const auto labels = place.find("labels"))
        choice.labels = static_cast<PositionLabels>(labels->word({LabelWords[0], LabelWords[1]}));
    return choice;
}

RunOutSource ViewReader::compensationOf(const JsonPlace& place) const {
    place.checkMembers({"form", "span", "slowRoll"});
    RunOutSource taken;
    taken.form = static_cast<CompensationForm>(place.at("form").word({FormWords[0], FormWords[1]}));
    if (const auto span = place.find("span")) taken.span = spanOf(*span);
    if (const auto slowRoll = place.find("slowRoll")) taken.slowRoll = pathOf(*slowRoll);
    return taken;
}

class ViewWriter {
public:
    explicit ViewWriter(const Path& file) : folder_(folderOf(file)) {}

    Json jsonOf(const View& view) const;

private:
    Json planeOf(const ViewPlane& plane) const;
    Json curveOf(const CurveRequest& curve) const;
    Json compensationOf(const RunOutSource& taken) const;

    Path folder_;
};

Json spanJson(const TimeSpan& span) {
    return Json::array({span.from, std::min(span.to, LargestNumber)});
}

Json shaftCenterJson(const ShaftCenterChoice& choice) {
    Json json = {{"rest", RestWords[indexOf(choice.rest)]}};
    if (choice.interval) json["interval"] = *choice.interval;
    if (choice.restSpan) json["restSpan"] = spanJson(*choice.restSpan);
    if (choice.labels) json["labels"] = LabelWords[indexOf(*choice.labels)];
    return json;
}

Json ViewWriter::jsonOf(const View& view) const {
    Json planes = Json::array();
    for (const ViewPlane& plane : view.planes)
        planes.push_back(planeOf(plane));
    return {{"rotavueView", Version}, {"cursor", view.cursor}, {"planes", std::move(planes)}};
}

Json ViewWriter::planeOf(const ViewPlane& plane) const {
    Json json = {{"recording", pathText(plane.recording, folder_)},
                 {"shaftCentre", shaftCenterJson(plane.curveOptions.shaftCenter)},
                 {"setup", plane.setup}};
    const Json options = Json::parse(machineText(plane.options));
    if (!options.empty()) json["options"] = options;
    if (const auto& file = plane.options.machineFile)
        json["machineFile"] = file->empty() ? "" : pathText(*file, folder_);
    json["curves"] = Json::array();
    for (std::size_t i = 0; i < plane.curves.size(); ++i) {
        Json curve = curveOf(plane.curves[i]);
        if (i < plane.colors.size()) curve["color"] = plane.colors[i];
        json["curves"].push_back(std::move(curve));
    }
    if (plane.curveOptions.speed) json["speed"] = *plane.curveOptions.speed;
    if (plane.compensation) json["compensation"] = compensationOf(*plane.compensation);
    return json;
}

Json ViewWriter::curveOf(const CurveRequest& curve) const {
    Json json = {{"kind", KindWords[indexOf(curve.kind)]}};
    if (curve.kind == CurveKind::Harmonic) json["orders"] = curve.orders;
    if (curve.kind == CurveKind::Reference) json["file"] = pathText(curve.file, folder_);
    return json;
}

Json ViewWriter::compensationOf(const RunOutSource& taken) const {
    Json json = {{"form", FormWords[indexOf(taken.form)]}, {"span", spanJson(taken.span)}};
    if (taken.slowRoll) json["slowRoll"] = pathText(*taken.slowRoll, folder_);
    return json;
}

// A file's name may be any bytes, JSON is UTF-8.
std::string textOf(const Path& file, const Json& json) {
    try {
        return json.dump(4) + '\n';
    } catch (const Json::exception&) {
        throw RecordingError({file}, "a name that is not in UTF-8", "recordings with such names");
    }
}

}  // namespace

View readView(const Path& file) {
    return ViewReader(file).read();
}

void writeView(const Path& file, const View& view) {
    const std::string text = textOf(file, ViewWriter(file).jsonOf(view));
    const std::error_code fault = replaceFile(file, text);
    if (fault) throw RecordingError({file}, inQuotes(fault.message()), "a file to write to");
}

bool isViewName(const Path& file) {
    return file.extension() == ".rotavue";
}

}  // namespace Rotavue::Workbench
