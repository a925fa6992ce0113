"""Draws the pictures of order.md: those of the orders whose commands stand before them.

order_drawings.py PROGRAMS

PROGRAMS is the folder with the built tarn-order. A block that begins with "$ tarn-order" and is followed by
a picture is run once more for its JSON; one unit of the picture is one inch of the roll.
"""

import json
import os
import re
import subprocess
import sys

DOCS = os.path.dirname(os.path.abspath(__file__))
ROOT = os.path.dirname(DOCS)
BLOCK = re.compile(r"```console\n\$ (tarn-order [^\n]*)\n[^`]*```\n\n!\[[^\]]*\]\(images/([^)]*)\)")
WIDTH = 760  # of a picture, in pixels
MARGIN = 20  # around it, in pixels
GAP = 40  # before a room, in inches
LONG_ROLL = 600  # beside which no room is drawn
TINTS = ("#dbe9f6", "#fbe3c8", "#dcefd9", "#eadcf0", "#f6d9dc", "#e6e6d8")
BARE = 'fill="none" stroke="#000"'


def feet(inches):
    return f"{inches // 12}'{inches % 12}\""


def tint(piece):
    return TINTS[(piece["room"] - 1) % len(TINTS)]


def text(x, y, size, content, more=""):
    content = content.replace("&", "&amp;").replace("<", "&lt;")
    return f'<text x="{x:g}" y="{y:.5g}" font-size="{size:.4g}"{more}>{content}</text>'


def ends_at(pieces, begin, size):
    return max(piece[begin] + piece[size] for piece in pieces)


def place_on_roll(piece):
    return piece["y"], piece["x"], piece["length"], piece["width"]


def rectangle(what, x, y, width, height, more):
    kind = f'class="{what}" ' if what else ""
    return f'<rect {kind}x="{x}" y="{y}" width="{width}" height="{height}" {more}/>'


