#include "plugin/module/portable/registry_file.h"

#include "plugin/framework/unicode.h"
#include "plugin/module/portable/registry_line.h"

#include <algorithm>

namespace Meridax::VisualControls::Rotavue {

namespace {

constexpr wchar_t Separator = L'\\';

bool isEncodable(std::wstring_view text) {
    try {
        Api::utf8FromWide(text);
        return true;
    } catch (const std::range_error&) {
        return false;
    }
}

/// What follows a key's path and the separator in the path of a key below it; empty for any other.
std::wstring_view restBelow(std::wstring_view path, std::wstring_view candidate) {
    if (candidate.size() <= path.size() + 1 || candidate[path.size()] != Separator) return {};
    return candidate.substr(0, path.size()) == path ? candidate.substr(path.size() + 1)
                                                    : std::wstring_view{};
}

auto findValue(auto& values, std::wstring_view name) {
    return std::find_if(values.begin(), values.end(),
                        [&](const RegistryValue& value) { return value.name == name; });
}

const RegistryContent* contentOf(const RegistryEntry* entry, std::wstring_view name) {
    if (entry == nullptr) return nullptr;
    const auto found = findValue(entry->values, name);
    return found == entry->values.end() ? nullptr : &found->content;
}

}  // namespace

bool RegistryFile::isKeyPath(std::wstring_view path) {
    if (path.empty() || path.front() == Separator || path.back() == Separator) return false;
    if (path.find(L"\\\\") != std::wstring_view::npos) return false;
    return std::none_of(path.begin(), path.end(), isControlCharacter) && isEncodable(path);
}

const RegistryEntry* RegistryFile::find(std::wstring_view path) const {
    const auto found = std::find_if(entries_.begin(), entries_.end(),
                                    [&](const RegistryEntry& one) { return one.path == path; });
    return found == entries_.end() ? nullptr : &*found;
}

RegistryEntry* RegistryFile::entry(std::wstring_view path) {
    const RegistryEntry* found = find(path);
    return found == nullptr ? nullptr
                            : &entries_[static_cast<std::size_t>(found - entries_.data())];
}

const std::wstring* RegistryFile::text(std::wstring_view path, std::wstring_view name) const {
    const RegistryContent* content = contentOf(find(path), name);
    return content == nullptr ? nullptr : content->text();
}

const std::uint32_t* RegistryFile::number(std::wstring_view path, std::wstring_view name) const {
    const RegistryContent* content = contentOf(find(path), name);
    return content == nullptr ? nullptr : content->number();
}

std::vector<std::wstring> RegistryFile::namesBelow(std::wstring_view path) const {
    std::vector<std::wstring> names;
    for (const RegistryEntry& one : entries_) {
        const std::wstring_view rest = restBelow(path, one.path);
        const std::wstring name{rest.substr(0, rest.find(Separator))};
        if (!name.empty() && std::find(names.begin(), names.end(), name) == names.end())
            names.push_back(name);
    }
    return names;
}

bool RegistryFile::create(const std::wstring& path) {
    if (find(path) != nullptr) return true;
    if (!isKeyPath(path) || entries_.size() >= MaxKeys) return false;
    entries_.push_back({path, {}});
    return true;
}

bool RegistryFile::set(std::wstring_view path, RegistryValue value) {
    RegistryEntry* key = entry(path);
    const std::wstring* text = value.content.text();
    if (key == nullptr || !isEncodable(value.name)) return false;
    if (text != nullptr && !isEncodable(*text)) return false;
    const auto found = findValue(key->values, value.name);
    if (found == key->values.end() && key->values.size() >= MaxValues) return false;
    if (found == key->values.end())
        key->values.push_back(std::move(value));
    else
        found->content = std::move(value.content);
    return true;
}

bool RegistryFile::removeValue(std::wstring_view path, std::wstring_view name) {
    RegistryEntry* key = entry(path);
    if (key == nullptr) return false;
    const auto found = findValue(key->values, name);
    if (found == key->values.end()) return false;
    key->values.erase(found);
    return true;
}

bool RegistryFile::removeKey(std::wstring_view path) {
    const RegistryEntry* key = find(path);
    if (key == nullptr || !namesBelow(path).empty()) return false;
    entries_.erase(entries_.begin() + (key - entries_.data()));
    return true;
}

}  // namespace Meridax::VisualControls::Rotavue
