#include "tests/workbench/files/files_application.h"

#include "tests/support/unbound_windows.h"

#include <gtest/gtest.h>

#include <QApplication>

#include <optional>

namespace Rotavue::Workbench {
namespace {

QtMessageHandler tell = nullptr;

// The offscreen display knows no least size of a window, and complains of each question's.
void tellOthers(QtMsgType type, const QMessageLogContext& context, const QString& line) {
    if (!line.contains("propagateSizeHints")) tell(type, context, line);
}

// Qt runs for as long as the tests of this program do, on no display.
class FilesEnvironment : public ::testing::Environment {
public:
    void SetUp() override {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        tell = qInstallMessageHandler(tellOthers);
        application_.emplace(count_, arguments_);
        new UnboundWindows(*application_);
        QApplication::setQuitOnLastWindowClosed(false);
    }
    void TearDown() override { application_.reset(); }

private:
    char name_[6] = "files";
    char* arguments_[2] = {name_, nullptr};
    int count_ = 1;
    std::optional<QApplication> application_;
};

const auto* const environment = ::testing::AddGlobalTestEnvironment(new FilesEnvironment);

}  // namespace

QString qt(const std::filesystem::path& path) {
    return QString::fromStdString(path.string());
}

}  // namespace Rotavue::Workbench
