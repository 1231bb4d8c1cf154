#include <sys/resource.h>

#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <numbers>
#include <string>
#include <vector>

#include "workbench/recording/recording.h"

// Reads recordings of a given size and tells what that takes:
//     reading_benchmark 100 csv        a file of 100 MB, made where temporary files are
//     reading_benchmark 100 wav
namespace {

using Rotavue::Workbench::Recording;

constexpr double SampleRate = 51'200.0;
constexpr double TurnsPerSecond = 50.0;
constexpr std::size_t BytesPerMegabyte = 1'000'000;
constexpr std::size_t ChannelCount = 3;

struct Frame {
    double x;
    double y;
    double volts;
};

Frame frameAt(std::size_t sample) {
    const double turns = static_cast<double>(sample) / SampleRate * TurnsPerSecond;
    const double angle = 2.0 * std::numbers::pi * turns;
    const bool pulse = turns - std::floor(turns) < 0.1;
    return {0.5 * std::cos(angle) + 0.1 * std::sin(0.43 * angle), 0.4 * std::sin(angle),
            pulse ? 0.6 : -0.02};
}

void writeCsv(std::ofstream& stream, std::size_t size) {
    stream << "t [s],X [um],Y [um],keyphasor [V]\n";
    char line[128];
    for (std::size_t i = 0, bytes = 0; bytes < size; ++i) {
        const Frame frame = frameAt(i);
        const int length = std::snprintf(line, sizeof line, "%.7f,%.5f,%.5f,%.4f\n",
                                         static_cast<double>(i) / SampleRate, 100.0 * frame.x,
                                         100.0 * frame.y, 10.0 * frame.volts);
        stream.write(line, length);
        bytes += static_cast<std::size_t>(length);
    }
}

template <typename Number>
void put(std::ofstream& stream, Number number) {
    stream.write(reinterpret_cast<const char*>(&number), sizeof number);
}

void writeWavHeader(std::ofstream& stream, std::uint32_t dataSize) {
    constexpr auto Channels = static_cast<std::uint16_t>(ChannelCount);
    constexpr auto Rate = static_cast<std::uint32_t>(SampleRate);
    stream << "RIFF";
    put<std::uint32_t>(stream, 36 + dataSize);
    stream << "WAVEfmt ";
    put<std::uint32_t>(stream, 16);
    put<std::uint16_t>(stream, 1);
    put<std::uint16_t>(stream, Channels);
    put<std::uint32_t>(stream, Rate);
    put<std::uint32_t>(stream, Rate * Channels * 2);
    put<std::uint16_t>(stream, Channels * 2);
    put<std::uint16_t>(stream, 16);
    stream << "data";
    put<std::uint32_t>(stream, dataSize);
}

void writeWav(std::ofstream& stream, std::size_t size) {
    const std::size_t frames = size / (2 * ChannelCount);
    writeWavHeader(stream, static_cast<std::uint32_t>(2 * ChannelCount * frames));
    for (std::size_t i = 0; i < frames; ++i) {
        const Frame frame = frameAt(i);
        for (const double value : {frame.x, frame.y, frame.volts})
            put(stream, static_cast<std::int16_t>(std::lround(32'767.0 * value)));
    }
}

std::filesystem::path made(std::size_t megabytes, const std::string& kind) {
    const auto file = std::filesystem::temp_directory_path() /
                      ("rotavue-" + std::to_string(megabytes) + "mb." + kind);
    if (std::filesystem::exists(file)) return file;
    std::ofstream stream(file, std::ios::binary);
    kind == "wav" ? writeWav(stream, megabytes * BytesPerMegabyte)
                  : writeCsv(stream, megabytes * BytesPerMegabyte);
    return file;
}

double peakMegabytes() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) * 1024.0 / BytesPerMegabyte;
}

double megabytesOf(const Recording& recording) {
    const std::size_t numbers = recording.x.size() + recording.y.size() + recording.angle.size() +
                                recording.pulseTimes.size();
    return static_cast<double>(numbers * sizeof(double)) / BytesPerMegabyte;
}

void tell(const std::filesystem::path& file) {
    const double before = peakMegabytes();
    const auto started = std::chrono::steady_clock::now();
    const Recording recording = Rotavue::Workbench::readRecording(file);
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - started;
    const double peak = peakMegabytes() - before;
    std::printf("%s: %zu samples, %.2f s, peak %.0f MB, %.2f times the recording's %.0f MB\n",
                file.c_str(), recording.sampleCount(), taken.count(), peak,
                peak / megabytesOf(recording), megabytesOf(recording));
}

}  // namespace

int main(int count, char** arguments) {
    const std::string kind = count == 3 ? arguments[2] : "";
    const unsigned long megabytes = count == 3 ? std::strtoul(arguments[1], nullptr, 10) : 0;
    if (megabytes < 1 || megabytes > 2000 || (kind != "csv" && kind != "wav")) {
        std::fputs("usage: reading_benchmark MEGABYTES csv|wav\n", stderr);
        return 2;
    }
    tell(made(megabytes, kind));
    return 0;
}
