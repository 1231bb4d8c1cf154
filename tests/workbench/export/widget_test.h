#pragma once

#include <gtest/gtest.h>

#include <QSettings>
#include <QTemporaryDir>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace Rotavue::Workbench {

/// A folder of a test's own, in which files and the program's memory of the user's choices lie.
class ScratchSettings {
public:
    std::unique_ptr<QSettings> memory() const {
        return std::make_unique<QSettings>(memory_.filePath("test.ini"), QSettings::IniFormat);
    }

    QString at(const QString& name) const { return folder_.filePath(name); }

    /// The names of the files in the folder.
    std::vector<std::string> names() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(folder_.path().toStdString()))
            if (entry.is_regular_file()) names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        return names;
    }

private:
    QTemporaryDir folder_;
    QTemporaryDir memory_;
};

class WidgetTest : public testing::Test, protected ScratchSettings {};

}  // namespace Rotavue::Workbench
