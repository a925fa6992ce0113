#include "store/Names.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

TEST(StoredName, IsUpperCaseInEveryLanguage) {
    EXPECT_EQ(StoredName("smith house"), "SMITH HOUSE");
    EXPECT_EQ(StoredName("müller straße"), "MÜLLER STRASSE");
    EXPECT_EQ(StoredName("квартира"), "КВАРТИРА");
    EXPECT_EQ(StoredName("éλ"), "ÉΛ");
}

TEST(StoredName, HasNoBlanksAtItsEnds) {
    EXPECT_EQ(StoredName("  two  words   "), "TWO  WORDS");
    EXPECT_EQ(StoredName("   "), "");
    EXPECT_EQ(StoredName(""), "");
}

TEST(StoredName, LeavesAStoredNameAlone) {
    for (const char* name : {"a'b%;", "ß", "  x  ", "ǆ", "100% WOOL"}) {
        const std::string stored = StoredName(name);
        EXPECT_EQ(StoredName(stored), stored) << name;
    }
}

} // namespace
} // namespace tarn
