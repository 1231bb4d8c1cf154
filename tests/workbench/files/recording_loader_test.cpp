#include "workbench/files/recording_loader.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QProgressBar>
#include <QPushButton>

#include "tests/workbench/recording/scratch_folder.h"
#include "workbench/files/import_reader.h"
#include "workbench/files/loading_bar.h"

namespace Rotavue::Workbench {
namespace {

class RecordingLoaderTest : public ScratchFolder {
protected:
    RecordingLoaderTest() {
        const auto name = [](const LoadRequest& request) {
            return request.file.filename().string();
        };
        QObject::connect(&loader_, &RecordingLoader::loaded,
                         [=, this](const LoadRequest& request,
                                   const std::shared_ptr<const PlaneSource>& source) {
                             log_ += "loaded " + name(request) + '\n';
                             planes_.push_back(source);
                         });
        QObject::connect(&loader_, &RecordingLoader::failed,
                         [this](const LoadRequest&, const QString& line) {
                             log_ += "failed " + line.toStdString() + '\n';
                         });
        QObject::connect(
            &loader_, &RecordingLoader::cancelled,
            [=, this](const LoadRequest& request) { log_ += "cancelled " + name(request) + '\n'; });
        QObject::connect(&loader_, &RecordingLoader::idle, [this] { log_ += "idle\n"; });
    }

    std::filesystem::path small(std::string_view name) const {
        return write(name, "t,x,y\n0,1,2\n1,2,3\n2,3,4\n");
    }
    std::filesystem::path large(std::string_view name) const {
        std::string text = "t,x,y\n";
        for (int i = 0; i < 500'000; ++i)
            text += std::to_string(i) + ",1.25,2.5\n";
        return write(name, text);
    }
    void waitUntilIdle() {
        QEventLoop loop;
        QObject::connect(&loader_, &RecordingLoader::idle, &loop, &QEventLoop::quit);
        if (loader_.isLoading()) loop.exec();
    }

    RecordingLoader loader_;
    ImportReader reader_;
    std::string log_;
    std::vector<std::shared_ptr<const PlaneSource>> planes_;
};

TEST_F(RecordingLoaderTest, LoadsInTheOrderInWhichItWasAsked) {
    loader_.load({small("a.csv")});
    loader_.load({small("b.csv")});
    EXPECT_TRUE(loader_.isLoading());
    EXPECT_EQ(log_, "");
    waitUntilIdle();
    EXPECT_EQ(log_, "loaded a.csv\nloaded b.csv\nidle\n");
    ASSERT_EQ(planes_.size(), 2u);
    EXPECT_EQ(planes_[0]->recording.x, (std::vector<double>{1, 2, 3}));
    EXPECT_FALSE(loader_.isLoading());
}

TEST_F(RecordingLoaderTest, TellsWhatIsWrongAndGoesOn) {
    loader_.load({write("bad.csv", "t,x,y\n0,1,2\n1,a,3\n")});
    loader_.load({small("b.csv")});
    waitUntilIdle();
    EXPECT_EQ(log_, "failed " + at("bad.csv").string() +
                        ":3:3: found \"a\" in column \"x\", allowed: a number, or nothing for a "
                        "gap\nloaded b.csv\nidle\n");
}

TEST_F(RecordingLoaderTest, CancelsWhatIsLoadedAndWhatWaits) {
    loader_.load({large("a.csv")});
    loader_.load({small("b.csv")});
    loader_.cancel();
    EXPECT_EQ(log_, "cancelled a.csv\ncancelled b.csv\nidle\n");
    loader_.cancel();
    waitUntilIdle();
    EXPECT_EQ(log_, "cancelled a.csv\ncancelled b.csv\nidle\n");
    EXPECT_TRUE(planes_.empty());
}

TEST_F(RecordingLoaderTest, CancelsWhatWaitsForAViewAndGoesOnWithTheRest) {
    loader_.load({small("a.csv")});
    loader_.load({small("b.csv"), {}, true});
    loader_.load({small("c.csv")});
    loader_.load({small("d.csv"), {}, true});
    loader_.cancelWaitingOfView();
    EXPECT_EQ(log_, "cancelled b.csv\ncancelled d.csv\n");
    waitUntilIdle();
    EXPECT_EQ(log_, "cancelled b.csv\ncancelled d.csv\nloaded a.csv\nloaded c.csv\nidle\n");
}

TEST_F(RecordingLoaderTest, LoadsAgainAfterACancel) {
    loader_.load({large("a.csv")});
    loader_.cancel();
    loader_.load({small("b.csv")});
    waitUntilIdle();
    EXPECT_EQ(log_, "cancelled a.csv\nidle\nloaded b.csv\nidle\n");
}

TEST_F(RecordingLoaderTest, LeavesTheEventsOfTheWindowTheirTurn) {
    loader_.load({large("a.csv")});
    int turns = 0;
    while (loader_.isLoading()) {
        QCoreApplication::processEvents();
        ++turns;
    }
    EXPECT_GT(turns, 1);
}

TEST_F(RecordingLoaderTest, TellsRisingProgress) {
    std::vector<double> parts;
    QObject::connect(&loader_, &RecordingLoader::progressed,
                     [&](const LoadRequest&, double part, qint64) { parts.push_back(part); });
    loader_.load({large("a.csv")});
    waitUntilIdle();
    EXPECT_TRUE(std::is_sorted(parts.begin(), parts.end()));
    for (const double part : parts)
        EXPECT_TRUE(part >= 0.0 && part <= 1.0) << part;
}

TEST_F(RecordingLoaderTest, EndsWhileItIsLoading) {
    RecordingLoader dropped;
    dropped.load({large("a.csv")});
    dropped.load({small("b.csv")});
}

TEST_F(RecordingLoaderTest, BarComesAfterHalfASecondAndGoesWithTheLastRecording) {
    LoadingBar bar(loader_, reader_);
    const LoadRequest request{at("run-up.csv")};
    Q_EMIT loader_.progressed(request, 0.25, 499);
    EXPECT_TRUE(bar.isHidden());
    Q_EMIT loader_.progressed(request, 0.5, 500);
    EXPECT_FALSE(bar.isHidden());
    EXPECT_EQ(bar.findChild<QProgressBar*>("loadingProgress")->value(), 500);
    Q_EMIT loader_.idle();
    EXPECT_TRUE(bar.isHidden());
}

TEST_F(RecordingLoaderTest, ButtonOfTheBarCancels) {
    LoadingBar bar(loader_, reader_);
    loader_.load({large("a.csv")});
    bar.findChild<QPushButton*>("loadingCancel")->click();
    waitUntilIdle();
    EXPECT_EQ(log_, "cancelled a.csv\nidle\n");
}

}  // namespace
}  // namespace Rotavue::Workbench
