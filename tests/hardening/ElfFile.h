// What the file of a built program says about itself, read without the tools of the compiler.

#pragma once

#include <cstdint>
#include <elf.h>
#include <string>
#include <vector>

namespace tarn::testing {

/// A 64-bit ELF program of this machine's byte order. Raises std::runtime_error for another file
/// and for one cut short.
class ElfFile {
  public:
    explicit ElfFile(const std::string& path);

    struct Symbol {
        std::string Name;
        bool IsDefined = false;
        bool IsFunction = false;
        bool IsLocal = false;
        std::vector<std::uint8_t> FirstBytes; ///< four, of a defined function
    };

    const Elf64_Ehdr& Header() const { return header_; }
    const std::vector<Elf64_Phdr>& Segments() const { return segments_; }
    bool HasSegment(Elf64_Word type) const;
    /// The value of the dynamic section's entry with that tag; 0 for none.
    Elf64_Xword Dynamic(Elf64_Sxword tag) const;
    /// Those that the loader resolves (SHT_DYNSYM), or all that were linked (SHT_SYMTAB).
    std::vector<Symbol> Symbols(Elf64_Word table) const;

  private:
    template <class T>
    T At(Elf64_Off offset) const;
    std::string TextAt(Elf64_Off offset) const;
    std::vector<std::uint8_t> CodeAt(const Elf64_Sym& symbol) const;

    std::string bytes_;
    Elf64_Ehdr header_;
    std::vector<Elf64_Phdr> segments_;
    std::vector<Elf64_Shdr> sections_;
};

} // namespace tarn::testing
