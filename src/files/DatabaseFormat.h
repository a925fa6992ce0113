// Databases told by their first bytes, so that none is opened or written over by mistake.

#pragma once

#include <QByteArray>

#include <string>

namespace tarn {

/// What a file is by its first bytes: an SQLite database as the program's own, one of the older Jet
/// format, which the program refuses, or neither.
enum class DatabaseFormat { None, Sqlite, Jet };

/// How many bytes of a file are enough to tell.
inline constexpr qint64 DatabaseHeadSize = 100;

/// The format of a file that begins with `head`.
DatabaseFormat DatabaseFormatOf(const QByteArray& head);

/// Whether a readable file stands at `path` that begins as a database of either format. Such a file
/// is never to be written over.
bool IsDatabaseFile(const std::string& path);

} // namespace tarn
