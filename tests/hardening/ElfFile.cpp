#include "hardening/ElfFile.h"

#include <algorithm>
#include <cstring>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace tarn::testing {

template <class T>
T ElfFile::At(Elf64_Off offset) const {
    if (offset > bytes_.size() || bytes_.size() - offset < sizeof(T)) {
        throw std::runtime_error("the file is cut short");
    }
    T value;
    std::memcpy(&value, bytes_.data() + offset, sizeof value);
    return value;
}

ElfFile::ElfFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    bytes_.assign(std::istreambuf_iterator<char>(file), {});
    header_ = At<Elf64_Ehdr>(0);
    if (std::memcmp(header_.e_ident, ELFMAG, SELFMAG) != 0 ||
        header_.e_ident[EI_CLASS] != ELFCLASS64) {
        throw std::runtime_error(path + " is no 64-bit ELF file");
    }
    for (unsigned i = 0; i < header_.e_phnum; ++i) {
        segments_.push_back(At<Elf64_Phdr>(header_.e_phoff + i * sizeof(Elf64_Phdr)));
    }
    for (unsigned i = 0; i < header_.e_shnum; ++i) {
        sections_.push_back(At<Elf64_Shdr>(header_.e_shoff + i * sizeof(Elf64_Shdr)));
    }
}

bool ElfFile::HasSegment(Elf64_Word type) const {
    return std::any_of(segments_.begin(), segments_.end(),
                       [type](const Elf64_Phdr& segment) { return segment.p_type == type; });
}

Elf64_Xword ElfFile::Dynamic(Elf64_Sxword tag) const {
    for (const Elf64_Shdr& section : sections_) {
        if (section.sh_type != SHT_DYNAMIC) {
            continue;
        }
        for (Elf64_Off at = 0; at < section.sh_size; at += sizeof(Elf64_Dyn)) {
            const auto entry = At<Elf64_Dyn>(section.sh_offset + at);
            if (entry.d_tag == tag) {
                return entry.d_un.d_val;
            }
        }
    }
    return 0;
}

std::vector<ElfFile::Symbol> ElfFile::Symbols(Elf64_Word table) const {
    std::vector<Symbol> symbols;
    for (const Elf64_Shdr& section : sections_) {
        if (section.sh_type != table) {
            continue;
        }
        const Elf64_Off names = sections_.at(section.sh_link).sh_offset;
        for (Elf64_Off at = 0; at < section.sh_size; at += sizeof(Elf64_Sym)) {
            const auto entry = At<Elf64_Sym>(section.sh_offset + at);
            Symbol symbol;
            symbol.Name = TextAt(names + entry.st_name);
            symbol.IsDefined = entry.st_shndx != SHN_UNDEF;
            symbol.IsFunction = ELF64_ST_TYPE(entry.st_info) == STT_FUNC;
            symbol.IsLocal = ELF64_ST_BIND(entry.st_info) == STB_LOCAL;
            if (symbol.IsDefined && symbol.IsFunction) {
                symbol.FirstBytes = CodeAt(entry);
            }
            symbols.push_back(std::move(symbol));
        }
    }
    return symbols;
}

std::string ElfFile::TextAt(Elf64_Off offset) const {
    const std::size_t end = bytes_.find('\0', offset);
    if (end == std::string::npos) {
        throw std::runtime_error("the file is cut short");
    }
    return bytes_.substr(offset, end - offset);
}

std::vector<std::uint8_t> ElfFile::CodeAt(const Elf64_Sym& symbol) const {
    const Elf64_Shdr& section = sections_.at(symbol.st_shndx);
    const Elf64_Off at = section.sh_offset + (symbol.st_value - section.sh_addr);
    std::vector<std::uint8_t> code;
    for (Elf64_Off i = 0; i < 4; ++i) {
        code.push_back(At<std::uint8_t>(at + i));
    }
    return code;
}

} // namespace tarn::testing
