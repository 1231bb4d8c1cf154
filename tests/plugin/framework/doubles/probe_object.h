#pragma once

#include "plugin/framework/host/host_object.h"

#include <string>
#include <utility>
#include <vector>

namespace Meridax::Host {

/// An object of the test's own that writes down what happens to its count.
class ProbeObject final : public IHostObject {
public:
    ProbeObject(std::string name, std::vector<std::string>& log)
        : name_(std::move(name)), log_(log) {}

    void retain() noexcept override {
        ++count;
        log_.push_back("retain " + name_);
    }
    void release() noexcept override {
        --count;
        log_.push_back("release " + name_);
    }
    void* offer(const Guid& interfaceId) override {
        log_.push_back("ask " + name_);
        if (interfaceId != Identifier) return nullptr;
        retain();
        return static_cast<IHostObject*>(this);
    }

    int count = 0;

private:
    std::string name_;
    std::vector<std::string>& log_;
};

}  // namespace Meridax::Host
