// What the compiler and the linker were asked to build into the programs is in them.

#include "hardening/ElfFile.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tarn::testing {
namespace {

/// The names that the loader has to find elsewhere.
std::vector<std::string> WantedBy(const ElfFile& file) {
    std::vector<std::string> names;
    for (const ElfFile::Symbol& symbol : file.Symbols(SHT_DYNSYM)) {
        if (!symbol.IsDefined) {
            names.push_back(symbol.Name);
        }
    }
    return names;
}

class BuiltProgram : public ::testing::TestWithParam<const char*> {
  protected:
    const ElfFile File{std::string(TARN_PROGRAMS) + "/" + GetParam()};
};

INSTANTIATE_TEST_SUITE_P(Programs, BuiltProgram,
                         ::testing::Values("tarn", "tarn-estimate", "tarn-data"),
                         [](const auto& each) {
                             std::string name = each.param;
                             std::erase(name, '-');
                             return name;
                         });

TEST_P(BuiltProgram, MayLieAtAnyAddress) {
    EXPECT_EQ(File.Header().e_type, ET_DYN);
    EXPECT_TRUE(File.HasSegment(PT_INTERP));
    EXPECT_NE(File.Dynamic(DT_FLAGS_1) & DF_1_PIE, 0U);
}

TEST_P(BuiltProgram, FindsItsLibrariesFunctionsAtTheStartAndThenClosesTheTables) {
    EXPECT_TRUE(File.HasSegment(PT_GNU_RELRO));
    EXPECT_NE(File.Dynamic(DT_FLAGS_1) & DF_1_NOW, 0U);
}

TEST_P(BuiltProgram, RunsNothingThatItCanWrite) {
    ASSERT_TRUE(File.HasSegment(PT_GNU_STACK));
    for (const Elf64_Phdr& segment : File.Segments()) {
        EXPECT_FALSE((segment.p_flags & PF_W) && (segment.p_flags & PF_X)) << segment.p_type;
    }
}

TEST_P(BuiltProgram, WatchesTheBuffersOnItsStack) {
    const auto wanted = WantedBy(File);
    EXPECT_NE(std::find(wanted.begin(), wanted.end(), "__stack_chk_fail"), wanted.end());
}

TEST(HardenedProgram, CallsTheLibrarysFunctionsThatKnowTheBuffersSize) {
    const auto wanted = WantedBy(ElfFile(TARN_PROBE));
    EXPECT_NE(std::find(wanted.begin(), wanted.end(), "__memcpy_chk"), wanted.end());
}

#ifdef __x86_64__
TEST_P(BuiltProgram, MarksEveryPlaceThatAJumpMayLeadTo) {
    const std::vector<std::uint8_t> mark = {0xF3, 0x0F, 0x1E, 0xFA}; // ENDBR64
    int functions = 0;
    for (const ElfFile::Symbol& symbol : File.Symbols(SHT_SYMTAB)) {
        const bool own = symbol.Name == "main" || symbol.Name.starts_with("_ZN4tarn") ||
                         symbol.Name.starts_with("_ZNK4tarn");
        if (own && symbol.IsFunction && symbol.IsDefined && !symbol.IsLocal) {
            ++functions;
            EXPECT_EQ(symbol.FirstBytes, mark) << symbol.Name;
        }
    }
    EXPECT_GT(functions, 100);
}
#endif

} // namespace
} // namespace tarn::testing
