#include <QApplication>
#include <QLocale>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <clocale>
#include <optional>

namespace Rotavue::Workbench {
namespace {

/// Qt runs for as long as the tests of this program do, on the display that the environment names,
/// and remembers nothing in the user's own folders.
class WindowEnvironment : public ::testing::Environment {
public:
    void SetUp() override {
        qputenv("XDG_CONFIG_HOME", folder_.path().toUtf8());
        application_.emplace(count_, arguments_);
        std::setlocale(LC_NUMERIC, "C");
        QLocale::setDefault(QLocale::c());
    }
    void TearDown() override { application_.reset(); }

private:
    QTemporaryDir folder_;
    char name_[8] = "rotavue";
    char* arguments_[2] = {name_, nullptr};
    int count_ = 1;
    std::optional<QApplication> application_;
};

const auto* const environment = ::testing::AddGlobalTestEnvironment(new WindowEnvironment);

}  // namespace
}  // namespace Rotavue::Workbench
