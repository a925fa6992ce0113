#include "files/DatabaseFormat.h"

#include <filesystem>
#include <fstream>

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
    std::error_code error;
    // A device or a pipe must not be read from to be judged.
    if (!std::filesystem::is_regular_file(path, error)) {
        return false;
    }
    QByteArray head(DatabaseHeadSize, '\0');
    std::ifstream file(path, std::ios::binary);
    file.read(head.data(), head.size());
    return DatabaseFormatOf(head) != DatabaseFormat::None ||
           std::string_view(head.constData(), JournalSignature.size()) == JournalSignature;
}

} // namespace tarn
