#include "plugin/framework/unicode.h"
#include "plugin/module/portable/registry_file.h"
#include "plugin/module/portable/registry_line.h"

#include <algorithm>

/// A registry file as text and back.
namespace Meridax::VisualControls::Rotavue {

namespace {

constexpr std::wstring_view FirstLine = L"Meridax registry, format 1";

/// Takes the file line by line; what does not fit raises `std::invalid_argument`.
class FileReader {
public:
    void readLine(std::wstring_view line) {
        if (!begun_)
            begin(line);
        else if (line.starts_with(L'['))
            openKey(line);
        else if (!line.empty() && !line.starts_with(L'#'))
            addValue(readValueLine(line));
    }

    std::vector<RegistryEntry> entries;

private:
    void begin(std::wstring_view line) {
        if (line != FirstLine) throw std::invalid_argument("not a Meridax registry, format 1");
        begun_ = true;
    }

    void openKey(std::wstring_view line);
    void addValue(RegistryValue value);

    bool begun_ = false;
};

void FileReader::openKey(std::wstring_view line) {
    if (!line.ends_with(L']')) throw std::invalid_argument("']' is missing behind the key");
    const std::wstring_view path = line.substr(1, line.size() - 2);
    if (!RegistryFile::isKeyPath(path)) throw std::invalid_argument("not the path of a key");
    const auto isSame = [&](const RegistryEntry& one) { return one.path == path; };
    if (std::any_of(entries.begin(), entries.end(), isSame))
        throw std::invalid_argument("the key is there twice");
    if (entries.size() >= RegistryFile::MaxKeys) throw std::invalid_argument("too many keys");
    entries.push_back({std::wstring{path}, {}});
}

void FileReader::addValue(RegistryValue value) {
    if (entries.empty()) throw std::invalid_argument("a value stands before the first key");
    std::vector<RegistryValue>& values = entries.back().values;
    const auto isSame = [&](const RegistryValue& one) { return one.name == value.name; };
    if (std::any_of(values.begin(), values.end(), isSame))
        throw std::invalid_argument("the value is there twice");
    if (values.size() >= RegistryFile::MaxValues)
        throw std::invalid_argument("too many values below one key");
    values.push_back(std::move(value));
}

std::string_view takeLine(std::string_view& text) {
    const std::size_t end = text.find('\n');
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    return line;
}

}  // namespace

RegistryFile RegistryFile::parse(std::string_view text, const std::string& name) {
    if (text.size() > MaxBytes) throw RegistryFileError(name, 0, "longer than a registry may be");
    FileReader reader;
    for (std::size_t line = 1; !text.empty(); ++line) {
        try {
            reader.readLine(trimmed(Api::wideFromUtf8(takeLine(text))));
        } catch (const std::range_error&) {
            throw RegistryFileError(name, line, "not UTF-8");
        } catch (const std::invalid_argument& fault) {
            throw RegistryFileError(name, line, fault.what());
        }
    }
    RegistryFile file;
    file.entries_ = std::move(reader.entries);
    return file;
}

std::string RegistryFile::format() const {
    std::wstring text{FirstLine};
    text += L'\n';
    for (const RegistryEntry& one : entries_) {
        text += L"\n[" + one.path + L"]\n";
        for (const RegistryValue& value : one.values)
            text += valueLine(value) + L'\n';
    }
    return Api::utf8FromWide(text);
}

}  // namespace Meridax::VisualControls::Rotavue
