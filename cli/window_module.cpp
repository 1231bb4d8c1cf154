#include "cli/window_entry.h"

#include <exception>

/// The one name that the library of the window exports.
extern "C" __attribute__((visibility("default"))) int rotavueRunWindow(
    const Rotavue::Workbench::WindowOrder& order, std::string& failure) {
    try {
        return Rotavue::Workbench::runWindow(order);
    } catch (const std::exception& error) {
        failure = error.what();
        return 1;
    }
}

static_assert(std::is_same_v<decltype(rotavueRunWindow), Rotavue::Cli::WindowEntry>);
