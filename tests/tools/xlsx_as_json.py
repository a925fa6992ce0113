"""The sheets of a spreadsheet as JSON, by a reader that is not ours: [[name, rows], ..]. A formula is an error.

xlsx_as_json.py FILE.xlsx
"""

import json
import sys

import openpyxl

sheets = []
for sheet in openpyxl.load_workbook(sys.argv[1]).worksheets:
    rows = []
    for row in sheet.iter_rows():
        if any(cell.data_type == "f" for cell in row):
            sys.exit(f"a formula in {sheet.title}")
        rows.append([cell.value for cell in row])
    sheets.append([sheet.title, rows])
print(json.dumps(sheets))
