#pragma once

#include "tests/plugin/setup_document/unused_node.h"

#include <map>
#include <string>
#include <vector>

namespace Meridax::Tests {

/// The key and value entries of a setup, which behave as a host's document does, and a note of what
/// was asked of them.
class EntryNode final : public UnusedNode {
public:
    bool isWriting() const override {
        ++directionQuestions;
        return writing;
    }

    void writeValue(const Text& key, const Text& value, const Text& defaultValue) override {
        writes.push_back({key, value, defaultValue});
        if (value == defaultValue) {
            entries.erase(key);
        } else {
            entries[key] = value;
        }
    }

    void readValue(const Text& key, Text& value, const Text& defaultValue) const override {
        reads.push_back({key, defaultValue});
        const auto found = entries.find(key);
        value = found == entries.end() ? defaultValue : found->second;
    }

    std::map<std::string, std::string> entries;
    bool writing = false;
    std::vector<std::vector<std::string>> writes;         ///< key, value, default of each write
    mutable std::vector<std::vector<std::string>> reads;  ///< key, default of each read
    mutable int directionQuestions = 0;
};

}  // namespace Meridax::Tests
