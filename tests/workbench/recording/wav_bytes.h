#pragma once

#include <cstdint>
#include <cstring>
#include <span>
#include <string>

namespace Rotavue::Workbench {

// What a WAV header says; the defaults are two channels of 16-bit whole numbers at 8000 Hz.
struct WavHeader {
    std::uint16_t format = 1;  // 1 whole numbers, 3 floating point
    std::uint16_t channels = 2;
    std::uint32_t rate = 8000;
    std::uint16_t bits = 16;
};

template <typename Number>
void appendBytes(std::string& bytes, Number number) {
    char raw[sizeof number];
    std::memcpy(raw, &number, sizeof number);
    bytes.append(raw, sizeof number);
}

// The bytes of a WAV file: RIFF, one "fmt " chunk of 16 bytes, one "data" chunk. `claimed` is the
// size that the data chunk tells instead of its own.
template <typename Sample>
std::string wavBytes(const WavHeader& header, std::span<const Sample> samples,
                     std::uint32_t claimed = 0) {
    const auto size = static_cast<std::uint32_t>(samples.size_bytes());
    const auto frameSize = static_cast<std::uint16_t>(header.channels * header.bits / 8);
    std::string bytes = "RIFF";
    appendBytes(bytes, static_cast<std::uint32_t>(36 + size));
    bytes += "WAVEfmt ";
    appendBytes(bytes, std::uint32_t{16});
    appendBytes(bytes, header.format);
    appendBytes(bytes, header.channels);
    appendBytes(bytes, header.rate);
    appendBytes(bytes, static_cast<std::uint32_t>(header.rate * frameSize));
    appendBytes(bytes, frameSize);
    appendBytes(bytes, header.bits);
    bytes += "data";
    appendBytes(bytes, claimed ? claimed : size);
    for (const Sample sample : samples)
        appendBytes(bytes, sample);
    return bytes;
}

}  // namespace Rotavue::Workbench
