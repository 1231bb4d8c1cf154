#include "workbench/recording/recording_options.h"

#include "workbench/recording/option_words.h"

namespace Rotavue::Workbench {

std::optional<Rotation> parseRotation(std::string_view text) {
    return valueOf<Rotation>(RotationWords, text);
}

std::optional<KeyphasorKind> parseKeyphasorKind(std::string_view text) {
    return valueOf<KeyphasorKind>(KeyphasorKindWords, text);
}

std::optional<PulseEdge> parsePulseEdge(std::string_view text) {
    return valueOf<PulseEdge>(PulseEdgeWords, text);
}

std::optional<Coupling> parseCoupling(std::string_view text) {
    return valueOf<Coupling>(CouplingWords, text);
}

std::string_view toText(Rotation rotation) {
    return wordFor<Rotation>(RotationWords, rotation);
}

std::string_view toText(KeyphasorKind kind) {
    return wordFor<KeyphasorKind>(KeyphasorKindWords, kind);
}

std::string_view toText(PulseEdge edge) {
    return wordFor<PulseEdge>(PulseEdgeWords, edge);
}

std::string_view toText(Coupling coupling) {
    return wordFor<Coupling>(CouplingWords, coupling);
}

}  // namespace Rotavue::Workbench
