#pragma once

#include "plugin/module/windows/platform_headers.h"

#include <set>
#include <string>

/// What the headers of a loaded module tell.
namespace Rotavue::ModuleTest {

class Image {
public:
    explicit Image(HMODULE module) : base_(reinterpret_cast<const char*>(module)) {}

    const IMAGE_NT_HEADERS64& headers() const {
        return *at<IMAGE_NT_HEADERS64>(static_cast<DWORD>(at<IMAGE_DOS_HEADER>(0)->e_lfanew));
    }

    std::set<std::string> exports() const {
        const auto* table = directory<IMAGE_EXPORT_DIRECTORY>(IMAGE_DIRECTORY_ENTRY_EXPORT);
        std::set<std::string> names;
        for (DWORD i = 0; i < table->NumberOfNames; ++i)
            names.insert(at<char>(at<DWORD>(table->AddressOfNames)[i]));
        return names;
    }

    /// Functions that are exported, with a name or without.
    DWORD exportCount() const {
        return directory<IMAGE_EXPORT_DIRECTORY>(IMAGE_DIRECTORY_ENTRY_EXPORT)->NumberOfFunctions;
    }

    /// The libraries that the module needs, in lower case.
    std::set<std::string> imports() const {
        std::set<std::string> names;
        const auto* library = directory<IMAGE_IMPORT_DESCRIPTOR>(IMAGE_DIRECTORY_ENTRY_IMPORT);
        for (; library->Name != 0; ++library)
            names.insert(lowerCased(at<char>(library->Name)));
        return names;
    }

    /// The functions that the module takes from a library, which is named in lower case.
    std::set<std::string> importsFrom(const std::string& wanted) const {
        std::set<std::string> names;
        const auto* library = directory<IMAGE_IMPORT_DESCRIPTOR>(IMAGE_DIRECTORY_ENTRY_IMPORT);
        for (; library->Name != 0; ++library) {
            if (lowerCased(at<char>(library->Name)) != wanted) continue;
            const auto* thunk = at<IMAGE_THUNK_DATA64>(library->OriginalFirstThunk);
            for (; thunk->u1.AddressOfData != 0; ++thunk)
                names.insert(nameOf(*thunk));
        }
        return names;
    }

private:
    static std::string lowerCased(std::string name) {
        for (char& letter : name)
            letter = static_cast<char>(::tolower(letter));
        return name;
    }

    std::string nameOf(const IMAGE_THUNK_DATA64& function) const {
        if (IMAGE_SNAP_BY_ORDINAL64(function.u1.Ordinal)) return "by number";
        return at<IMAGE_IMPORT_BY_NAME>(static_cast<DWORD>(function.u1.AddressOfData))->Name;
    }

    template <class Record>
    const Record* at(DWORD address) const {
        return reinterpret_cast<const Record*>(base_ + address);
    }

    template <class Record>
    const Record* directory(int index) const {
        return at<Record>(headers().OptionalHeader.DataDirectory[index].VirtualAddress);
    }

    const char* base_;
};

}  // namespace Rotavue::ModuleTest
