#include "tests/module/elf_file.h"

#include <elf.h>

#include <algorithm>
#include <cstring>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace Rotavue::ModuleTest {

namespace {

class Image {
public:
    explicit Image(const std::filesystem::path& path) {
        std::ifstream file(path, std::ios::binary);
        bytes_.assign(std::istreambuf_iterator<char>(file), {});
        header_ = at<Elf64_Ehdr>(0);
        if (std::memcmp(header_.e_ident, ELFMAG, SELFMAG) != 0)
            throw std::runtime_error("not a shared object");
    }

    template <class Record>
    Record at(std::size_t offset) const {
        Record record;
        if (offset + sizeof record > bytes_.size()) throw std::runtime_error("cut off");
        std::memcpy(&record, bytes_.data() + offset, sizeof record);
        return record;
    }

    Elf64_Shdr section(std::size_t index) const {
        return at<Elf64_Shdr>(header_.e_shoff + index * sizeof(Elf64_Shdr));
    }

    Elf64_Shdr sectionOfType(std::uint32_t type) const {
        for (std::size_t i = 0; i < header_.e_shnum; ++i)
            if (section(i).sh_type == type) return section(i);
        throw std::runtime_error("no such section");
    }

    template <class Record>
    std::vector<Record> records(const Elf64_Shdr& in) const {
        std::vector<Record> all;
        for (std::size_t offset = 0; offset < in.sh_size; offset += sizeof(Record))
            all.push_back(at<Record>(in.sh_offset + offset));
        return all;
    }

    /// A name of a section whose names lie in the section that it links to.
    std::string name(const Elf64_Shdr& of, std::size_t offset) const {
        return bytes_.c_str() + section(of.sh_link).sh_offset + offset;
    }

private:
    std::string bytes_;
    Elf64_Ehdr header_{};
};

}  // namespace

ElfFile readElf(const std::filesystem::path& path) {
    const Image image(path);
    ElfFile result;
    const Elf64_Shdr symbols = image.sectionOfType(SHT_DYNSYM);
    for (const Elf64_Sym& symbol : image.records<Elf64_Sym>(symbols))
        if (symbol.st_shndx != SHN_UNDEF)
            result.exported.push_back(image.name(symbols, symbol.st_name));
    std::sort(result.exported.begin(), result.exported.end());
    const Elf64_Shdr dynamic = image.sectionOfType(SHT_DYNAMIC);
    for (const Elf64_Dyn& entry : image.records<Elf64_Dyn>(dynamic)) {
        if (entry.d_tag == DT_NEEDED)
            result.needed.push_back(image.name(dynamic, entry.d_un.d_val));
        result.hasSoname = result.hasSoname || entry.d_tag == DT_SONAME;
    }
    return result;
}

}  // namespace Rotavue::ModuleTest
