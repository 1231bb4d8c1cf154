#include "workbench/recording/recording_options.h"

#include <utility>

#include "workbench/recording/option_items.h"
#include "workbench/recording/option_words.h"
#include "workbench/recording/recording_error.h"

namespace Rotavue::Workbench {
namespace {

void checkItem(const OptionItem& item, RecordingOptions& options) {
    const auto check = [&](const auto& kind) {
        if constexpr (requires { isAllowed(kind, 0); }) {
            const auto& value = kind.field(options);
            if (!value || isAllowed(kind, *value)) return;
            throw RecordingError({}, numberText(*value) + " at " + std::string(item.pointer),
                                 allowedText(kind));
        }
    };
    std::visit(check, item.kind);
}

}  // namespace

RecordingOptions overlaid(RecordingOptions below, const RecordingOptions& above) {
    RecordingOptions source = above;
    if (source.machineFile) below.machineFile = source.machineFile;
    for (const OptionItem& item : optionItems()) {
        const auto take = [&](const auto& kind) {
            auto& value = kind.field(source);
            if (value) kind.field(below) = std::move(value);
        };
        std::visit(take, item.kind);
    }
    return below;
}

void checkOptions(const RecordingOptions& options) {
    RecordingOptions checked = options;
    for (const OptionItem& item : optionItems())
        checkItem(item, checked);
}

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
