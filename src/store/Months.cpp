#include "store/Months.h"

#include "store/Names.h"

namespace tarn {

std::string MonthDirectoryName(const QDate& date, const QLocale& locale) {
    const QString name = locale.standaloneMonthName(date.month(), QLocale::LongFormat);
    return StoredName(name.toStdString());
}

} // namespace tarn
