"""Whether the JSON, CSV and XLSX files of an order say the same: prints what differs, if anything does.

orders_agree.py FILE.json FILE.csv FILE.xlsx
"""

import csv
import json
import sys
import xml.etree.ElementTree as xml
import zipfile

MAIN = "{http://schemas.openxmlformats.org/spreadsheetml/2006/main}"


def csv_tables(path):
    """The two tables as lists of dictionaries; numbers stay texts."""
    with open(path, encoding="utf-8", newline="") as file:
        records = list(csv.reader(file))
    end = next(i for i, record in enumerate(records) if not record)
    return [
        [dict(zip(table[0], row)) for row in table[1:]] for table in (records[:end], records[end + 1 :])
    ]


def column_number(reference):
    number = 0
    for letter in reference.rstrip("0123456789"):
        number = 26 * number + ord(letter) - ord("A") + 1
    return number - 1


def xlsx_tables(path):
    with zipfile.ZipFile(path) as book:
        shared = []
        if "xl/sharedStrings.xml" in book.namelist():
            for item in xml.fromstring(book.read("xl/sharedStrings.xml")):
                shared.append("".join(text.text or "" for text in item.iter(MAIN + "t")))
        tables = []
        for sheet in ("sheet1", "sheet2"):
            rows = []
            for row in xml.fromstring(book.read(f"xl/worksheets/{sheet}.xml")).iter(MAIN + "row"):
                cells = {}
                for cell in row:
                    value = cell.find(MAIN + "v")
                    assert cell.find(MAIN + "f") is None, "a formula"
                    if value is not None:
                        text = shared[int(value.text)] if cell.get("t") == "s" else value.text
                        cells[column_number(cell.get("r"))] = text
                rows.append(cells)
            heads = rows[0]
            tables.append([{heads[i]: row.get(i, "") for i in heads} for row in rows[1:]])
        return tables


def json_tables(path):
    with open(path, encoding="utf-8") as file:
        document = json.load(file)
    comparison, pieces = [], []
    for carpet in document["carpets"]:
        rolls = carpet["request"]["rolls"]
        lays = 2 if carpet["request"]["lay"] == "both" else 1
        for number, row in enumerate(carpet["candidates"]):
            figures = {name: row[name] for name in row if name not in ("sideSeams", "crossJoins", "notes")}
            for seams, length in (("sideSeams", "sideSeamLength"), ("crossJoins", "crossJoinLength")):
                figures[seams] = row[seams] and row[seams]["count"]
                figures[length] = row[seams] and row[seams]["length"]
            figures["notes"] = " ".join(row["notes"])
            figures["carpet"] = carpet["carpet"]
            figures["name"] = rolls[number // lays]["name"]
            figures["best"] = "best" if carpet["best"] == number else ""
            comparison.append(figures)
        pieces += [dict(piece, carpet=carpet["carpet"]) for piece in carpet["pieces"]]
    return [comparison, pieces]


def is_same(value, text, marked):
    if value is None:
        return text == ""
    if isinstance(value, str):
        mark = "'" if marked and value[:1] in tuple("=+-@'") else ""
        return text == mark + value
    return text != "" and abs(float(text) - value) <= 1e-9 * max(1, abs(value))


def compare(name, wanted, found, marked):
    if len(wanted) != len(found):
        print(f"{name}: {len(found)} rows, {len(wanted)} in the JSON document")
    for number, (row, other) in enumerate(zip(wanted, found), 1):
        if set(row) != set(other):
            print(f"{name}, row {number}: fields {sorted(set(row) ^ set(other))}")
        for field in set(row) & set(other):
            if not is_same(row[field], other[field], marked):
                print(f"{name}, row {number}, {field}: {other[field]!r}, {row[field]!r} in the JSON document")


wanted = json_tables(sys.argv[1])
for name, tables, marked in (("CSV", csv_tables(sys.argv[2]), True), ("XLSX", xlsx_tables(sys.argv[3]), False)):
    for table, rows in zip(wanted, tables):
        compare(name, table, rows, marked)
print("rows:", *(len(table) for table in wanted))
