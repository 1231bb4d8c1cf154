#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>

namespace Rotavue::Fuzz {

/// A file without a disk behind it, for what reads files by name.
class MemoryFile {
public:
    explicit MemoryFile(std::string_view content) : descriptor_(memfd_create("input", 0)) {
        while (descriptor_ >= 0 && !content.empty()) {
            const auto written = ::write(descriptor_, content.data(), content.size());
            if (written <= 0) std::abort();
            content.remove_prefix(static_cast<std::size_t>(written));
        }
    }
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;
    ~MemoryFile() { ::close(descriptor_); }

    std::filesystem::path path() const { return "/proc/self/fd/" + std::to_string(descriptor_); }

private:
    int descriptor_;
};

/// The bytes of an input as text.
inline std::string_view textOf(const unsigned char* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

}  // namespace Rotavue::Fuzz
