// The journal beside a database file: the change that a crash cut off, which the database engine
// takes back when the file is next read. The engine asks no more than whether a journal is there;
// here it is told whether that journal is the file's own. When a backup was copied over the file,
// it is that of another state, and taking it back would mix the two.

#pragma once

#include <string>

namespace tarn {

/// What lies beside a database file.
enum class JournalKind {
    None,    ///< no journal, or one that the engine takes nothing from
    Own,     ///< the journal of a change that was begun on the file as it stands
    Foreign, ///< a journal of another state of the file, or of another file
};

/// Where the engine keeps the journal of a database file: beside the file that a link leads to.
std::string JournalPath(const std::string& database);

/// What lies beside a database file. Reads both and changes neither. A journal is the file's own
/// when the first page as the change found it, which the journal keeps, has the same head as the
/// file, or, with the change written to it already, the head that comes next; a journal that does
/// not hold that page yet, when it tells of a file of the same size. Also while another program
/// writes.
JournalKind JournalBeside(const std::string& database);

/// Raise DatabaseError when something that is no file stands where the engine would open a journal:
/// with a pipe it would wait for ever.
void RequireFilesBeside(const std::string& database);

/// Raise DatabaseError when a foreign journal lies beside the file, with the way out.
void RequireOwnJournal(const std::string& database);

/// What is told of a foreign journal: why the file is not opened, and the way out.
std::string ForeignJournalText(const std::string& database);

} // namespace tarn
