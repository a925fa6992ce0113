#include "shape/Shape.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <random>

namespace tarn::testing {

namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

/// What is found in a made-up src of that one file, which is removed afterwards.
std::vector<std::string> FaultsOf(const std::string& path, const std::string& text) {
    const fs::path src =
        fs::temp_directory_path() / ("tarn-shape-" + std::to_string(std::random_device{}()));
    fs::create_directories((src / path).parent_path());
    std::ofstream(src / path) << text;
    std::vector<std::string> faults = FindShapeFaults(src);
    fs::remove_all(src);
    return faults;
}

/// The same of words.
std::vector<std::string> UnsaidIn(const std::string& path, const std::string& text) {
    const fs::path src =
        fs::temp_directory_path() / ("tarn-words-" + std::to_string(std::random_device{}()));
    fs::create_directories((src / path).parent_path());
    std::ofstream(src / path) << text;
    std::vector<std::string> found = FindUnsaidWords(src);
    fs::remove_all(src);
    return found;
}

std::vector<std::string> TextsOf(const std::vector<ScannedSource::Item>& items) {
    std::vector<std::string> texts;
    std::transform(items.begin(), items.end(), std::back_inserter(texts),
                   [](const auto& item) { return item.Text; });
    return texts;
}

} // namespace

TEST(Shape, OfThisSystemIsKept) {
    EXPECT_THAT(FindShapeFaults(TARN_SOURCES), IsEmpty());
}

TEST(Shape, HasItsWordsTranslated) {
    EXPECT_THAT(FindUnsaidWords(TARN_SOURCES), IsEmpty());
}

TEST(UnsaidWords, AreLiteralsThatArePastTheWords) {
    EXPECT_THAT(UnsaidIn("screens/A.cpp", "auto a = Words(\"a room\"), b = ToQt(\"the room\");\n"
                                          "f(CountedWords(\"a room\", \"%n rooms, more\", n),\n"
                                          "  \"The room: \", \"%1 room\");\n"
                                          "Words(text + \" of it all\");"),
                ElementsAre("screens/A.cpp:1: the room",
                            "screens/A.cpp:3: The room: ", "screens/A.cpp:4:  of it all"));
}

TEST(UnsaidWords, AreNotWhatProgramsRead) {
    EXPECT_THAT(UnsaidIn("store/A.cpp", "Run(\"SELECT a FROM b WHERE c\"); // a remark here\n"
                                        "QStringLiteral(\"roomNumber\"); Key(\"lengthNeeded\");\n"
                                        "f(\"--config-dir\", \"%1 %2\", \"###0.00\", \"\\r\\n\");"),
                IsEmpty());
    EXPECT_THAT(UnsaidIn("screens/A.cpp", "f(\"SELECT one of these\");"), SizeIs(1));
}

TEST(Shape, HasARuleForEachFolderOfThisSystemAndForNoOther) {
    std::vector<std::string> folders;
    for (const auto& entry : fs::directory_iterator(TARN_SOURCES)) {
        if (entry.is_directory()) {
            folders.push_back(entry.path().filename().string());
        }
    }
    EXPECT_THAT(folders, ::testing::UnorderedElementsAreArray(KnownFolders()));
}

TEST(Shape, AllowsWhatIsBelowTheStandardLibraryAndTheFolderItself) {
    EXPECT_THAT(FaultsOf("engine/A.cpp", "#include \"base/Types.h\"\n#include \"engine/A.h\"\n"
                                         "#include <vector>\n#include <cstdint>\n"),
                IsEmpty());
    EXPECT_THAT(FaultsOf("files/A.h", "#include \"improve/A.h\"\n#include <QSaveFile>\n"),
                IsEmpty());
    EXPECT_THAT(FaultsOf("paper/A.cpp", "#include <cups/ipp.h>\n#include <sys/socket.h>\n"
                                        "#include \"text/A.h\"\n#include \"drawing/A.h\"\n"),
                IsEmpty());
    EXPECT_THAT(FaultsOf("tools/A.cpp", "#include <CLI/CLI.hpp>\n#include \"screens/A.h\"\n"),
                IsEmpty());
}

TEST(Shape, RefusesAnIncludeOfWhatIsNotBelow) {
    EXPECT_THAT(FaultsOf("engine/A.h", "// first\n\n#include \"project/Room.h\"\n"),
                ElementsAre("engine/A.h:3: engine may not include \"project/Room.h\""));
    EXPECT_THAT(FaultsOf("store/deep/A.cpp", "#  include \"estimate/A.h\""),
                ElementsAre("store/deep/A.cpp:1: store may not include \"estimate/A.h\""));
    EXPECT_THAT(FaultsOf("text/A.cpp", "#include \"files/QtText.h\""),
                ElementsAre("text/A.cpp:1: text may not include \"files/QtText.h\""));
}

