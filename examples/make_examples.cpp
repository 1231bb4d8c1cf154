#include <charconv>
#include <exception>
#include <filesystem>
#include <iostream>
#include <optional>
#include <string_view>

#include "examples/example_files.h"
#include "examples/example_list.h"

namespace {

constexpr int Done = 0;
constexpr int Failed = 1;
constexpr int WrongUse = 2;
constexpr std::uint64_t DefaultSeed = 1;

constexpr std::string_view Usage =
    "usage: make_examples FOLDER [SEED]\n"
    "Writes the example recordings, each with its machine file and its known truth, into FOLDER,\n"
    "which is made if needed. SEED, a whole number from 0, makes the noise; the default is 1.\n";

std::optional<std::uint64_t> parseSeed(std::string_view text) {
    std::uint64_t seed = 0;
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), seed);
    const bool taken = fault == std::errc() && end == text.data() + text.size();
    return taken ? std::optional(seed) : std::nullopt;
}

// Each example has a noise of its own.
void makeAll(const std::filesystem::path& folder, std::uint64_t seed) {
    std::filesystem::create_directories(folder);
    for (const auto& example : Rotavue::Examples::allExamples()) {
        std::cout << writeExample(example, seed++, folder).string() << '\n';
    }
}

}  // namespace

int main(int argc, char** argv) {
    const auto seed = argc == 3 ? parseSeed(argv[2]) : DefaultSeed;
    if (argc < 2 || argc > 3 || !seed || std::string_view(argv[1]).starts_with('-')) {
        std::cerr << Usage;
        return WrongUse;
    }
    try {
        makeAll(argv[1], *seed);
        return Done;
    } catch (const std::exception& error) {
        std::cerr << "make_examples: " << error.what() << '\n';
        return Failed;
    }
}
