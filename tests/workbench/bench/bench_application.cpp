#include <QCoreApplication>

#include <gtest/gtest.h>

#include <optional>

namespace Rotavue::Workbench {
namespace {

/// A bench has timers, which need a thread that Qt knows.
class BenchEnvironment : public ::testing::Environment {
public:
    void SetUp() override { application_.emplace(count_, arguments_); }
    void TearDown() override { application_.reset(); }

private:
    char name_[6] = "bench";
    char* arguments_[2] = {name_, nullptr};
    int count_ = 1;
    std::optional<QCoreApplication> application_;
};

const auto* const environment = ::testing::AddGlobalTestEnvironment(new BenchEnvironment);

}  // namespace
}  // namespace Rotavue::Workbench