class Drawing:
    """One order: the roll from left to right, behind it the rooms of several pieces as they are laid."""

    def __init__(self, carpet):
        self.request = carpet["request"]
        self.row = carpet["candidates"][carpet["best"]]
        self.pieces = carpet["pieces"]
        self.rooms = self.rooms_of_pieces()
        long = self.row["length"] + sum(GAP + ends_at(room, "roomY", "length") for room in self.rooms)
        self.inch = max(long / (WIDTH - 2 * MARGIN), 0.6)  # inches in a pixel
        self.long = long
        self.edge = (self.row["rollWidth"] - self.row["usableWidth"]) // 2
        self.lines = []

    def rooms_of_pieces(self):
        if self.row["length"] > LONG_ROLL:
            return []
        numbers = sorted({piece["room"] for piece in self.pieces})
        rooms = [[piece for piece in self.pieces if piece["room"] == number] for number in numbers]
        return [room for room in rooms if len(room) > 1]

    def add(self, line):
        self.lines.append(line)

    def labels(self, piece, x, y):
        size = 11 * self.inch
        halo = f' paint-order="stroke" stroke="{tint(piece)}" stroke-width="{0.4 * size:.3g}"'
        middle = ' text-anchor="middle"' + halo
        x += piece["length"] / 2
        y += piece["width"] / 2
        sizes = f'{feet(piece["width"])} X {feet(piece["length"])}'
        if piece["width"] > 2.6 * size and piece["length"] > 0.55 * size * len(sizes):
            self.add(text(x, y - 0.1 * size, size, piece["label"], middle + ' font-weight="bold"'))
            self.add(text(x, y + 1.1 * size, size, sizes, middle))
        else:
            self.add(text(x, y + 0.35 * size, size, piece["label"], middle + ' font-weight="bold"'))

    def ruler(self, top):
        size = 10 * self.inch
        last = self.row["lengthNeeded"]
        step = 24 if self.row["length"] < 400 else 120
        marks = [mark for mark in range(0, last, step) if last - mark > 4 * size]
        for mark in marks + [last]:
            self.add(f'<path d="M{mark} {top:.4g}v{-4 * self.inch:.4g}" stroke="#000"/>')
            self.add(text(mark, top - 6 * self.inch, size, feet(mark), ' text-anchor="middle"'))

    def marks(self):
        """The pattern of the roll, as dots in the middle of its repeats."""
        across, along = self.request["patternAcross"], self.request["patternAlong"]
        half = self.request["halfDrop"]
        if not across or not along:
            return
        dots = [(along / 2, across / 2)]
        dots += [(0, 1.5 * across), (along, 1.5 * across)] if half else []
        circles = "".join(f'<circle cx="{x:g}" cy="{y:g}" r="{2.2 * self.inch:.3g}"/>' for x, y in dots)
        self.add(
            f'<defs><pattern id="marks" patternUnits="userSpaceOnUse" width="{along}" '
            f'height="{2 * across if half else across}" fill="#777">{circles}</pattern></defs>'
        )

    def roll(self):
        whole = (0, -self.edge, self.row["length"], self.row["rollWidth"])
        self.add(rectangle("", *whole, 'fill="#f4f4f4"'))
        for piece in self.pieces:
            self.add(rectangle("cut", *place_on_roll(piece), f'fill="{tint(piece)}" stroke="#000"'))
        self.pattern_over(rectangle("", *whole, 'fill="url(#marks)"'))
        self.add(rectangle("", *whole, BARE))
        if self.edge > 0:
            usable = (0, 0, self.row["length"], self.row["usableWidth"])
            self.add(rectangle("", *usable, f'{BARE} stroke-dasharray="3 3"'))
        for piece in self.pieces:
            self.labels(piece, piece["y"], piece["x"])
        self.ruler(-self.edge)

    def pattern_over(self, line):
        if self.request["patternAcross"] and self.request["patternAlong"]:
            self.add(line)

    def room(self, pieces, left):
        """The pieces of one room as they are laid, each with its part of the roll's pattern."""
        for piece in pieces:
            right = left + piece["roomY"] - piece["y"]
            down = piece["roomX"] - piece["x"]
            self.add(f'<g transform="translate({right} {down})">')
            self.add(rectangle("", *place_on_roll(piece), f'fill="{tint(piece)}" stroke="#000"'))
            self.pattern_over(rectangle("", *place_on_roll(piece), 'fill="url(#marks)"'))
            self.labels(piece, piece["y"], piece["x"])
            self.add("</g>")
        name = " ".join(filter(None, (pieces[0]["roomNumber"], pieces[0]["remark"])))
        self.add(text(left, -6 * self.inch, 10 * self.inch, f"{name}, as it is laid"))

    def svg(self):
        self.marks()
        self.roll()
        left = self.row["length"]
        for pieces in self.rooms:
            self.room(pieces, left + GAP)
            left += GAP + ends_at(pieces, "roomY", "length")
        bottoms = [ends_at(pieces, "roomX", "width") for pieces in self.rooms]
        bottom = max(bottoms + [self.row["rollWidth"] - self.edge])
        margin = MARGIN * self.inch
        top = self.edge + margin
        width = self.long + 2 * margin
        height = top + bottom + margin / 2
        return "\n".join(
            [
                f'<svg xmlns="http://www.w3.org/2000/svg" width="{width / self.inch:.0f}" '
                f'height="{height / self.inch:.0f}" '
                f'viewBox="{-margin:.5g} {-top:.5g} {width:.6g} {height:.6g}" '
                f'font-family="Arial, Liberation Sans, Helvetica, sans-serif" '
                f'stroke-width="{self.inch:.3g}">',
                f'<rect x="{-margin:.5g}" y="{-top:.5g}" width="100%" height="100%" fill="#fff"/>',
                *self.lines,
                "</svg>\n",
            ]
        )


def main(programs):
    with open(os.path.join(DOCS, "order.md"), encoding="utf-8") as file:
        blocks = BLOCK.findall(file.read())
    for command, picture in blocks:
        program, *options = command.split()
        run = [os.path.join(os.path.abspath(programs), program), *options, "--json", "-"]
        order = json.loads(subprocess.run(run, cwd=ROOT, check=True, stdout=subprocess.PIPE).stdout)
        with open(os.path.join(DOCS, "images", picture), "w", encoding="utf-8") as file:
            file.write(Drawing(order["carpets"][0]).svg())
        print(picture)
    if not blocks:
        sys.exit("order.md has no drawing")


if __name__ == "__main__":
    main(sys.argv[1])
