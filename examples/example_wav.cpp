#include "examples/example_wav.h"

#include <sndfile.h>

#include <cmath>
#include <stdexcept>

namespace Rotavue::Examples {
namespace {

constexpr int ChannelCount = 3;

double probeVolts(double displacement) {
    return GapVolts + VoltsPerMicrometre * displacement;
}

std::vector<double> frames(const Samples& samples) {
    std::vector<double> values;
    for (std::size_t i = 0; i < samples.x.size(); ++i) {
        values.push_back(probeVolts(samples.x[i]) / FullScaleVolts);
        values.push_back(probeVolts(samples.y[i]) / FullScaleVolts);
        values.push_back(samples.keyphasor[i] / FullScaleVolts);
    }
    return values;
}

}  // namespace

void writeWav(const Example& example, const Samples& samples, const std::filesystem::path& file) {
    SF_INFO info{};
    info.samplerate = static_cast<int>(std::lround(example.rate));
    info.channels = ChannelCount;
    info.format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
    SNDFILE* stream = sf_open(file.c_str(), SFM_WRITE, &info);
    if (!stream) throw std::runtime_error(file.string() + ": " + sf_strerror(nullptr));
    const std::vector<double> values = frames(samples);
    const auto count = static_cast<sf_count_t>(samples.x.size());
    const bool whole = sf_writef_double(stream, values.data(), count) == count;
    const bool closed = sf_close(stream) == 0;
    if (!whole || !closed) throw std::runtime_error(file.string() + ": not written whole");
}

}  // namespace Rotavue::Examples