TEST(Shape, RefusesEachUpperFolderInEachLowerOne) {
    const std::vector<std::string> folders = KnownFolders();
    for (std::size_t lower = 0; lower < folders.size(); ++lower) {
        for (std::size_t upper = lower + 1; upper < folders.size(); ++upper) {
            const std::string include = "#include \"" + folders[upper] + "/A.h\"";
            EXPECT_EQ(FaultsOf(folders[lower] + "/A.h", include).size(), 1U)
                << folders[lower] << " includes " << folders[upper];
        }
    }
}

TEST(Shape, RefusesAnIncludeThatIsNoPathFromSrc) {
    EXPECT_THAT(FaultsOf("base/A.cpp", "#include \"A.h\""),
                ElementsAre("base/A.cpp:1: no path from src: \"A.h\""));
    EXPECT_THAT(FaultsOf("base/A.cpp", "#include \"../engine/A.h\""),
                ElementsAre("base/A.cpp:1: no path from src: \"../engine/A.h\""));
}

TEST(Shape, RefusesLibrariesWhereTheyDoNotBelong) {
    EXPECT_THAT(FaultsOf("project/A.h", "#include <QDate>"),
                ElementsAre("project/A.h:1: project may not include <QDate>"));
    EXPECT_THAT(FaultsOf("estimate/A.h", "#include <QtCore/qstring.h>"),
                ElementsAre("estimate/A.h:1: estimate may not include <QtCore/qstring.h>"));
    EXPECT_THAT(FaultsOf("engine/A.h", "#include <qstring.h>"),
                ElementsAre("engine/A.h:1: no folder may include <qstring.h>"));
    EXPECT_THAT(FaultsOf("screens/A.h", "#include <QSqlQuery>"),
                ElementsAre("screens/A.h:1: screens may not include <QSqlQuery>"));
    EXPECT_THAT(FaultsOf("screens/A.h", "#include <cups/cups.h>"),
                ElementsAre("screens/A.h:1: screens may not include <cups/cups.h>"));
    EXPECT_THAT(FaultsOf("store/A.h", "#include <CLI/CLI.hpp>"),
                ElementsAre("store/A.h:1: store may not include <CLI/CLI.hpp>"));
    EXPECT_THAT(FaultsOf("store/A.cpp", "#include <sqlite3.h>"),
                ElementsAre("store/A.cpp:1: no folder may include <sqlite3.h>"));
}

TEST(Shape, RefusesALinkLineToWhatIsNotBelow) {
    EXPECT_THAT(FaultsOf("engine/CMakeLists.txt",
                         "tarn_add_library(\n  engine\n  SOURCES\n  A.cpp\n  LIBS\n  tarn_base\n"
                         "  PRIVATE\n  tarn_project)\n"),
                ElementsAre("engine/CMakeLists.txt:8: engine may not link to tarn_project"));
    EXPECT_THAT(FaultsOf("project/CMakeLists.txt",
                         "target_link_libraries(tarn_project PUBLIC Qt6::Core tarn_base)"),
                ElementsAre("project/CMakeLists.txt:1: project may not link to Qt6::Core"));
    EXPECT_THAT(FaultsOf("tools/CMakeLists.txt",
                         "target_link_libraries(tarn PRIVATE tarn_screens CLI11::CLI11)"),
                IsEmpty());
    EXPECT_THAT(FaultsOf("files/CMakeLists.txt", "target_link_libraries(tarn_files ${more})"),
                ElementsAre("files/CMakeLists.txt:1: files may not link to ${more}"));
}

