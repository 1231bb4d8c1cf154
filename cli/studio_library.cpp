#include "cli/studio_library.h"

#include "cli/studio_entry.h"

namespace Rotavue::Cli {

namespace {

std::unique_ptr<HostKit::SharedLibrary> loadLibrary() try {
    return HostKit::SharedLibrary::load(HostKit::programFolder() / StudioLibraryName);
} catch (const HostKit::LoadError& error) {
    throw std::runtime_error(std::string("no picture can be painted: ") + error.what());
}

StudioEntry* entryOf(const HostKit::SharedLibrary& library) {
    void* const entry = library.find(StudioEntryName);
    if (entry == nullptr) {
        throw std::runtime_error(std::string(StudioLibraryName) + " is of another program");
    }
    return reinterpret_cast<StudioEntry*>(entry);
}

}  // namespace

StudioLibrary::StudioLibrary() : library_(loadLibrary()) {
    std::string failure;
    studio_.reset(entryOf(*library_)(failure));
    // Qt's own clean-up at the end of the process must still find its code.
    library_->keepLoaded();
    if (studio_ == nullptr) throw std::runtime_error(failure);
}

}  // namespace Rotavue::Cli
