"""What a PDF document says, as other programs read it."""

import re
import subprocess
import tempfile
from html import unescape

ADVANCE = 7.2  # points: 12 point type of fixed pitch
WORD = re.compile(r'<word xMin="(.*?)" yMin="(.*?)" xMax="(.*?)" yMax="(.*?)">(.*?)</word>')


class Pdf:
    """A document."""

    def __init__(self, content):
        self.content = content

    @classmethod
    def of_file(cls, path):
        with open(path, "rb") as file:
            return cls(file.read())

    def _run(self, program, *arguments):
        with tempfile.NamedTemporaryFile(suffix=".pdf") as file:
            file.write(self.content)
            file.flush()
            done = subprocess.run(
                [program, *arguments, file.name] + (["-"] if program == "pdftotext" else []),
                check=True,
                capture_output=True,
                text=True,
            )
        return done.stdout

    def page_size(self):
        """Width and height of its pages in points, as they are shown."""
        information = self._run("pdfinfo")
        size = re.search(r"^Page size: +([\d.]+) x ([\d.]+)", information, re.MULTILINE)
        width, height = (round(float(length)) for length in size.groups())
        turned = int(re.search(r"^Page rot: +(\d+)", information, re.MULTILINE)[1]) % 180 != 0
        return (height, width) if turned else (width, height)

    def lines(self):
        """The lines of a drawn page in the order in which they were drawn; words are parted by one
        blank."""
        return self._run("pdftotext", "-raw").replace("\f", "").splitlines()

    def typed_pages(self):
        """The lines of each page in a face of fixed pitch, blanks kept, the first line that is not
        empty first."""
        boxes = self._run("pdftotext", "-bbox")
        return [typed_lines(page) for page in boxes.split("<page ")[1:]]


def typed_lines(boxes):
    words = [
        (float(top), float(left), unescape(text))
        for left, top, _, _, text in WORD.findall(boxes)
    ]
    first_column = min(left for _, left, _ in words)
    tops = sorted({top for top, _, _ in words})
    # Lines are equally far from each other; empty ones have no words.
    pitch = min(below - above for above, below in zip(tops, tops[1:]))
    lines = []
    for top, left, text in sorted(words):
        number = round((top - tops[0]) / pitch)
        lines += [""] * (number + 1 - len(lines))
        column = round((left - first_column) / ADVANCE)
        if len(lines[number]) > column:
            raise AssertionError(f"{text!r} overlaps {lines[number]!r}")
        lines[number] = lines[number].ljust(column) + text
    return lines
