#pragma once

#include <QString>

#include <filesystem>

/// The program of these tests has one QApplication, made before the first test.
namespace Rotavue::Workbench {

QString qt(const std::filesystem::path& path);

}  // namespace Rotavue::Workbench
