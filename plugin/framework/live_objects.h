#pragma once

#include <atomic>
#include <cstdint>

namespace Meridax::VisualControls::Api {

/// The number of objects of a module that are alive; while there are any, it stays loaded. Each
/// object belongs to one thread, but a host may have controls on several: this count is atomic.
class LiveObjects {
public:
    void enter() noexcept { ++count_; }
    void leave() noexcept { --count_; }
    bool any() const noexcept { return count_ != 0; }

private:
    std::atomic<std::int32_t> count_{0};
};

/// Counts one object for as long as it lives.
class LiveObject {
public:
    explicit LiveObject(LiveObjects& objects) noexcept : objects_(objects) { objects_.enter(); }
    LiveObject(const LiveObject&) = delete;
    LiveObject& operator=(const LiveObject&) = delete;
    ~LiveObject() { objects_.leave(); }

private:
    LiveObjects& objects_;
};

}  // namespace Meridax::VisualControls::Api
