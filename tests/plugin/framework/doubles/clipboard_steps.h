#pragma once

#include "plugin/framework/platform.h"

#include <string>
#include <vector>

namespace Meridax::VisualControls::Api {

/// A clipboard that writes its steps down and may be out of memory.
class ClipboardSteps final : public SystemClipboard {
public:
    void open() noexcept override { steps.emplace_back("open"); }
    void empty() noexcept override { steps.emplace_back("empty"); }
    Block allocate(std::size_t bytes) noexcept override {
        steps.push_back("allocate " + std::to_string(bytes));
        memory_.assign(bytes / sizeof(char16_t), u'?');
        return hasNoBlock ? nullptr : this;
    }
    void* lock(Block block) noexcept override {
        steps.emplace_back("lock");
        return block == nullptr || hasNoMemory ? nullptr : memory_.data();
    }
    void unlock(Block /*block*/) noexcept override { steps.emplace_back("unlock"); }
    void setUnicodeText(Block /*block*/) noexcept override {
        steps.emplace_back("setUnicodeText");
        units = memory_;
    }
    void close() noexcept override { steps.emplace_back("close"); }
    void free(Block /*block*/) noexcept override { steps.emplace_back("free"); }

    std::vector<std::string> steps;
    std::u16string units;  ///< what the block held when it was handed over, terminator included
    bool hasNoBlock = false;
    bool hasNoMemory = false;

private:
    std::u16string memory_;
};

}  // namespace Meridax::VisualControls::Api
