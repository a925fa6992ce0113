"""Whether a table of orders says what their document says."""

import csv
import io

ROW_COLUMNS = ("carpet,name,roll,rollWidth,usableWidth,lay,best,refused,length,lengthNeeded,"
               "leastLength,areaBought,areaRooms,areaRoomsTrimmed,wastePercent,sideSeams,"
               "sideSeamLength,crossJoins,crossJoinLength,price,notes").split(",")
PIECE_COLUMNS = ("carpet,label,room,roomNumber,remark,strip,strips,part,parts,x,y,width,length,"
                 "roomX,roomY").split(",")
TEXTS = {"name", "roll", "lay", "best", "refused", "notes", "label", "roomNumber", "remark"}


def cell(column, value):
    """A value as its cell is compared: texts as they are, numbers as numbers."""
    if value is None or value == "":
        return ""
    return value if column in TEXTS or isinstance(value, str) else float(value)


def read_cell(column, text):
    if column in TEXTS:
        # What a spreadsheet would take for a formula stands behind an apostrophe.
        return text[1:] if text[:1] == "'" else text
    return "" if text == "" else float(text)


def wanted_row(order, number):
    found = order["candidates"][number]
    rolls = order["request"]["rolls"]
    row = dict(found, carpet=order["carpet"],
               name=rolls[number // (len(order["candidates"]) // len(rolls))]["name"],
               best="best" if order["best"] == number else "", notes=found["notes"])
    for key, length in (("sideSeams", "sideSeamLength"), ("crossJoins", "crossJoinLength")):
        both = found[key]
        row[key], row[length] = ((both["count"], both["length"]) if isinstance(both, dict)
                                 else (both, both))
    return row


def compare(columns, lines, wanted, faults):
    if not lines or lines[0] != columns:
        faults.append(f"CSV: the heading is {lines[:1]}")
        return
    if len(lines) - 1 != len(wanted):
        faults.append(f"CSV: {len(lines) - 1} lines, not {len(wanted)}")
        return
    for line, row in zip(lines[1:], wanted):
        for column, text in zip(columns, line):
            if column == "notes":
                right = (all(note in text for note in row["notes"])
                         and bool(text) == bool(row["notes"]))
            else:
                right = read_cell(column, text) == cell(column, row[column])
            if not right:
                faults.append(f"CSV: {column} is {text!r}, not {row[column]!r}")


def verify_csv(document, text):
    """What is wrong with the table; nothing where it says the same."""
    faults = []
    lines = list(csv.reader(io.StringIO(text, newline="")))
    if [] not in lines:
        return ["CSV: there is no empty line between the rows and the pieces"]
    middle = lines.index([])
    orders = document["carpets"]
    compare(ROW_COLUMNS, lines[:middle], [wanted_row(order, number) for order in orders
                                          for number in range(len(order["candidates"]))], faults)
    compare(PIECE_COLUMNS, lines[middle + 1:], [dict(piece, carpet=order["carpet"])
                                                for order in orders for piece in order["pieces"]],
            faults)
    return faults
