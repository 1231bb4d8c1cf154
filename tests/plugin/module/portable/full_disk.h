#pragma once

#include <sys/resource.h>

#include <csignal>

namespace Meridax::VisualControls::Rotavue {

/// As long as it lives no file of this program grows beyond so many bytes, as on a full disk.
class FullDisk {
public:
    explicit FullDisk(::rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
        ::getrlimit(RLIMIT_FSIZE, &before_);
        const ::rlimit limit{bytes, before_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;
    ~FullDisk() {
        ::setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handler_);
    }

private:
    void (*handler_)(int);
    ::rlimit before_{};
};

}  // namespace Meridax::VisualControls::Rotavue
