"""What the rules of an order make of a project: strips, refusals, figures. Written from the rules
alone, and without the program's own code."""

from dataclasses import dataclass
from fractions import Fraction

from lengths import ceiling
from projects import LONGEST


@dataclass
class Strip:
    room: int  # its place in the project, from 1
    index: int
    strips: int
    room_x: int
    width: int  # with trim
    bare: int  # without
    length: int  # with trim
    divisible: bool


class Row:
    """A roll and a lay, and what has to be cut."""

    def __init__(self, job, carpet, roll, lay):
        self.job, self.roll, self.lay = job, roll, lay
        self.usable = roll.width - 2 * job.selvage
        self.rooms = {}  # its place: width and length as laid
        for place, room in enumerate(job.rooms, 1):
            if room.carpet() == carpet and room.width * room.length:
                self.rooms[place] = ((room.width, room.length) if lay == "down"
                                     else (room.length, room.width))
        self.strips = {}  # (place, index): Strip
        if self.usable > 0:
            for place in self.rooms:
                self.cut(place)

    def cut(self, place):
        job, usable = self.job, self.usable
        width, length = self.rooms[place]
        drops, rest = divmod(width, usable) if width > usable else (0, width)
        count = drops + (1 if rest else 0)
        for index in range(count):
            bare = usable if index < drops else rest
            with_trim = usable if index < drops else min(rest + job.trim_across, usable)
            may = index >= drops and with_trim < usable and (drops > 0 or job.join)
            self.strips[place, index] = Strip(place, index, count, index * usable, with_trim, bare,
                                              length + job.trim_along, may)

    def room_strips(self, place):
        return [strip for (room, _), strip in self.strips.items() if room == place]

    def at_fault(self):
        """The rooms for which the row has to be refused."""
        found = set()
        for place in self.rooms:
            strips = self.room_strips(place)
            if any(strip.length > LONGEST for strip in strips) or not self.can_match(strips):
                found.add(place)
        return found

    def can_match(self, strips):
        across = self.job.across
        if not across or len(strips) == 1:
            return True
        drops = [strip for strip in strips if strip.bare == self.usable]
        for strip in strips:
            # A drop lies at the usable edge; the others have what is left of the width.
            places = range(self.usable - strip.width + 1)
            if not any((strip.room_x - x - drops[0].room_x) % across == 0 for x in places):
                return False
        return True

    def refused(self):
        return self.usable <= 0 or bool(self.at_fault())

    def ordered(self, needed):
        raised = Fraction(needed) * (1 + self.job.drift / 100)
        return ceiling(raised / self.job.step) * self.job.step

    def unit_area(self, square_units):
        return Fraction(square_units) / (10000 if self.job.metric else 144)

    def price(self, length):
        """Before it is rounded, or None."""
        if not self.roll.price:
            return None
        area = self.unit_area(self.roll.width * length)
        return Fraction(self.roll.price) * (area if self.job.metric else area / 9)

    def area_rooms(self):
        return sum(width * length for width, length in self.rooms.values())

    def area_strips(self):
        return sum(strip.width * strip.length for strip in self.strips.values())

    def side_seams(self):
        count = length = 0
        for place, (_, room_length) in self.rooms.items():
            seams = len(self.room_strips(place)) - 1
            count += seams
            length += seams * room_length
        return count, length

    def most_parts(self, strip):
        """How many parts a strip can have at most."""
        if not strip.divisible:
            return 1
        return max(1, min(self.job.max_parts, strip.length // self.job.min_part))

    def least(self):
        """No order can be shorter than this."""
        by_area = ceiling(Fraction(self.area_strips(), self.usable))
        by_strip = max(ceiling(Fraction(strip.length, self.most_parts(strip)))
                       for strip in self.strips.values())
        return max(by_area, by_strip)

    def with_less_trim(self):
        """The rooms whose last strip has less trim across than asked for."""
        job = self.job
        return {place for place in self.rooms
                for strip in self.room_strips(place)[-1:]
                if strip.width - strip.bare < job.trim_across}

    def narrow_fills(self):
        """The rooms that must be told of for a narrow fill, and those that may be: whether its
        trim counts is not settled, nor what is to be said of drops as narrow as that."""
        narrow = 15 if self.job.metric else 6
        must, may = set(), set()
        for strip in self.strips.values():
            if strip.index > 0 and strip.bare < narrow:
                may.add(strip.room)
                if strip.bare < self.usable and strip.width < narrow:
                    must.add(strip.room)
        return must, may
