#include "base/Version.h"
#include "screens/AboutWindow.h"
#include "screens/ControlNames.h"
#include "screens/GuideWindow.h"
#include "screens/ScreenTesting.h"

#include <QPushButton>
#include <QTextBrowser>

#include <gmock/gmock.h>

namespace tarn {
namespace {

using namespace tarn::testing;
using ::testing::HasSubstr;

std::string TextOf(const AboutWindow& about) {
    return FromQt(Find<QTextBrowser>(about, Controls::aboutText).toPlainText());
}

TEST(About, TellsVersionPlacesAndLicences) {
    QWidget program;
    const AboutWindow about(program, {{"Database", "/data/DATA/Tarn <1>.mdb"}});
    const std::string text = TextOf(about);
    EXPECT_THAT(text, HasSubstr("tarn " + std::string(Version)));
    EXPECT_THAT(text, HasSubstr("Database: /data/DATA/Tarn <1>.mdb"));
    for (const char* part : {"Qt 6", "LGPL-3.0", "SQLite", "CLI11", "libcups", "libxlsxwriter"}) {
        EXPECT_THAT(text, HasSubstr(part));
    }
}

TEST(About, KnowsWhereEverythingLies) {
    const Places places = PlacesOf({"/d", "/d\\DATA\\Tarn.mdb", "/c/TarnWin.INI"});
    ASSERT_GE(places.size(), 4U);
    EXPECT_EQ(places[0], (std::pair<std::string, std::string>("Database", "/d/DATA/Tarn.mdb")));
    EXPECT_EQ(places[1], (std::pair<std::string, std::string>("Backups", "/d/BACKUP")));
    EXPECT_EQ(places[2],
              (std::pair<std::string, std::string>("Configuration file", "/c/TarnWin.INI")));
    EXPECT_THAT(places[3].second, HasSubstr("preferences.ini"));
}

TEST(About, CanBeCopiedAndClosedByKeys) {
    QWidget program;
    AboutWindow about(program, {});
    about.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&about));
    auto& text = Find<QTextBrowser>(about, Controls::aboutText);
    EXPECT_TRUE(text.hasFocus());
    QTest::keyClick(&text, Qt::Key_A, Qt::ControlModifier);
    EXPECT_THAT(FromQt(text.textCursor().selectedText()),
                HasSubstr("tarn " + std::string(Version)));
    QTest::keyClick(&about, Qt::Key_Escape);
    EXPECT_FALSE(about.isVisible());
}

TEST(About, IsOpenedFromTheGuide) {
    QWidget program;
    FakeBoxes boxes;
    GuideWindow guide(program, boxes);
    int opened = 0;
    guide.OnAbout = [&opened] { ++opened; };
    Find<QPushButton>(guide, Controls::aboutFromGuide).click();
    EXPECT_EQ(opened, 1);
}

} // namespace
} // namespace tarn
