#include "files/DatabaseFormat.h"

#include <QFile>
#include <QFileInfo>

namespace tarn {

DatabaseFormat DatabaseFormatOf(const QByteArray& head) {
    if (head.startsWith(QByteArray("SQLite format 3\0", 16))) {
        return DatabaseFormat::Sqlite;
    }
    constexpr qsizetype JetNameAt = 4;
    const QByteArray name = head.mid(JetNameAt);
    return name.startsWith("Standard Jet DB") || name.startsWith("Standard ACE DB")
               ? DatabaseFormat::Jet
               : DatabaseFormat::None;
}

bool IsDatabaseFile(const std::string& path) {
    QFile file(QString::fromStdString(path));
    // A device or a pipe must not be read from to be judged.
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly)) {
        return false;
    }
    return DatabaseFormatOf(file.read(DatabaseHeadSize)) != DatabaseFormat::None;
}

} // namespace tarn
