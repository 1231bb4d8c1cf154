#pragma once

#include "host_kit/loader/module.h"
#include "tests/workbench/analysis/generated_recording.h"
#include "workbench/bench/bench.h"
#include "workbench/bench/run_out.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

#include <memory>

namespace Rotavue::Workbench {

/// A bench with the built module. Its recordings turn 50 times a second for a second, sampled at
/// 10 kHz, a quarter turn before the first sample: turn n begins at (n - 0.25) / 50 s. X is 40 and
/// Y 30 at its peak.
class BenchTest : public testing::Test {
protected:
    static Recording rotor(double duration = 1.0) {
        Recording recording =
            generate({.duration = duration,
                      .orders = {{.order = 1.0, .x = {40.0, 0.0}, .y = {30.0, 90.0}}}});
        recording.file = "rotor.csv";
        return recording;
    }

    Plane& add(Recording recording = rotor(), const PlaneSetup& setup = {}) {
        return bench_.addPlane(preparePlane(std::move(recording)), setup);
    }

    /// The plane's recording with all of its motion taken for run-out: hardly anything is left.
    static std::shared_ptr<const PlaneSource> still(const Plane& plane) {
        const RunOutSource source{.form = CompensationForm::Vector, .span = {0.1, 0.5}};
        return withoutRunOut(plane.sharedOriginal(), source, findRunOut(plane.original(), source));
    }

    std::shared_ptr<HostKit::Module> module_ =
        std::make_shared<HostKit::Module>(ROTAVUE_MODULE_FILE);
    Bench bench_{module_};
};

}  // namespace Rotavue::Workbench
