#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "examples/flexible_rotor.h"
#include "examples/run_out.h"
#include "examples/whirl.h"

namespace Rotavue::Examples {

// What the keyphasor's column holds. The mark begins to pass at shaft angle 0: halfway down the
// flank of a notch, or halfway up that of a raised key.
enum class KeyphasorSignal { NotchVolts, KeyVolts, Ramp };

// A CSV of displacements in um, or a WAV of the drivers' volts, of which 10 V are full scale.
enum class FileForm { Csv, Wav };

// Places in degrees clockwise from the top.
struct ProbePlaces {
    double x = 45.0;
    double y = 315.0;
    double keyphasor = 0.0;
};

// Everything that makes one example recording.
struct Example {
    std::string name;   // of its files
    std::string title;  // what it shows
    FileForm form = FileForm::Csv;
    double rate = 10'000.0;  // samples per second
    double seconds = 2.0;
    double startRpm = 3000.0;  // the speed changes linearly
    double endRpm = 3000.0;
    Sense sense = Sense::CounterClockwise;
    ProbePlaces probes;
    KeyphasorSignal keyphasor = KeyphasorSignal::NotchVolts;
    std::vector<Whirl> whirls;
    std::optional<FlexibleRotor> rotor;
    RunOut runOut;
    double noise = 0.5;  // um, root mean square, of each probe
    double clearanceWidth = 200.0;
    double clearanceHeight = 200.0;
};

// The samples of an example: displacements in um, keyphasor in volts or degrees.
struct Samples {
    std::vector<double> x;
    std::vector<double> y;
    std::vector<double> keyphasor;
};

// The seed makes the noise; all else follows from the example.
Samples makeSamples(const Example& example, std::uint64_t seed);

std::size_t sampleCountOf(const Example& example);

// The shaft angle in radians and the speed in rpm, a time in seconds after the first sample.
double shaftAngleAt(const Example& example, double time);
double speedAt(const Example& example, double time);

// How many degrees the place under a probe is behind the keyphasor's mark at shaft angle 0.
double degreesBehindMark(const Example& example, double probeAngle);

}  // namespace Rotavue::Examples
