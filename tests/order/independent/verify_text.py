"""Whether the cutting list, as text, says what the document says."""

import re

from rules import Row

HEADING = re.compile(r"^Cut +Which ")
LINE = re.compile(r"^(?P<label>[A-Z]+) .*?\s(?P<from>\S+) +(?P<to>\S+) +(?P<across>\S+) +"
                  r"(?P<width>\S+) X (?P<length>\S+)(?: {2,}(?P<pattern>\S.*))?$")
ON_FROM = re.compile(r"^(?:(?P<repeats>\d+) repeats?)?(?: and )?(?:(?P<rest>[^ ]+(?: cm)?))?"
                     r" on from (?P<first>[A-Z]+)$")


def read_length(text, metric):
    """Whole units of a length as it is shown, or None."""
    if metric:
        found = re.fullmatch(r"(\d+)(?: ?cm)?", text)
        return int(found[1]) if found else None
    found = re.fullmatch(r"(?:(\d+)')?(?:(\d+)\")?", text)
    return int(found[1] or 0) * 12 + int(found[2] or 0) if found and text else None


def lists_of(text):
    """The lines of each list."""
    lists = []
    lines = text.split("\n")
    for number, line in enumerate(lines):
        if HEADING.match(line):
            end = number + 1
            while end < len(lines) and lines[end]:
                end += 1
            lists.append(lines[number + 1:end])
    return lists


def which(piece, strip, usable):
    """What a piece is of its room. A fill that its trim makes as wide as the roll is a drop."""
    words = []
    if strip.strips > 1:
        kind = "drop" if strip.width == usable else "fill"
        words.append(f"{kind} {strip.index + 1} of {strip.strips}")
    if piece["parts"] > 1:
        words.append(f"part {piece['part']} of {piece['parts']}")
    return ", ".join(words)


def pattern_faults(job, piece, first, text):
    """Where the piece begins in the pattern, counted from its room's first on the roll."""
    if piece is first or not job.along:
        return [] if text is None else [f"text: piece {piece['label']} is {text!r}"]
    if text == f"beside {first['label']}" and piece["y"] == first["y"]:
        return []
    found = ON_FROM.match(text or "")
    if not found:
        return [f"text: piece {piece['label']} says {text!r} of the pattern"]
    on = int(found["repeats"] or 0) * job.along
    rest = 0
    if found["rest"]:
        rest = read_length(found["rest"], job.metric)
    if (found["first"] != first["label"] or rest is None or rest >= job.along
            or on + rest != piece["y"] - first["y"]):
        return [f"text: piece {piece['label']} says {text!r}, it lies {piece['y'] - first['y']} on "
                f"from {first['label']}"]
    return []


def line_faults(job, row, piece, first, line):
    found = LINE.match(line)
    if not found:
        return [f"text: the line {line!r}"]
    faults = []
    wanted = {"from": piece["y"], "to": piece["y"] + piece["length"], "across": piece["x"],
              "width": piece["width"], "length": piece["length"]}
    for key, value in wanted.items():
        if read_length(found[key], job.metric) != value:
            faults.append(f"text: piece {piece['label']}: {key} is {found[key]}, not {value}")
    words = which(piece, row.strips[piece["room"], piece["strip"]], row.usable)
    rest = line[len(piece["label"]):].lstrip()
    if found["label"] != piece["label"] or not rest.startswith(words):
        faults.append(f"text: piece {piece['label']} is {words!r}, the line {line!r}")
    return faults + pattern_faults(job, piece, first, found["pattern"])


def verify_text(job, document, text):
    """What is wrong with the lists; nothing where they say the same."""
    orders = [order for order in document["carpets"] if order["best"] is not None]
    lists = lists_of(text)
    if len(lists) != len(orders):
        return [f"text: {len(lists)} lists, not {len(orders)}"]
    faults = [] if text.endswith("\n") else ["text: the last line does not end"]
    for order, lines in zip(orders, lists):
        row = Row(job, order["carpet"], *job.rows()[order["best"]])
        if len(lines) != len(order["pieces"]):
            faults.append(f"text: {len(lines)} lines, not {len(order['pieces'])}")
            continue
        firsts = {}
        for piece, line in zip(order["pieces"], lines):
            first = firsts.setdefault(piece["room"], piece)
            faults += line_faults(job, row, piece, first, line)
    return faults
