#include "files/ShortDate.h"

#include <QDate>
#include <QString>

#include <gtest/gtest.h>

namespace tarn {
namespace {

TEST(ShortDate, FollowsTheLocaleOfTheSystem) {
    // The locale is read at its first use, which is here.
    qputenv("LC_ALL", "de_DE.UTF-8");
    EXPECT_EQ(ShortDate(2031, 3, 9), "09.03.31");
    const QDate before = QDate::currentDate();
    const std::string today = ShortDateOfToday();
    const QDate after = QDate::currentDate();
    EXPECT_TRUE(today == before.toString(QStringLiteral("dd.MM.yy")).toStdString() ||
                today == after.toString(QStringLiteral("dd.MM.yy")).toStdString())
        << today;
}

} // namespace
} // namespace tarn
