#include "examples/example_files.h"

#include <fstream>
#include <stdexcept>

#include "examples/example_csv.h"
#include "examples/example_facts.h"
#include "examples/example_wav.h"

namespace Rotavue::Examples {
namespace {

void writeText(const std::filesystem::path& file, const std::string& text) {
    std::ofstream stream(file, std::ios::binary);
    stream << text;
    stream.close();
    if (!stream) throw std::runtime_error(file.string() + ": not written");
}

}  // namespace

std::filesystem::path writeExample(const Example& example, std::uint64_t seed,
                                   const std::filesystem::path& folder) {
    const Samples samples = makeSamples(example, seed);
    const bool wav = example.form == FileForm::Wav;
    std::filesystem::path file = folder / (example.name + (wav ? ".wav" : ".csv"));
    if (wav) {
        writeWav(example, samples, file);
    } else {
        writeText(file, csvText(example, samples));
    }
    writeText(folder / (example.name + ".machine.json"), machineText(example));
    writeText(folder / (example.name + ".truth.json"), truthText(example));
    return file;
}

}  // namespace Rotavue::Examples
