#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <string_view>

#include "workbench/recording/recording_error.h"

namespace Rotavue::Workbench {

// A folder of one test's own, gone with the test.
class ScratchFolder : public testing::Test {
protected:
    ScratchFolder() {
        const auto* test = testing::UnitTest::GetInstance()->current_test_info();
        folder_ = std::filesystem::temp_directory_path() /
                  (std::string("rotavue-") + test->test_suite_name() + '-' + test->name() + '-' +
                   std::to_string(::getpid()));
        std::filesystem::create_directories(folder_);
    }
    ~ScratchFolder() override {
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }

    std::filesystem::path at(std::string_view name) const { return folder_ / name; }

    // Writes a new file: overwriting one makes some file systems wait for the disk.
    std::filesystem::path write(std::string_view name, std::string_view text) const {
        std::filesystem::remove(at(name));
        std::ofstream(at(name), std::ios::binary) << text;
        return at(name);
    }

    // The message of the RecordingError that `action` throws, with the folder's path left out.
    std::string messageOf(const std::function<void()>& action) const {
        try {
            action();
        } catch (const RecordingError& error) {
            const std::string message = error.what();
            const std::string prefix = folder_.string() + '/';
            return message.starts_with(prefix) ? message.substr(prefix.size()) : message;
        }
        return "no error";
    }

private:
    std::filesystem::path folder_;
};

}  // namespace Rotavue::Workbench
