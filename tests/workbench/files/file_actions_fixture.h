#pragma once

#include <QApplication>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QTest>
#include <QTimer>

#include <memory>
#include <string>

#include "tests/workbench/files/files_application.h"
#include "tests/workbench/recording/scratch_folder.h"
#include "workbench/files/file_actions.h"

namespace Rotavue::Workbench {

// A window with a File menu and a bench, as a person has them.
class FileActionsTest : public ScratchFolder {
protected:
    FileActionsTest() { begin(); }

    // As if the program had been started again.
    void begin() {
        settings_ = std::make_unique<QSettings>(qt(at("settings.ini")), QSettings::IniFormat);
        bench_ = std::make_unique<Bench>(module_);
        window_ = std::make_unique<QMainWindow>();
        menu_ = window_->menuBar()->addMenu("File");
        menu_->addAction("Quit");
        files_ = new FileActions(*bench_, *window_, *menu_, *settings_);
    }
    void restart() {
        window_.reset();
        bench_.reset();
        settings_.reset();
        begin();
    }

    QString recording(std::string_view name) const {
        std::string text = "t [s],x [um],y [um],phi [deg]\n";
        for (int i = 0; i < 200; ++i)
            text += std::to_string(i) + "e-3," + std::to_string(i % 20) + ',' +
                    std::to_string((i + 5) % 20) + ',' + std::to_string(i % 20 * 18) + '\n';
        return qt(write(name, text));
    }
    void open(const QStringList& files) {
        files_->open(files);
        wait();
    }
    void wait() {
        EXPECT_TRUE(QTest::qWaitFor([this] { return !files_->opener().isReading(); }, 60'000));
    }
    std::string told() const { return files_->messages().lines().join('\n').toStdString(); }
    QStringList planes() const {
        QStringList names;
        for (const auto& plane : bench_->planes())
            names.append(QString::fromStdString(plane->name()));
        return names;
    }
    void circle() {
        Settings settings = bench_->planes().front()->settings();
        settings[L"graphType"] = L"1";
        bench_->setSettings(*bench_->planes().front(), settings);
    }
    void takeOff(const RunOutSource& runOut) {
        Plane& plane = *bench_->planes()[0];
        bench_->showCompensated(plane, withoutRunOut(plane.sharedOriginal(), runOut,
                                                     findRunOut(plane.original(), runOut)));
    }
    bool isChanged() const { return !bench_->undoStack().isClean(); }
    // What the control itself says; a key that it leaves out has the default, the grid.
    bool isCircle(std::size_t plane) {
        const Settings settings = bench_->planes()[plane]->control().save();
        const auto found = settings.find(L"graphType");
        return found != settings.end() && found->second == L"1";
    }
    // Answers the question that the next action asks.
    void answerWith(QMessageBox::StandardButton button) {
        QTimer::singleShot(0, [button] {
            auto* question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_TRUE(question);
            question->button(button)->click();
        });
    }
    // Answers a question that comes by itself; false where none comes.
    static bool answersWhenAsked(QMessageBox::StandardButton button) {
        bool isAnswered = false;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, [&] {
            auto* question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (question == nullptr) return;
            isAnswered = true;
            question->button(button)->click();
        });
        timer.start(1);
        return QTest::qWaitFor([&] { return isAnswered; });
    }
    QMenu& recent() {
        auto* menu = menu_->findChild<QMenu*>("recentMenu");
        Q_EMIT menu->aboutToShow();
        return *menu;
    }

    std::shared_ptr<HostKit::Module> module_ =
        std::make_shared<HostKit::Module>(ROTAVUE_MODULE_FILE);
    std::unique_ptr<QSettings> settings_;
    std::unique_ptr<Bench> bench_;
    std::unique_ptr<QMainWindow> window_;
    QMenu* menu_ = nullptr;
    FileActions* files_ = nullptr;
};

}  // namespace Rotavue::Workbench
