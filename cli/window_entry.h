#pragma once

#include "workbench/window/window_order.h"

#include <string>

/// How the program finds the window in its library. Both are built together and share their types.
namespace Rotavue::Cli {

inline constexpr const char* WindowLibraryName = "rotavue-window.so";
inline constexpr const char* WindowEntryName = "rotavueRunWindow";

/// The exit status of a window that has been closed; with a `failure` where there was none.
using WindowEntry = int(const Workbench::WindowOrder& order, std::string& failure);

}  // namespace Rotavue::Cli
