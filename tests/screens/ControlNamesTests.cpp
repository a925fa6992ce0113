// The table of control names, compared with the screens as they are built.

#include "estimate/EstimateTesting.h"
#include "screens/AboutWindow.h"
#include "screens/GuideWindow.h"
#include "screens/ScreenTesting.h"
#include "screens/ScreenWindow.h"
#include "screens/estimate/EstimateClient.h"
#include "screens/estimate/EstimateScreen.h"
#include "screens/estimate/OptionsScreen.h"
#include "screens/menu/MenuScreen.h"
#include "screens/order/OrderScreen.h"
#include "screens/projects/ProjectScreen.h"
#include "screens/rooms/RoomScreen.h"

#include <QTabBar>

#include <gmock/gmock.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <regex>
#include <string>
#include <vector>

namespace tarn {
namespace {

using namespace tarn::testing;

using Names = std::vector<std::string>;

/// What the table says of a screen: the names under each of its headings.
std::map<std::string, Names> NamesByHeading() {
    static const std::regex heading("// (\\w+): .*");
    static const std::regex text("\"([^\"]+)\"");
    std::map<std::string, Names> names;
    std::ifstream table(TARN_CONTROL_NAMES);
    std::string current;
    for (std::string line; std::getline(table, line);) {
        std::smatch found;
        if (std::regex_match(line, found, heading)) {
            current = found[1];
        } else if (!current.empty()) {
            for (std::sregex_iterator at(line.begin(), line.end(), text), end; at != end; ++at) {
                names[current].push_back((*at)[1]);
            }
        }
    }
    return names;
}

/// The objectNames on a screen and its own, but those that the toolkit gives itself.
Names NamesOn(const QObject& screen) {
    Names names{FromQt(screen.objectName())};
    for (const QObject* object : screen.findChildren<QObject*>()) {
        const QString name = object->objectName();
        const bool isOfTabs = qobject_cast<const QTabBar*>(object->parent()) != nullptr;
        if (!name.isEmpty() && !name.startsWith(QLatin1String("qt_")) && !isOfTabs) {
            names.push_back(FromQt(name));
        }
    }
    return names;
}

bool IsShared(const std::string& name) {
    static const Names shared = NamesByHeading()["Window"];
    return std::find(shared.begin(), shared.end(), name) != shared.end();
}

/// `part` is the heading of what the screen shares with another.
void ExpectNamesOf(const std::string& heading, const QObject& screen,
                   const std::string& part = {}) {
    Names names = NamesOn(screen);
    std::erase_if(names, IsShared);
    auto table = NamesByHeading();
    Names expected = table[heading];
    expected.insert(expected.end(), table[part].begin(), table[part].end());
    EXPECT_THAT(names, ::testing::UnorderedElementsAreArray(expected));
}

struct ControlNames : ScreenTest {
    ControlNames() {
        open.Now.Name = "MAPLE STREET 9";
        open.Now.Rooms.push_back(Sized{120, 144}.AsRoom());
    }
};

TEST_F(ControlNames, OfTheProjectsAreThoseOfTheTable) {
    ExpectNamesOf("Projects", ProjectScreen(session));
}

TEST_F(ControlNames, OfTheMenuAreThoseOfTheTable) {
    ExpectNamesOf("Menu", MenuScreen(session, MenuEntry::Returning));
}

TEST_F(ControlNames, OfTheRoomsAreThoseOfTheTable) {
    ExpectNamesOf("Rooms", RoomScreen(session));
}

TEST_F(ControlNames, OfTheEstimateAreThoseOfTheTable) {
    ExpectNamesOf("Estimate", EstimateScreen(session, true), "Roll");
}

TEST_F(ControlNames, OfTheOptionsAreThoseOfTheTable) {
    struct : EstimateClient {
        void EstimateReady(const Estimate& /*estimate*/) override {}
        void NoEstimate() override {}
    } client;
    ExpectNamesOf("Options", OptionsScreen(session, Request(144), client));
}

TEST_F(ControlNames, OfTheOrderAreThoseOfTheTable) {
    ExpectNamesOf("Order", OrderScreen(session, std::nullopt), "Roll");
}

TEST_F(ControlNames, OfTheGuideAreThoseOfTheTable) {
    QWidget program;
    ExpectNamesOf("Guide", GuideWindow(program, boxes));
}

TEST_F(ControlNames, OfWhatTheProgramIsAreThoseOfTheTable) {
    QWidget program;
    ExpectNamesOf("About", AboutWindow(program, {}));
}

TEST_F(ControlNames, ThatScreensShareAreThoseOfTheTable) {
    Names names = NamesOn(MenuScreen(session, MenuEntry::Returning));
    const Names ofWindow = NamesOn(ScreenWindow());
    names.insert(names.end(), ofWindow.begin(), ofWindow.end());
    std::erase_if(names, [](const std::string& name) { return !IsShared(name); });
    EXPECT_THAT(names, ::testing::UnorderedElementsAreArray(NamesByHeading()["Window"]));
}

TEST_F(ControlNames, AreReadUnderTheirHeadings) {
    const auto names = NamesByHeading();
    EXPECT_EQ(names.size(), 10U);
    EXPECT_THAT(names.at("Options"), ::testing::Contains("Option1(5)"));
}

} // namespace
} // namespace tarn
