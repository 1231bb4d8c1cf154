#include "examples/example_list.h"

namespace Rotavue::Examples {
namespace {

Example unbalance() {
    Example example;
    example.name = "unbalance";
    example.title = "Unbalance: a slightly flattened 1X orbit with the rotation";
    example.whirls = {{1.0, 36.0, 25.0, 9.0, 110.0}, {2.0, 2.5, 80.0, 0.0, 0.0}};
    return example;
}

// Plain right and up probes, a shaft that turns clockwise, and the angle as a ramp.
Example misalignment() {
    Example example;
    example.name = "misalignment";
    example.title = "Misalignment: a strong 2X bends the orbit to a banana";
    example.rate = 6000.0;
    example.startRpm = example.endRpm = 3600.0;
    example.sense = Sense::Clockwise;
    example.probes = {90.0, 0.0, 0.0};
    example.keyphasor = KeyphasorSignal::Ramp;
    example.whirls = {
        {1.0, 18.0, 35.0, 10.0, 325.0}, {2.0, 8.0, 125.0, 8.0, 235.0}, {3.0, 1.5, 10.0, 0.0, 0.0}};
    example.noise = 0.3;
    example.clearanceWidth = 160.0;
    example.clearanceHeight = 140.0;
    return example;
}

// At 5120 samples per second six decimals cut the time: a step reads 195 or 196 us.
Example oilWhirl() {
    Example example;
    example.name = "oil-whirl";
    example.title = "Oil whirl: a forward circle at 0.46X, larger than the 1X";
    example.rate = 5120.0;
    example.startRpm = example.endRpm = 4800.0;
    example.keyphasor = KeyphasorSignal::KeyVolts;
    example.whirls = {{0.46, 46.0, 0.0, 3.0, 70.0}, {1.0, 12.0, 130.0, 2.0, 0.0}};
    example.noise = 0.8;
    example.clearanceWidth = example.clearanceHeight = 180.0;
    return example;
}

constexpr RunOut KitRunOut = {4.0, 150.0, 1.5, 60.0, 12.0, 250.0, 5.0};

Example slowRoll() {
    Example example;
    example.name = "slow-roll";
    example.title = "Slow roll: hardly any motion, so the probes show the shaft's run-out";
    example.rate = 5000.0;
    example.seconds = 4.0;
    example.startRpm = example.endRpm = 300.0;
    example.whirls = {{1.0, 0.5, 25.0, 0.0, 0.0}};
    example.runOut = KitRunOut;
    example.noise = 0.2;
    example.clearanceWidth = example.clearanceHeight = 100.0;
    return example;
}

Example runOutAtSpeed() {
    Example example = slowRoll();
    example.name = "run-out";
    example.title = "Run-out at speed: the shaft of slow-roll with a true 1X of 7 um";
    example.rate = 10'000.0;
    example.seconds = 2.0;
    example.startRpm = example.endRpm = 3000.0;
    example.whirls = {{1.0, 7.0, 25.0, 1.0, 110.0}};
    return example;
}

Example runUp() {
    Example example;
    example.name = "run-up";
    example.title = "Run-up through two critical speeds, the shaft lifting in its bearing";
    example.seconds = 8.0;
    example.startRpm = 600.0;
    example.endRpm = 6000.0;
    example.rotor = FlexibleRotor{8.0, 30.0, 2700.0, 3100.0, 0.12, 110.0, 1500.0};
    example.clearanceWidth = example.clearanceHeight = 220.0;
    return example;
}

// The drivers' volts: 7.87 mV per um about a gap of -5 V.
Example whirl() {
    Example example = oilWhirl();
    example.name = "whirl";
    example.title = "Whirl as a WAV file: a forward circle at 0.44X in the drivers' volts";
    example.form = FileForm::Wav;
    example.rate = 8000.0;
    example.startRpm = example.endRpm = 6000.0;
    example.keyphasor = KeyphasorSignal::KeyVolts;
    example.whirls[0].order = 0.44;
    return example;
}

}  // namespace

std::vector<Example> allExamples() {
    return {unbalance(), misalignment(), oilWhirl(), slowRoll(), runOutAtSpeed(), runUp(), whirl()};
}

}  // namespace Rotavue::Examples
