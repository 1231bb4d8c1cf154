#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace Rotavue::Cli {

/// Writes all of it and closes the descriptor; gives 0 or the `errno` of what failed.
int writeAndClose(int descriptor, std::string_view bytes);

/// A file in the making, beside the place where it will appear. It is taken away when this object
/// ends, and when an interrupt ends the program, unless it has been put in its place. One at a
/// time.
class PartFile {
public:
    explicit PartFile(const std::filesystem::path& place);
    ~PartFile();
    PartFile(const PartFile&) = delete;
    PartFile& operator=(const PartFile&) = delete;

    /// Each gives 0 or the `errno` of what failed.
    int write(std::string_view bytes);
    int replace();  ///< puts it in its place, whatever is there
    int appear();   ///< puts it in its place; EEXIST where something is there

private:
    std::string place_;
    std::string part_;
};

}  // namespace Rotavue::Cli
