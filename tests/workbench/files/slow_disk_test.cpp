#include "workbench/files/recording_opener.h"

#include <QLabel>
#include <QMainWindow>
#include <QProgressBar>
#include <QPushButton>
#include <QSettings>
#include <QTest>

#include <chrono>
#include <future>

#include "tests/workbench/files/files_application.h"
#include "tests/workbench/recording/scratch_folder.h"
#include "workbench/files/loading_bar.h"

namespace Rotavue::Workbench {
namespace {

using namespace std::chrono_literals;

// A disk that answers when it is told to. Where the thread of the window waits for it all the same,
// the wait ends by itself, and the test fails instead of hanging.
class SlowDisk {
public:
    ImportFacts read(const std::filesystem::path& file, const RecordingOptions& told) const {
        if (file.filename().string().starts_with("slow")) answers_.wait_for(10s);
        return readImportFacts(file, told);
    }
    void answer() { answer_.set_value(); }

private:
    std::promise<void> answer_;
    std::shared_future<void> answers_ = answer_.get_future().share();
};

class SlowDiskTest : public ScratchFolder {
protected:
    SlowDiskTest() {
        const auto note = [this](const char* what) { log_ += what; };
        QObject::connect(&opener_, &RecordingOpener::failed, [=] { note("failed "); });
        QObject::connect(&opener_, &RecordingOpener::declined,
                         [this](const std::filesystem::path& file) {
                             log_ += "declined " + file.stem().string() + ' ';
                         });
        QObject::connect(&opener_.loader(), &RecordingLoader::loaded,
                         [this](const LoadRequest& request) {
                             log_ += "loaded " + request.file.stem().string();
                         });
        QObject::connect(&opener_, &RecordingOpener::idle, [=] { note(" idle "); });
    }
    ~SlowDiskTest() override {
        if (!hasAnswered_) disk_->answer();
    }

    std::filesystem::path clear(const char* name) const {
        return write(name, "t,x,y\n0,1,2\n1,2,3\n2,3,4\n");
    }
    std::filesystem::path unclear(const char* name) const {
        return write(name, "a,b,c\n1,1,2\n1,2,3\n2,3,4\n");
    }
    void answer() {
        disk_->answer();
        hasAnswered_ = true;
    }
    ImportDialog* asked() { return window_.findChild<ImportDialog*>(); }

    // The disk may outlive the test by a moment: a thread may still wait for it.
    std::shared_ptr<SlowDisk> disk_ = std::make_shared<SlowDisk>();
    bool hasAnswered_ = false;
    QSettings settings_{qt(at("settings.ini")), QSettings::IniFormat};
    QMainWindow window_;
    RecordingOpener opener_{settings_, &window_,
                            [disk = disk_](const auto& file, const RecordingOptions& told) {
                                return disk->read(file, told);
                            }};
    LoadingBar bar_{opener_.loader(), opener_.reader()};
    std::string log_;
};

TEST_F(SlowDiskTest, HoldsTheWindowNotUpAndTheQuestionComesWhenItAnswers) {
    opener_.open(unclear("slow.csv"));
    EXPECT_TRUE(opener_.isReading());
    EXPECT_FALSE(asked());
    EXPECT_TRUE(bar_.isHidden());
    ASSERT_TRUE(QTest::qWaitFor([&] { return !bar_.isHidden(); }));
    EXPECT_TRUE(opener_.isReading());
    EXPECT_EQ(bar_.findChild<QLabel*>()->text(), "Reading slow.csv");
    EXPECT_EQ(bar_.findChild<QProgressBar*>("loadingProgress")->value(), 0);
    answer();
    ASSERT_TRUE(QTest::qWaitFor([&] { return asked() != nullptr; }));
    EXPECT_TRUE(bar_.isHidden());
    EXPECT_EQ(log_, "");
}

TEST_F(SlowDiskTest, HoldsUpNobodyAfterACancel) {
    opener_.open(clear("slow.csv"));
    opener_.open(clear("behind.csv"));
    bar_.findChild<QPushButton*>("loadingCancel")->click();
    EXPECT_EQ(log_, "declined slow declined behind  idle ");
    log_.clear();
    opener_.open(clear("other.csv"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !opener_.isReading(); }));
    EXPECT_EQ(log_, "loaded other idle ");
    answer();
    QTest::qWait(20);
    EXPECT_EQ(log_, "loaded other idle ");
}

TEST_F(SlowDiskTest, WhatIsNamedBehindItKeepsItsOrder) {
    opener_.open(clear("slow.csv"));
    opener_.open(clear("other.csv"));
    opener_.afterwards([this] { log_ += "view "; });
    EXPECT_EQ(log_, "");
    answer();
    ASSERT_TRUE(QTest::qWaitFor([&] { return log_.ends_with("idle "); }));
    // The loader is asked for the second recording before what comes afterwards; the first one may
    // have been loaded by then.
    EXPECT_LT(log_.find("loaded slow"), log_.find("loaded other"));
    EXPECT_LT(log_.find("view "), log_.find("loaded other"));
}

TEST_F(SlowDiskTest, MayAnswerWhenItsWindowIsGone) {
    {
        RecordingOpener gone(settings_, nullptr,
                             [disk = disk_](const auto& file, const RecordingOptions& told) {
                                 return disk->read(file, told);
                             });
        gone.open(clear("slow.csv"));
        EXPECT_TRUE(gone.isReading());
    }
    answer();
}

TEST_F(SlowDiskTest, OfARecordingThatIsGoneIsToldAndTheNextOneComes) {
    opener_.open(at("slow-none.csv"));
    opener_.open(clear("other.csv"));
    answer();
    ASSERT_TRUE(QTest::qWaitFor([&] { return log_.ends_with("idle "); }));
    EXPECT_EQ(log_, "failed loaded other idle ");
}

}  // namespace
}  // namespace Rotavue::Workbench
