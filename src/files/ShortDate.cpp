#include "files/ShortDate.h"

#include <QDate>
#include <QLocale>

namespace tarn {

std::string ShortDate(int year, int month, int day) {
    return QLocale::system().toString(QDate(year, month, day), QLocale::ShortFormat).toStdString();
}

std::string ShortDateOfToday() {
    const QDate today = QDate::currentDate();
    return ShortDate(today.year(), today.month(), today.day());
}

} // namespace tarn
