#pragma once

#include <unistd.h>

#include <utility>

namespace Meridax::VisualControls::Rotavue {

/// An open file of the operating system, closed when it goes. Negative: none.
class FileDescriptor {
public:
    explicit FileDescriptor(int number = -1) noexcept : number_(number) {}
    FileDescriptor(FileDescriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    ~FileDescriptor() {
        if (number_ >= 0) ::close(number_);
    }

    int get() const noexcept { return number_; }
    explicit operator bool() const noexcept { return number_ >= 0; }

private:
    int number_;
};

}  // namespace Meridax::VisualControls::Rotavue
