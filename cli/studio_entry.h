#pragma once

#include "workbench/paint/picture_studio.h"

#include <string>

/// How the program finds the studio in its library. Both are built together and share their types.
namespace Rotavue::Cli {

inline constexpr const char* StudioLibraryName = "rotavue-studio.so";
inline constexpr const char* StudioEntryName = "rotavueMakeStudio";

/// A studio that the caller owns; null, with the reason in `failure`, where none can be had.
using StudioEntry = Workbench::PictureStudio*(std::string& failure);

}  // namespace Rotavue::Cli
