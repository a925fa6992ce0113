"""What stands in a folder, as values to compare, found out without any code of the program."""

import os
import re
import sqlite3

from disk import FOLDER


class Broken(AssertionError):
    """A promise is broken."""


def rows_of_database(path):
    """(table, its rows) for each table, or the faults of a database that is damaged. What a crash
    cut off is taken back by opening the file."""
    try:
        database = sqlite3.connect(path)
        try:
            findings = database.execute("PRAGMA integrity_check").fetchall()
            if findings != [("ok",)]:
                return (("DAMAGED", tuple(findings)),)
            tables = database.execute(
                "SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY name"
            ).fetchall()
            return tuple(
                (table, tuple(database.execute(f'SELECT * FROM "{table}" ORDER BY rowid')))
                for (table,) in tables
            )
        finally:
            database.close()
    except sqlite3.Error as error:
        return (("DAMAGED", (str(error),)),)


def is_database(path):
    if path.endswith(".mdb"):
        return True
    with open(path, "rb") as file:
        return file.read(16) == b"SQLite format 3\0"


# What a PDF file says of the moment in which it was written.
PDF_MOMENT = re.compile(
    rb"\(D:[^)]*\)|<[0-9a-f]{32}>|\d{4}-\d\d-\d\dT[0-9:.+Z-]*|[0-9a-f]{8}(-[0-9a-f]{4}){3}-[0-9a-f]{12}"
)

# The folder of one case, where a file names it.
FOLDER_NAME = re.compile(rb"[^\s\"]*/tarn-reliability-\w+/[\w ]+")


def bytes_of_file(path):
    with open(path, "rb") as file:
        content = file.read()
    if b"/tarn-reliability-" in content:
        content = FOLDER_NAME.sub(b"", content)
    return PDF_MOMENT.sub(b"", content) if content.startswith(b"%PDF") else content


def contents(folder):
    """{path: rows, bytes or FOLDER} of everything below the folder."""
    found = {}
    journals = []
    for parent, folders, files in os.walk(folder):
        for name in folders:
            found[os.path.relpath(os.path.join(parent, name), folder)] = FOLDER
        for name in files:
            path = os.path.join(parent, name)
            if name.endswith("-journal"):
                journals.append(path)
            elif is_database(path):
                found[os.path.relpath(path, folder)] = rows_of_database(path)
            else:
                found[os.path.relpath(path, folder)] = bytes_of_file(path)
    # Those that still stand: opening a database takes its own away.
    for path in journals:
        if os.path.exists(path):
            found[os.path.relpath(path, folder)] = bytes_of_file(path)
    return found


def difference(found, wanted):
    """In a few words where two contents differ."""
    lines = []
    for name in sorted(set(found) | set(wanted)):
        one, other = found.get(name), wanted.get(name)
        if one == other:
            continue
        if isinstance(one, tuple) and isinstance(other, tuple):
            has, wants = dict(one), dict(other)
            lines += [
                f"{name}, {table}: {len(has.get(table, ()))} rows, not the"
                f" {len(wants.get(table, ()))} wanted"
                for table in sorted(set(has) | set(wants)) if has.get(table) != wants.get(table)
            ]
        else:
            lines.append(f"{name}: {brief(one)}, not {brief(other)}")
    return "; ".join(lines) or "nothing"


def brief(value):
    if value is None:
        return "not there"
    if value is FOLDER:
        return FOLDER
    if isinstance(value, tuple):
        return "a database"
    return f"{len(value)} bytes"
