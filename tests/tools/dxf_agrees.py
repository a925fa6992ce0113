"""Whether the DXF and JSON files of an order or an estimate say the same: prints what differs, if anything does.

dxf_agrees.py FILE.json FILE.dxf
"""

import json
import re
import sys

import ezdxf

TOLERANCE = 1e-3


def box_of(polyline):
    """(x, y, length along X, width along Y) of a closed rectangle."""
    points = [(v.dxf.location.x, v.dxf.location.y) for v in polyline.vertices]
    xs, ys = [x for x, _ in points], [y for _, y in points]
    corners = {(x, y) for x in (min(xs), max(xs)) for y in (min(ys), max(ys))}
    if not polyline.is_closed or len(points) != 4 or set(points) != corners:
        print("not a closed rectangle:", points)
    for (x1, y1), (x2, y2) in zip(points, points[1:] + points[:1]):
        if x1 != x2 and y1 != y2:
            print("not a rectangle:", points)
    return min(xs), min(ys), max(xs) - min(xs), max(ys) - min(ys)


def room_name(piece):
    """As it is written: two percent signs would begin a code."""
    name = piece["roomNumber"] or piece["remark"] or f"room {piece['room']}"
    return re.sub("%(?=%)", "% ", name)


def text_of(entity):
    return ezdxf.decode_dxf_unicode(entity.plain_text())


def wanted_of_order(document):
    carpet = document["carpets"][0]
    row = carpet["candidates"][carpet["best"]]
    selvage = carpet["request"]["selvage"]
    pieces = [
        (p["label"], room_name(p), (p["y"], p["x"] + selvage, p["length"], p["width"]))
        for p in carpet["pieces"]
    ]
    lines = sorted({selvage, row["rollWidth"] - selvage} - {0, row["rollWidth"]})
    return document["units"] == "cm", (0, 0, row["length"], row["rollWidth"]), lines, pieces


def wanted_of_estimate(document):
    """Without a match pattern, where the cuts lie one behind the other."""
    unit = 2.54 if document["metric"] else 1
    along = "x" if document["layDir"] else "y"
    pieces, end = [], 0
    for number, cut in enumerate(document["cuts"], 1):
        length = (cut[along + "2"] - cut[along + "1"]) / 100
        pieces.append((f"Cut{number}", None, (end * unit, 0, length * unit, document["rollWidth"] * unit)))
        end += length
    for p in document["pieces"]:
        place = ((end + p["posY"]) * unit, p["posX"] * unit, p["posL"] * unit, p["posW"] * unit)
        pieces.append((p["label"], None, place))
    length = document["totals"]["length"] * unit
    return document["metric"], (0, 0, length, document["rollWidth"] * unit), [], pieces


def is_near(box, other):
    return all(abs(a - b) <= TOLERANCE * max(1, abs(b)) for a, b in zip(box, other))


def is_inside(point, box):
    x, y, length, width = box
    return x <= point[0] <= x + length and y <= point[1] <= y + width


def compare(document, drawing):
    is_order = "carpets" in document
    metric, roll, lines, pieces = (wanted_of_order if is_order else wanted_of_estimate)(document)
    if drawing.header["$INSUNITS"] != (5 if metric else 1):
        print("units:", drawing.header["$INSUNITS"])
    for error in drawing.audit().errors:
        print("the drawing is faulty:", error.message)
    space = drawing.modelspace()
    layers = {layer.dxf.name for layer in drawing.layers}
    if not {"ROLL", "PIECES", "TEXTS"} <= layers:
        print("layers:", layers)
    kinds = {(e.dxftype(), e.dxf.layer) for e in space}
    if not kinds <= {("POLYLINE", "ROLL"), ("LINE", "ROLL"), ("POLYLINE", "PIECES"), ("TEXT", "TEXTS")}:
        print("entities:", kinds)
    outlines = [box_of(p) for p in space.query('POLYLINE[layer=="ROLL"]')]
    if len(outlines) != 1 or not is_near(outlines[0], roll):
        print("roll:", outlines, "wanted", roll)
    found_lines = sorted(line.dxf.start.y for line in space.query('LINE[layer=="ROLL"]'))
    if found_lines != lines:
        print("selvages:", found_lines, "wanted", lines)
    boxes = [box_of(p) for p in space.query('POLYLINE[layer=="PIECES"]')]
    if len(boxes) != len(pieces):
        print(f"{len(boxes)} pieces, {len(pieces)} in the JSON document")
    texts = [(text_of(t), t.dxf.align_point) for t in space.query('TEXT[layer=="TEXTS"]') if t.dxf.valign]
    for (label, room, place), box in zip(pieces, boxes):
        if not is_near(box, place):
            print(f"{label}: at {box}, {place} in the JSON document")
        written = [text for text, at in texts if is_inside((at.x, at.y), box)]
        if len(written) != 3 or written[0] != label or " X " not in written[1]:
            print(f"{label}: {written} is written on it")
        elif room is not None and written[2] != room:
            print(f"{label}: {written[2]!r} is its room, {room!r} in the JSON document")
    print("pieces:", len(boxes))


with open(sys.argv[1], encoding="utf-8") as file:
    compare(json.load(file), ezdxf.readfile(sys.argv[2]))
