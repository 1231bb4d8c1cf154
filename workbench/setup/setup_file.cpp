#include "workbench/setup/setup_file.h"

#include <pugixml.hpp>

#include <algorithm>
#include <cstring>
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

class SetupReader {
public:
    explicit SetupReader(const std::filesystem::path& file)
        : file_(file), bytes_(readSmallFile(file, LargestFile)) {}

    SetupEntries read();

private:
    void parse();
    pugi::xml_node root() const;
    SetupEntry entryOf(const pugi::xml_node& node) const;
    FilePlace placeOf(std::ptrdiff_t offset) const;
    [[noreturn]] void refuse(const pugi::xml_node& node, std::string_view allowed) const;

    std::filesystem::path file_;
    std::string bytes_;
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

pugi::xml_node SetupReader::root() const {
    const std::string allowed = "one element " + elementText(RootName);
    for (const pugi::xml_node& node : document_.children()) {
        const bool first = node == document_.first_child();
        if (!first || std::strcmp(node.name(), RootName) != 0) refuse(node, allowed);
        if (node.first_attribute()) refuse(node, elementText(RootName) + " without attributes");
    }
    if (!document_.first_child()) throw RecordingError({file_}, "no element", allowed);
    return document_.first_child();
}

SetupEntry SetupReader::entryOf(const pugi::xml_node& node) const {
    if (node.type() != pugi::node_element) refuse(node, "elements named after settings");
    if (node.first_attribute()) refuse(node, elementText(node.name()) + " without attributes");
    for (const pugi::xml_node& inner : node.children())
        if (inner.type() == pugi::node_element) refuse(inner, "text alone in a setting");
    return {node.name(), node.text().get(), placeOf(node.offset_debug()).line};
}

FilePlace SetupReader::placeOf(std::ptrdiff_t offset) const {
    const auto length = std::clamp<std::size_t>(offset < 0 ? 0 : static_cast<std::size_t>(offset),
                                                0, bytes_.size());
    const std::string_view before = std::string_view(bytes_).substr(0, length);
    const auto lines = std::count(before.begin(), before.end(), '\n');
    return {file_, static_cast<std::size_t>(lines) + 1};
}

void SetupReader::refuse(const pugi::xml_node& node, std::string_view allowed) const {
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
