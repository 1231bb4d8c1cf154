#include "workbench/scene/curve_request.h"

#include "workbench/scene/fact_words.h"

#include <filesystem>

namespace Rotavue::Workbench {

namespace {

std::string orderWords(const std::vector<double>& orders) {
    std::string words;
    for (const double order : orders)
        words += (words.empty() ? "" : ", ") + shortNumber(order) + 'X';
    return words;
}

}  // namespace

bool isOfShownTurns(CurveKind kind) {
    return kind == CurveKind::Raw || kind == CurveKind::Average || kind == CurveKind::Harmonic;
}

std::string wordsOf(const CurveRequest& request) {
    switch (request.kind) {
        case CurveKind::Raw:
            return "raw";
        case CurveKind::Average:
            return "average";
        case CurveKind::Harmonic:
            return orderWords(request.orders);
        case CurveKind::SubSync:
            return "below 1X";
        case CurveKind::Reference:
            return "reference " + std::filesystem::path(request.file).stem().string();
        case CurveKind::ShaftCenter:
            break;
    }
    return "shaft centre";
}

}  // namespace Rotavue::Workbench
