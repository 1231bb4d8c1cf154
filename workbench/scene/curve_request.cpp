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

bool needsKeyphasor(CurveKind kind) {
    return kind == CurveKind::ByAngle || kind == CurveKind::NotFirst ||
           kind == CurveKind::Average || kind == CurveKind::Harmonic;
}

bool isOfShownTurns(CurveKind kind) {
    return kind == CurveKind::Raw || needsKeyphasor(kind);
}

std::string wordsOf(const CurveRequest& request) {
    switch (request.kind) {
        case CurveKind::Raw:
            return "raw";
        case CurveKind::ByAngle:
            return "direct by angle";
        case CurveKind::NotFirst:
            return "not 1X";
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
