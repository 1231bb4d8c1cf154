#include "workbench/setup/setup_file.h"

#include <pugixml.hpp>

#include <algorithm>
#include <cstring>
#include <iterator>
#include <sstream>
#include <string_view>

#include "workbench/recording/input_file.h"
#include "workbench/recording/recording_error.h"

namespace Rotavue::Workbench {
namespace {

constexpr const char* RootName = "setup";
constexpr std::size_t LargestFile = 4U << 20U;  // bytes; a setup has less than 2,000

// Text outside the root is kept, to be refused.
constexpr unsigned ParseFlags =
    pugi::parse_default | pugi::parse_trim_pcdata | pugi::parse_fragment;

std::string elementText(const char* name) {
    return '<' + std::string(name) + '>';
}

// The line of each offset in a text, from 1. It counts on from the offset before, so that offsets
// in their order cost one walk through the text, however many they are.
class LineCounter {
public:
    explicit LineCounter(std::string_view text) : text_(text) {}

    std::size_t lineOf(std::ptrdiff_t offset) {
        const auto end = std::clamp<std::ptrdiff_t>(offset, 0, std::ssize(text_));
        if (end < counted_) *this = LineCounter(text_);
        line_ += static_cast<std::size_t>(
            std::count(text_.begin() + counted_, text_.begin() + end, '\n'));
        counted_ = end;
        return line_;
    }

private:
    std::string_view text_;
    std::ptrdiff_t counted_ = 0;
    std::size_t line_ = 1;
};

class SetupReader {
public:
    explicit SetupReader(const std::filesystem::path& file)
        : file_(file), bytes_(readSmallFile(file, LargestFile)), lines_(bytes_) {}

    SetupEntries read();

private:
    void parse();
    pugi::xml_node root();
    SetupEntry entryOf(const pugi::xml_node& node);
    FilePlace placeOf(std::ptrdiff_t offset) { return {file_, lines_.lineOf(offset)}; }
    [[noreturn]] void refuse(const pugi::xml_node& node, std::string_view allowed);

    std::filesystem::path file_;
    std::string bytes_;
    LineCounter lines_;
    pugi::xml_document document_;
};

SetupEntries SetupReader::read() {
    parse();
    SetupEntries entries;
    for (const pugi::xml_node& node : root().children())
        entries.push_back(entryOf(node));
    return entries;
}

void SetupReader::parse() {
    if (bytes_.empty()) throw RecordingError({file_}, "an empty file", "a setup as XML");
    if (bytes_.find('\0') != std::string::npos) {
        throw RecordingError({file_}, "binary data", "a setup as XML");
    }
    const pugi::xml_parse_result result =
        document_.load_buffer(bytes_.data(), bytes_.size(), ParseFlags, pugi::encoding_utf8);
    if (result) return;
    throw RecordingError(placeOf(result.offset),
                         "no XML (" + std::string(result.description()) + ")", "a setup as XML");
}

pugi::xml_node SetupReader::root() {
    const std::string allowed = "one element " + elementText(RootName);
    for (const pugi::xml_node& node : document_.children()) {
        const bool first = node == document_.first_child();
        if (!first || std::strcmp(node.name(), RootName) != 0) refuse(node, allowed);
        if (node.first_attribute()) refuse(node, elementText(RootName) + " without attributes");
    }
    if (!document_.first_child()) throw RecordingError({file_}, "no element", allowed);
    return document_.first_child();
}

SetupEntry SetupReader::entryOf(const pugi::xml_node& node) {
    if (node.type() != pugi::node_element) refuse(node, "elements named after settings");
    if (node.first_attribute()) refuse(node, elementText(node.name()) + " without attributes");
    for (const pugi::xml_node& inner : node.children())
        if (inner.type() == pugi::node_element) refuse(inner, "text alone in a setting");
    return {node.name(), node.text().get(), lines_.lineOf(node.offset_debug())};
}

void SetupReader::refuse(const pugi::xml_node& node, std::string_view allowed) {
    const bool element = node.type() == pugi::node_element;
    const std::string found = element ? elementText(node.name()) : inQuotes(node.value());
    throw RecordingError(placeOf(node.offset_debug()), found, allowed);
}

}  // namespace

std::string setupXml(const SetupEntries& entries) {
    pugi::xml_document document;
    pugi::xml_node root = document.append_child(RootName);
    for (const SetupEntry& entry : entries)
        root.append_child(entry.key.c_str()).text().set(entry.text.c_str());
    std::ostringstream text;
    document.save(text, "    ", pugi::format_default, pugi::encoding_utf8);
    std::string xml = text.str();
    constexpr std::string_view Declaration = "<?xml version=\"1.0\"?>";
    if (xml.starts_with(Declaration)) {
        xml.replace(0, Declaration.size(), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>");
    }
    return xml;
}

SetupEntries readSetupFile(const std::filesystem::path& file) {
    return SetupReader(file).read();
}

}  // namespace Rotavue::Workbench
