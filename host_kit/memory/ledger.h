#pragma once

#include <cstdint>
#include <string>
#include <unordered_set>
#include <vector>

namespace Rotavue::HostKit {

class MemoryObject;

/// Counts what is held of a host's objects from outside. An object counts its own references; the
/// ledger adds them up when it is asked, so that taking and giving back a reference stays as cheap
/// as it can be.
class Ledger {
public:
    void enter(const MemoryObject& object) { objects_.insert(&object); }
    void leave(const MemoryObject& object) { objects_.erase(&object); }

    /// All references that are held now.
    std::int64_t references() const;

    /// Each object that is held, as "channel:orbit x 2", sorted.
    std::vector<std::string> held() const;

private:
    std::unordered_set<const MemoryObject*> objects_;
};

}  // namespace Rotavue::HostKit
