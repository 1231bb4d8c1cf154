#include "cli/curve_list.h"

#include "cli/argument_values.h"
#include "cli/usage_error.h"
#include "workbench/analysis/harmonics.h"

#include <algorithm>
#include <array>
#include <utility>

namespace Rotavue::Cli {

namespace {

using namespace Workbench;

constexpr double LeastOrder = 0.01;
constexpr double LargestOrder = 1000.0;
constexpr const char* Option = "--show";
constexpr const char* Allowed =
    "raw, by-angle, not-1x, average, harmonic:1+2, subsync, reference:FILE and shaft-center, "
    "joined "
    "by commas, each once";
constexpr const char* AllowedOrders =
    "up to 64 orders such as 1+2+0.43, each once, from 0.01 to 1000";

constexpr auto PlainKinds = std::to_array<std::pair<std::string_view, CurveKind>>({
    {"raw", CurveKind::Raw},
    {"by-angle", CurveKind::ByAngle},
    {"not-1x", CurveKind::NotFirst},
    {"average", CurveKind::Average},
    {"subsync", CurveKind::SubSync},
    {"shaft-center", CurveKind::ShaftCenter},
});

std::vector<std::string> split(const std::string& text, char separator) {
    std::vector<std::string> parts;
    std::size_t begin = 0;
    for (;;) {
        const std::size_t end = text.find(separator, begin);
        parts.push_back(text.substr(begin, end - begin));
        if (end == std::string::npos) return parts;
        begin = end + 1;
    }
}

CurveRequest requestOf(const std::string& item) {
    constexpr std::string_view Harmonic = "harmonic";
    constexpr std::string_view Reference = "reference:";
    for (const auto& [name, kind] : PlainKinds)
        if (item == name) return {.kind = kind};
    if (item == Harmonic) return {.kind = CurveKind::Harmonic, .orders = {1.0}};
    if (item.starts_with("harmonic:")) {
        return {.kind = CurveKind::Harmonic,
                .orders = ordersIn(Option, item.substr(Harmonic.size() + 1))};
    }
    if (item.starts_with(Reference) && item.size() > Reference.size()) {
        return {.kind = CurveKind::Reference, .file = item.substr(Reference.size())};
    }
    throw UsageError(Option, item, Allowed);
}

bool isTaken(const std::vector<CurveRequest>& requests, const CurveRequest& request) {
    return std::any_of(requests.begin(), requests.end(), [&](const CurveRequest& one) {
        return one.kind == request.kind && one.file == request.file;
    });
}

}  // namespace

std::vector<double> ordersIn(std::string_view option, const std::string& text) {
    std::vector<double> orders;
    for (const std::string& part : split(text, '+')) {
        const auto order = numberIn(part);
        const bool fits = order && *order >= LeastOrder && *order <= LargestOrder;
        if (!fits || std::find(orders.begin(), orders.end(), *order) != orders.end() ||
            orders.size() == MostOrders) {
            throw UsageError(option, text, AllowedOrders);
        }
        orders.push_back(*order);
    }
    return orders;
}

std::vector<CurveRequest> curveRequests(const std::string& text) {
    std::vector<CurveRequest> requests;
    for (const std::string& item : split(text, ',')) {
        CurveRequest request = requestOf(item);
        if (isTaken(requests, request)) throw UsageError(Option, text, Allowed);
        requests.push_back(std::move(request));
    }
    return requests;
}

}  // namespace Rotavue::Cli
