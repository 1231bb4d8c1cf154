#include "plugin/module/portable/registry_file.h"
#include "tests/fuzz/memory_file.h"

#include <cstdint>
#include <cstdlib>

namespace {

using Meridax::VisualControls::Rotavue::RegistryFile;
using Meridax::VisualControls::Rotavue::RegistryFileError;

void check(bool holds) {
    if (!holds) std::abort();
}

/// Everything that was read can be found, written, read again and taken out.
void checkContent(RegistryFile file) {
    check(RegistryFile::parse(file.format(), "again") == file);
    const auto entries = file.entries();
    for (const auto& entry : entries) {
        check(RegistryFile::isKeyPath(entry.path) && file.find(entry.path) != nullptr);
        file.namesBelow(entry.path);
        for (const auto& value : entry.values) {
            const bool text = file.text(entry.path, value.name) != nullptr;
            const bool number = file.number(entry.path, value.name) != nullptr;
            check(text != number);
            check(file.removeValue(entry.path, value.name));
        }
    }
    // Keys below others were made later or earlier; each round takes the outermost ones.
    for (std::size_t left = entries.size() + 1; left > 0 && !file.entries().empty(); --left)
        for (const auto& entry : entries)
            file.removeKey(entry.path);
    check(file.entries().empty());
}

}  // namespace

/// The text of a registry store.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        checkContent(RegistryFile::parse(Rotavue::Fuzz::textOf(data, size), "input"));
    } catch (const RegistryFileError&) {
    }
    return 0;
}
