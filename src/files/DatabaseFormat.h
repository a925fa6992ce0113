// Databases told by their first bytes, so that none is opened or written over by mistake.

#pragma once

#include <QByteArray>

#include <string>
#include <string_view>

namespace tarn {

/// What a file is by its first bytes: an SQLite database as the program's own, one of the older Jet
/// format, which the program refuses, or neither.
enum class DatabaseFormat { None, Sqlite, Jet };

/// How many bytes of a file are enough to tell.
inline constexpr qint64 DatabaseHeadSize = 100;

/// The format of a file that begins with `head`.
DatabaseFormat DatabaseFormatOf(const QByteArray& head);

/// How the journal begins that lies beside a database while a change is written.
inline constexpr std::string_view JournalSignature = "\xD9\xD5\x05\xF9\x20\xA1\x63\xD7";

/// Whether a readable file stands at `path` that begins as a database of either format, or as the
/// journal of one, without which the database may be lost. Such a file is not to be written over by
/// mistake.
bool IsDatabaseFile(const std::string& path);

} // namespace tarn