TEST(Shape, KeepsTheScreensApart) {
    EXPECT_THAT(FaultsOf("screens/menu/A.cpp", "#include \"screens/rooms/RoomScreen.h\""),
                ElementsAre("screens/menu/A.cpp:1: a screen may not include another: "
                            "\"screens/rooms/RoomScreen.h\""));
    EXPECT_THAT(FaultsOf("screens/Screens.h", "#include \"screens/menu/MenuLoad.h\""),
                ElementsAre("screens/Screens.h:1: what the screens share may not include one: "
                            "\"screens/menu/MenuLoad.h\""));
    EXPECT_THAT(FaultsOf("screens/roll/A.cpp", "#include \"screens/menu/MenuScreen.h\""),
                ElementsAre("screens/roll/A.cpp:1: what the screens share may not include one: "
                            "\"screens/menu/MenuScreen.h\""));
    EXPECT_THAT(FaultsOf("screens/menu/A.h", "#include \"screens/roll/RollPanel.h\""), IsEmpty());
    EXPECT_THAT(FaultsOf("screens/ProgramScreens.cpp", "#include \"screens/menu/MenuScreen.h\""),
                IsEmpty());
    EXPECT_THAT(FaultsOf("screens/menu/A.cpp", "#include \"screens/menu/MenuLoad.h\"\n"
                                               "#include \"screens/Screen.h\"\n"),
                IsEmpty());
}

TEST(Shape, KeepsQueriesInTheStore) {
    for (const std::string query :
         {"Select * from MainTab", "select RoomW from InputData", "INSERT INTO T", "DELETE FROM T",
          "update T set A = 1", "PRAGMA quick_check", "create table T", "DROP INDEX I", "VACUUM",
          "begin immediate", "SELECT "}) {
        EXPECT_THAT(FaultsOf("tools/A.cpp", "auto q = \"" + query + "\";"),
                    ElementsAre("tools/A.cpp:1: a query outside of store: \"" + query + '"'));
        EXPECT_THAT(FaultsOf("store/A.cpp", "auto q = \"" + query + "\";"), IsEmpty()) << query;
    }
    EXPECT_THAT(FaultsOf("files/A.cpp", "f(\"select Dir \"\n  \"from DirTab\");"),
                ElementsAre("files/A.cpp:1: a query outside of store: \"select Dir from DirTab\""));
    EXPECT_THAT(FaultsOf("files/A.cpp", "f(R\"sql(select Dir\nfrom DirTab)sql\");").size(), 1U);
}

TEST(Shape, LetsWordsForTheUserPass) {
    for (const std::string text :
         {"SELECT", "SELECT PROJECT", "Please select a month from the list", "DELETE ",
          "Delete operation will make the data of the project lost!", "create", "Update available",
          "Begin with a room"}) {
        EXPECT_THAT(FaultsOf("screens/A.cpp", "f(\"" + text + "\");"), IsEmpty());
    }
}

TEST(Shape, KnowsNoFolderButItsOwn) {
    EXPECT_THAT(FaultsOf("app/A.h", ""), ElementsAre("app/A.h:1: no rule knows its folder"));
    EXPECT_THAT(FaultsOf("A.h", ""), ElementsAre("A.h:1: no rule knows its folder"));
}

TEST(ShapeScan, FindsIncludesButNotInCommentsOrTexts) {
    const ScannedSource found = ScanSource("/* #include \"a/A.h\" */ #include \"b/B.h\"\n"
                                           "// #include \"c/C.h\"\n"
                                           "auto d = R\"(\n#include \"d/D.h\"\n)\";\n"
                                           "auto e = \"\\\"\"; // \"\n"
                                           "int f = 1'000; char g = '\"';\n"
                                           "  #  include <h> // why\n");
    EXPECT_THAT(TextsOf(found.Includes), ElementsAre("\"b/B.h\"", "<h>"));
    EXPECT_EQ(found.Includes[1].Line, 8);
}

TEST(ShapeScan, KnowsPrefixedCharactersFromSeparatedDigits) {
    const auto found = ScanSource("a + u' ' + \"one\"; b = 1'000; c = u'\"'; d = \"two\";");
    EXPECT_THAT(TextsOf(found.Texts), ElementsAre("one", "two"));
}

TEST(ShapeScan, JoinsAdjacentTexts) {
    const ScannedSource found = ScanSource("f(\"a\" /* */ \"b\", \"c\"\n R\"(d)\");");
    EXPECT_THAT(TextsOf(found.Texts), ElementsAre("ab", "cd"));
}

TEST(ShapeScan, ReadsLinkLines) {
    EXPECT_THAT(TextsOf(ScanLinkLines("# target_link_libraries(a b)\n"
                                      "add_executable(tarn tarn.cpp)\n"
                                      "target_link_libraries(tarn PRIVATE x \"y\" # z\n"
                                      "  PUBLIC w)\n"
                                      "TARN_ADD_LIBRARY(q SOURCES A.cpp LIBS v PRIVATE u)\n")),
                ElementsAre("x", "y", "w", "v", "u"));
}

} // namespace tarn::testing
