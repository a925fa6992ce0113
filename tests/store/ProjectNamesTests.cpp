#include "store/Months.h"
#include "store/Names.h"
#include "store/ProjectNames.h"
#include "store/TestDatabase.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using namespace tarn::testing;

void ExpectText(const NameText& text, const std::string& expected, bool leftOut) {
    EXPECT_EQ(text.Text, expected);
    EXPECT_EQ(text.LeftOut, leftOut);
}

TEST(TypedNames, AToZBecomeUpperCase) {
    for (char c = 'a'; c <= 'z'; ++c) {
        const std::string upper(1, static_cast<char>(c - 'a' + 'A'));
        ExpectText(TypedNameText(std::string(1, c)), upper, false);
        ExpectText(TypedNameText(upper), upper, false);
    }
    ExpectText(TypedNameText("é7 '%;&-"), "é7 '%;&-", false);
}

TEST(TypedNames, TheNineForbiddenCharactersAreLeftOut) {
    for (const char c : std::string("\\/:*?\"<>|")) {
        ExpectText(TypedNameText(std::string(1, c)), "", true);
    }
    EXPECT_EQ(ForbiddenInProjectName.size(), 9U);
}

TEST(PastedNames, BecomeUpperCaseInEveryLanguage) {
    ExpectText(PastedNameText("haus Müller, квартира"), "HAUS MÜLLER, КВАРТИРА", false);
    ExpectText(PastedNameText("straße"), "STRASSE", false);
    ExpectText(PastedNameText("\xF0\x9F\x8F\xA0 house"), "\xF0\x9F\x8F\xA0 HOUSE", false);
}

TEST(PastedNames, LeaveOutForbiddenAndControlCharacters) {
    ExpectText(PastedNameText("a\\b/c:d*e?f\"g<h>i|j"), "ABCDEFGHIJ", true);
    ExpectText(PastedNameText("a\tb\r\nc\x7F"), "ABC", true);
    ExpectText(PastedNameText("a\u0085b\u2028c"), "ABC", true);
    ExpectText(PastedNameText(std::string("a\0b", 3)), "AB", true);
    ExpectText(PastedNameText(" a "), " A ", false);
}

TEST(PastedNames, LoseLineBreaksAtTheEndAsIfTheyWereNotThere) {
    for (const char* end : {"\n", "\r\n", "\n\r\n\v\f", "\u0085", "\u2028\u2029"}) {
        ExpectText(PastedNameText(std::string("mill 9") + end), "MILL 9", false);
        ExpectText(PastedNameText(end), "", false);
    }
    ExpectText(PastedNameText("mill\t"), "MILL", true);
    ExpectText(PastedNameText("mill\n9\n"), "MILL9", true);
}

TEST(PastedNames, LeaveOutWhatNoTextKeeps) {
    ExpectText(PastedNameText("a\uFFFEb\uFFFFc"), "ABC", true);
    ExpectText(TypedNameText("a\uFFFEb\x01"), "AB", true);
}

TEST(PastedNames, KeepWhatMarksAnEncodingElsewhere) {
    ExpectText(PastedNameText("\uFEFFhall"), "\uFEFFHALL", false);
    EXPECT_EQ(FittingNameText("\uFEFFHALL", 0), "\uFEFFHALL");
}

TEST(FittingNames, EndAt64Characters) {
    const std::string sixty(60, 'A');
    EXPECT_EQ(FittingNameText("BCDE", 60), "BCDE");
    EXPECT_EQ(FittingNameText("BCDEF", 60), "BCDE");
    EXPECT_EQ(FittingNameText("B", 64), "");
    EXPECT_EQ(FittingNameText("B", 70), "") << "a longer stored name";
    EXPECT_EQ(FittingNameText("ÄÖÜ", 62), "ÄÖ") << "characters, not bytes";
    EXPECT_EQ(FittingNameText("\xF0\x9F\x8F\xA0\xF0\x9F\x8F\xA0", 63), "\xF0\x9F\x8F\xA0");
}

struct NewNames : ::testing::Test {
    NewNames() {
        file.AddDirectory("HOUSES");
        file.AddProject("HOUSES", "VILLA", 1);
    }
    TestDatabase file;
    ProjectStore store = file.Open(ShortWait);
};

TEST_F(NewNames, TheTwelveMonthsAreTakenDirectories) {
    for (const std::string_view month : MonthNames) {
        EXPECT_TRUE(IsDirectoryTaken(store, month)) << month;
    }
    EXPECT_TRUE(IsDirectoryTaken(store, " march "));
    EXPECT_TRUE(IsDirectoryTaken(store, "Houses"));
    EXPECT_FALSE(IsDirectoryTaken(store, "HOUSE"));
    EXPECT_FALSE(IsDirectoryTaken(store, ""));
}

TEST_F(NewNames, ADirectoryIsRefusedForATakenOrALongName) {
    const std::string taken = "There is one directory with the same name, change to other one!";
    EXPECT_EQ(DirectoryNameRefusal(store, "houses"), taken);
    EXPECT_EQ(DirectoryNameRefusal(store, "MAY"), taken);
    EXPECT_EQ(DirectoryNameRefusal(store, "A\tB"),
              "The directory name holds a line break or another control character.");
    EXPECT_EQ(DirectoryNameRefusal(store, "A\"B:C"), std::nullopt);
    EXPECT_EQ(DirectoryNameRefusal(store, std::string(64, 'A')), std::nullopt);
    const std::string tooLong(65, 'A');
    EXPECT_EQ(DirectoryNameRefusal(store, tooLong),
              "The directory name " + tooLong + " has more than 64 characters.");
}

TEST_F(NewNames, AProjectIsRefusedForItsCharactersATakenOrALongName) {
    for (const char c : ForbiddenInProjectName) {
        EXPECT_EQ(ProjectNameRefusal(store, std::string("A") + c),
                  "Sorry, the project name couldn't contain any of following characters:\r\n"
                  "   \\/:*?\"<>|");
    }
    EXPECT_EQ(ProjectNameRefusal(store, "A\tB"), ForbiddenCharactersMessage);
    EXPECT_EQ(ProjectNameRefusal(store, "villa"),
              "There is one project with the same name, change to other one!");
    EXPECT_EQ(ProjectNameRefusal(store, "HOUSES"), std::nullopt);
    const std::string tooLong(65, 'A');
    EXPECT_EQ(ProjectNameRefusal(store, tooLong),
              "The project name " + tooLong + " has more than 64 characters.");
}

TEST_F(NewNames, AFailureOfTheDatabaseIsNoAnswer) {
    file.Run("DROP TABLE DirTab");
    file.Run("DROP TABLE ProjTab");
    EXPECT_THROW(IsDirectoryTaken(store, "X"), DatabaseError);
    EXPECT_THROW(DirectoryNameRefusal(store, "X"), DatabaseError);
    EXPECT_THROW(ProjectNameRefusal(store, "X"), DatabaseError);
}

} // namespace
} // namespace tarn
