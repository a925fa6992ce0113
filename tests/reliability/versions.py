"""The rooms that StoreSteps.cpp and ScreenSteps.cpp store: which version of a project is stored, and
whether it is there whole."""

import sqlite3

from contents import Broken


def rooms_of_version(version):
    return [
        (number - 1, 100 + number, 200 + version % 1000, str(number), f"version {version}")
        for number in range(1, 2 + version * 7 % 60)
    ]


# Width, length and number of the rooms into which the screens type.
TYPED = ((20, 212, "101"), (17, 155, "102"), (4, 186, "103"))


def typed_rooms_of_version(version):
    return [
        (place, 12 * feet + version % 12, length, number, f"version {version}")
        for place, (feet, length, number) in enumerate(TYPED)
    ]


def version_of(remarks):
    """The one version that all rooms tell."""
    if len(remarks) != 1:
        raise Broken(f"rooms of several versions: {sorted(remarks)}")
    return int(remarks.pop().split()[1])


def version_in(path, project, rooms_of=rooms_of_version):
    """The one version that is stored of the project."""
    database = sqlite3.connect(path)
    try:
        findings = database.execute("PRAGMA integrity_check").fetchall()
        if findings != [("ok",)]:
            raise Broken(f"the database is damaged: {findings}")
        sheets = database.execute(
            "SELECT TabIndex, ObjNum FROM MainTab WHERE ProjName = ?", (project,)
        ).fetchall()
        if len(sheets) != 1:
            raise Broken(f"{project} has {len(sheets)} sheets")
        sheet, count = sheets[0]
        rooms = database.execute(
            "SELECT ObjNum, RoomW, RoomL, RoomNoStr, RoomRemark FROM InputData WHERE TabIndex = ?"
            " ORDER BY ObjNum", (sheet,),
        ).fetchall()
    except sqlite3.Error as error:
        raise Broken(f"the database cannot be read: {error}") from error
    finally:
        database.close()
    version = version_of({room[4] for room in rooms})
    if rooms != rooms_of(version) or count != len(rooms):
        raise Broken(f"version {version} is not whole: {len(rooms)} rooms, {count} on the sheet")
    return version
