#include "files/ShortDate.h"

#include <QDate>
#include <QString>

#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>

namespace tarn {
namespace {

/// In a process of its own, which has not asked for the locale yet.
[[noreturn]] void ShowDatesInGermany() {
    qputenv("LC_ALL", "de_DE.UTF-8");
    const QDate before = QDate::currentDate();
    const std::string today = ShortDateOfToday();
    const QDate after = QDate::currentDate();
    const bool isToday = today == before.toString(QStringLiteral("dd.MM.yy")).toStdString() ||
                         today == after.toString(QStringLiteral("dd.MM.yy")).toStdString();
    std::cerr << ShortDate(2031, 3, 9) << (isToday ? " and today" : " and " + today) << '\n';
    std::exit(EXIT_SUCCESS);
}

TEST(ShortDate, FollowsTheLocaleOfTheSystem) {
    GTEST_FLAG_SET(death_test_style, "threadsafe"); // starts the program anew
    EXPECT_EXIT(ShowDatesInGermany(), ::testing::ExitedWithCode(EXIT_SUCCESS),
                "^09[.]03[.]31 and today\n$");
}

} // namespace
} // namespace tarn
