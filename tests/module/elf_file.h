#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace Rotavue::ModuleTest {

/// What the dynamic linker sees of a shared object.
struct ElfFile {
    std::vector<std::string> exported;  ///< names of the dynamic symbols that it defines, sorted
    std::vector<std::string> needed;    ///< libraries that it asks for
    bool hasSoname = false;
};

/// Reads a 64-bit shared object. Raises `std::runtime_error` for another file.
ElfFile readElf(const std::filesystem::path& path);

}  // namespace Rotavue::ModuleTest
