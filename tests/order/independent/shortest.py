"""The shortest roll for a handful of pieces, by trying everything: places in whole units, divisions
and, with a pattern, where each room begins in it. What it finds can be cut, whether or not its
patience sufficed for everything."""

import itertools
from dataclasses import dataclass

MOST_PIECES = 4


@dataclass
class Piece:
    strip: object
    room_y: int
    length: int


def divisions(strip, most, shortest):
    """The ways to divide a strip into at most so many parts, as the parts' lengths."""
    yield (strip.length,)
    for parts in range(2, most + 1):
        yield from divided(strip.length, parts, shortest)


def divided(length, parts, shortest):
    if parts == 1:
        if length >= shortest:
            yield (length,)
        return
    for first in range(shortest, length - shortest * (parts - 1) + 1):
        for rest in divided(length - first, parts - 1, shortest):
            yield (first,) + rest


def raised(value, residue, period):
    return value + (residue - value) % period


class Shortest:
    def __init__(self, row, dice, patience):
        self.row, self.job, self.dice, self.patience = row, row.job, dice, patience
        self.best = None
        self.rooms = {}

    def find(self):
        """The shortest length found, or None where there are too many pieces."""
        strips = list(self.row.strips.values())
        if not strips or len(strips) > MOST_PIECES:
            return None
        for chosen in self.some_divisions(strips):
            if self.patience <= 0:
                break
            pieces = []
            for strip, lengths in zip(strips, chosen):
                begin = 0
                for length in lengths:
                    pieces.append(Piece(strip, begin, length))
                    begin += length
            self.place(pieces)
        return self.best

    def some_divisions(self, strips):
        """Undivided first; then, by turns, the most even of the rest and any of it."""
        spare = MOST_PIECES - len(strips)
        ways = [list(itertools.islice(
            divisions(strip, min(self.row.most_parts(strip), spare + 1), self.job.min_part), 3000))
            for strip in strips]
        every = [chosen for chosen in itertools.islice(itertools.product(*ways), 20000)
                 if sum(map(len, chosen)) <= MOST_PIECES]
        even = sorted(every[1:], key=lambda chosen: max(map(max, chosen)))
        rest = list(even)
        self.dice.shuffle(rest)
        return every[:1] + [chosen for both in zip(even, rest) for chosen in both]

    def place(self, pieces):
        self.pieces = pieces
        self.rooms = {}
        for number, piece in enumerate(pieces):
            self.rooms.setdefault(piece.strip.room, []).append(number)
        self.rooms = {room: numbers for room, numbers in self.rooms.items() if len(numbers) > 1}
        across = self.job.across
        beginnings = [range(across) if across else range(1) for _ in self.rooms]
        for residues in itertools.product(*beginnings):
            if self.patience <= 0:
                return
            self.place_across(dict(zip(self.rooms, residues)))

    def place_across(self, residues):
        """With the rooms' residues of their shifts across: every place across worth a try."""
        across = self.job.across
        candidates = []
        for number, piece in enumerate(self.pieces):
            candidates.append(sorted(self.places_across(number, residues)))
            if not candidates[-1]:
                return
        for xs in itertools.product(*candidates):
            if self.patience <= 0:
                return
            counts = [self.repeats_from_first(number, xs) if across else piece.strip.index
                      for number, piece in enumerate(self.pieces)]
            self.place_along(xs, counts)

    def residue_across(self, number, residues):
        """The residue and period that a piece's place across has to keep."""
        strip = self.pieces[number].strip
        if not self.job.across or strip.room not in residues:
            return 0, 1
        return strip.room_x - residues[strip.room], self.job.across

    def places_across(self, number, residues):
        """At the edge, and beside every row of other pieces."""
        room_left = self.row.usable - self.pieces[number].strip.width
        others = [other for other in range(len(self.pieces)) if other != number]
        found = set()
        for count in range(len(others) + 1):
            for chain in itertools.permutations(others, count):
                for x in self.ends_of(chain, residues):
                    found |= {x for x in self.next_places(number, x, residues) if x <= room_left}
        return found

    def ends_of(self, chain, residues):
        ends = {0}
        for number in chain:
            width = self.pieces[number].strip.width
            ends = {x + width for end in ends for x in self.next_places(number, end, residues)
                    if x + width <= self.row.usable}
        return ends

    def next_places(self, number, x, residues):
        residue, period = self.residue_across(number, residues)
        x = raised(x, residue, period)
        # With a half drop the next column shows the pattern at another place along.
        return (x, x + period) if self.job.half_drop and period > 1 else (x,)

    def repeats_from_first(self, number, xs):
        strip = self.pieces[number].strip
        if strip.room not in self.rooms:
            return 0
        first = self.rooms[strip.room][0]
        shift = strip.room_x - xs[number]
        return (shift - (self.pieces[first].strip.room_x - xs[first])) // self.job.across

    def place_along(self, xs, counts):
        along = self.job.along
        beginnings = [range(along) if along else range(1) for _ in self.rooms]
        for phases in itertools.product(*beginnings):
            if self.patience <= 0:
                return
            phase = dict(zip(self.rooms, phases))
            residues = []
            for number, piece in enumerate(self.pieces):
                if not along or piece.strip.room not in phase:
                    residues.append((0, 1))
                    continue
                half = along // 2 if self.job.half_drop and counts[number] % 2 else 0
                residues.append((piece.room_y - half - phase[piece.strip.room], along))
            self.stack(xs, residues)

    def stack(self, xs, residues):
        """Every order of laying the pieces down, each as near the beginning as it can be."""
        widths = [piece.strip.width for piece in self.pieces]
        for order in itertools.permutations(range(len(self.pieces))):
            self.patience -= 1
            ends = []
            for number in order:
                y = 0
                for other, end in ends:
                    if end > y and (xs[number] < xs[other] + widths[other]
                                    and xs[other] < xs[number] + widths[number]):
                        y = end
                y = raised(y, *residues[number])
                ends.append((number, y + self.pieces[number].length))
            length = max(end for _, end in ends)
            if self.best is None or length < self.best:
                self.best = length


def shortest(row, dice, patience=3000):
    return Shortest(row, dice, patience).find()
