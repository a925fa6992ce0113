"""Random projects, and random options for their orders."""

import csv
import io
import re
from dataclasses import dataclass, field, replace
from fractions import Fraction

from lengths import ceiling, floor, in_units, write_length

LONGEST = 32767


@dataclass
class Room:
    width: int
    length: int
    covering: str
    number: str = ""
    remark: str = ""

    def carpet(self):
        return int(self.covering[-1]) if self.covering[0] == "C" else 0


@dataclass
class Roll:
    text: str  # the width as typed
    width: int  # in whole units
    exact: Fraction
    name: str = ""
    price: str = ""

    def argument(self):
        return (f"{self.name}:" if self.name else "") + self.text + (
            f"={self.price}" if self.price else "")


@dataclass
class Job:
    """What is asked for, as whole units; `arguments` says the same to the program."""
    rooms: list
    rolls: list
    metric: bool = False
    lay: str = "down"
    selvage: int = 0
    trim_along: int = 0
    trim_across: int = 0
    max_parts: int = 1
    min_part: int = 0
    join: bool = False
    across: int = 0
    along: int = 0
    half_drop: bool = False
    drift: Fraction = Fraction(0)
    step: int = 0
    carpet: int = 0
    steps: int = 1
    arguments: list = field(default_factory=list)
    # Lengths that are known to do for the first row, by carpet.
    known: dict = field(default_factory=dict)

    def carpets(self):
        """The carpets that the document tells of."""
        found = {room.carpet() for room in self.rooms if room.carpet() and room.width * room.length}
        return sorted(found & {self.carpet} if self.carpet else found)

    def rows(self):
        lays = ["down", "cross"] if self.lay == "both" else [self.lay]
        return [(roll, lay) for roll in self.rolls for lay in lays]


def rooms_text(job):
    out = io.StringIO()
    writer = csv.writer(out)
    writer.writerow(["width", "length", "covering", "room", "remark"])
    for room in job.rooms:
        writer.writerow([room.width, room.length, room.covering, room.number, room.remark])
    return out.getvalue()


NAMES = ["", "", "", "A", "Berber 40", "x, y", '"q"', "=1+1", "-5", "Größe", "a'b"]
REMARKS = ["", "", "Hall", "Bed, north", 'the "blue" one', "=SUM(A1)", "-2 steps", "+1", "@home",
           "Küche", "x" * 60]
NUMBERS = ["", "1", "101", "A-1", "=2", "B 2"]


def random_roll(job, dice, tiny):
    if tiny:
        whole = dice.randint(3, 30)
    elif dice.random() < 0.6:
        whole = dice.choice([366, 400, 411, 457, 200, 91] if job.metric
                            else [144, 180, 162, 150, 108, 36, 27])
    else:
        whole = dice.randint(20, 500)
    text, exact = write_length(whole, job.metric, dice)
    if dice.random() < 0.1 and not tiny:
        text = dice.choice(["12ft", "13.5ft", "12ft6in", "150in", "366cm", "3.66m", "15ft"])
        number, unit = {"12ft6in": ("150", "in")}.get(text) or re.fullmatch(r"([\d.]+)(\w+)",
                                                                           text).groups()
        exact = in_units(number, unit, job.metric)
    return Roll(text, floor(exact), exact)


def add_length(job, dice, option, whole, bare=0.6):
    """Ask for such a length, and give what it is raised to."""
    text, exact = write_length(whole, job.metric, dice, bare)
    job.arguments += [option, text]
    return ceiling(exact)


def random_options(job, dice, tiny):
    def sometimes(chance):
        return dice.random() < chance

    units = 2.54 if job.metric else 1
    job.min_part = 91 if job.metric else 36
    job.step = 5 if job.metric else 3
    if sometimes(0.25):
        most = 1 if tiny else int(5 * units)
        job.selvage = add_length(job, dice, "--selvage", dice.randint(1, most))
    if sometimes(0.85):
        job.lay = dice.choice(["down", "cross", "both", "both"])
        job.arguments += ["--lay", job.lay]
    if sometimes(0.5):
        job.trim_along = add_length(job, dice, "--trim",
                                    dice.randint(1, 3 if tiny else int(22 * units)))
    if sometimes(0.5):
        most = 3 if tiny else dice.choice([2, int(22 * units)])
        job.trim_across = add_length(job, dice, "--trim-across", dice.randint(1, most))
    if sometimes(0.65):
        job.max_parts = dice.randint(1, 6)
        job.arguments += ["--max-parts", str(job.max_parts)]
    if sometimes(0.4) or (tiny and sometimes(0.8)):
        job.min_part = add_length(job, dice, "--min-part", dice.randint(1, 8 if tiny else 100))
    if sometimes(0.55):
        job.join = True
        job.arguments.append("--join-rooms")
    if sometimes(0.3):
        job.step = add_length(job, dice, "--step", dice.randint(1, int(40 * units)))
    if sometimes(0.5):
        random_pattern(job, dice, tiny)
    if sometimes(0.3):
        text = dice.choice(["0", "1", "10", "2.5", "0.3", "7", "3.3", "5"])
        job.drift = Fraction(text)
        job.arguments += ["--pattern-drift", text]


def random_pattern(job, dice, tiny):
    usable = max(1, job.rolls[0].width - 2 * job.selvage)
    divisors = [n for n in range(1, usable + 1) if usable % n == 0]
    most = 8 if tiny else 60
    job.across = dice.choice([0, dice.choice(divisors), dice.choice(divisors),
                              dice.randint(1, most)])
    job.along = dice.choice([0, dice.randint(1, most), 2 * dice.randint(1, most // 2),
                             2 * dice.randint(1, most // 2)])
    if job.across == 0 and job.along == 0:
        job.along = 2
    unit = dice.choice(["", "", "cm" if job.metric else "in"])
    job.arguments += ["--pattern", f"{job.across}{unit}x{job.along}{unit}"]
    if job.along and job.along % 2 == 0 and dice.random() < 0.5:
        job.half_drop = True
        job.arguments.append("--half-drop")
    job.drift = Fraction(1 if job.along else 0)


def random_size(job, dice, tiny):
    roll = dice.choice(job.rolls)
    usable = max(1, roll.width - 2 * job.selvage)
    way = dice.randrange(12)
    if way < 4:
        size = usable * dice.randint(1, 3) + dice.choice([0, 0, 1, -1, job.trim_across,
                                                          -job.trim_across])
    elif way == 4:
        size = roll.width + dice.choice([-1, 0, 1])
    elif way == 5:
        size = dice.choice([0, 1, 2, 3])
    elif way == 6:
        size = usable // 2 + dice.choice([0, 1])
    elif way == 7 and not tiny and dice.random() < 0.05:
        size = LONGEST - dice.choice([0, 1, job.trim_along, max(0, job.trim_along - 1)])
    else:
        size = dice.randint(1, 3 * usable)
    return min(max(size, 0), LONGEST)


def random_rooms(job, dice, tiny):
    carpets = [dice.randint(1, 8) for _ in range(dice.choice([1, 1, 2, 3]))]
    for _ in range(dice.randint(1, 4 if tiny else 12)):
        covering = f"C{dice.choice(carpets)}" if dice.random() < 0.85 else f"T{dice.randint(1, 3)}"
        width, length = random_size(job, dice, tiny), random_size(job, dice, tiny)
        if min(width, length) > 3000:
            length = 100
        if max(width, length) > 3000 and min(roll.width for roll in job.rolls) < 100:
            width, length = min(width, 300), min(length, 300)
        job.rooms.append(Room(width, length, covering, dice.choice(NUMBERS), dice.choice(REMARKS)))


def finish(job, dice):
    """The arguments that hold for every kind of project."""
    for roll in job.rolls:
        roll.name = dice.choice(NAMES)
        if dice.random() < (0.9 if len(job.rolls) == 1 or dice.random() < 0.5 else 0.4):
            roll.price = dice.choice(["0", "18.50", "1.235", "19", "7.005", "12.34", "0.01", "250"])
        job.arguments += ["--roll", roll.argument()]
    job.steps = dice.choice([1, 5, 30, 60])
    job.arguments += ["--steps", str(job.steps)]
    if dice.random() < 0.5:
        job.arguments += ["--seed", str(dice.randint(1, 1000))]
    if job.metric:
        job.arguments.append("--metric")
    elif dice.random() < 0.3:
        job.arguments.append("--feet")


def random_job(dice, tiny):
    job = Job([], [], metric=dice.random() < 0.35)
    job.rolls = [random_roll(job, dice, tiny) for _ in range(dice.choice([1, 1, 2, 3]))]
    job.rolls = [roll for roll in job.rolls if roll.width >= 1]
    random_options(job, dice, tiny)
    random_rooms(job, dice, tiny)
    if job.carpets() and dice.random() < 0.15:
        job.carpet = dice.choice(job.carpets())
        job.arguments += ["--carpet", str(job.carpet)]
    finish(job, dice)
    return job


def cut_up(width, length, pieces, dice):
    """A rectangle, cut from edge to edge again and again: x, y, width and length of each."""
    rectangles = [(0, 0, width, length)]
    while len(rectangles) < pieces:
        rectangles.sort(key=lambda rectangle: rectangle[2] * rectangle[3])
        x, y, across, along = rectangles.pop()
        if across > 1 and (along < 2 or dice.random() < across / (across + along)):
            at = dice.randint(1, across - 1)
            rectangles += [(x, y, at, along), (x + at, y, across - at, along)]
        elif along > 1:
            at = dice.randint(1, along - 1)
            rectangles += [(x, y, across, at), (x, y + at, across, along - at)]
        else:
            return rectangles + [(x, y, across, along)]
    return rectangles


def known_options(job, dice):
    """Some for which a way to cut what comes of one rectangle is known."""
    if dice.random() < 0.3:
        job.max_parts = dice.randint(2, 4)
        job.arguments += ["--max-parts", str(job.max_parts)]
    if dice.random() < 0.3:
        job.trim_along, job.trim_across = dice.randint(0, 4), dice.randint(0, 4)
        job.arguments += ["--trim", str(job.trim_along), "--trim-across", str(job.trim_across)]
    if dice.random() < 0.3:
        job.selvage = 1
        job.arguments += ["--selvage", "1"]
    if dice.random() < 0.5:
        usable = job.rolls[0].width - 2 * job.selvage
        divisors = [n for n in range(2, usable + 1) if usable % n == 0]
        job.across = dice.choice([0] + divisors)
        job.along = dice.choice([0, 6, 7, 24]) or (0 if job.across else 24)
        job.half_drop = job.along % 2 == 0 < job.along and dice.random() < 0.5
        job.drift = Fraction(1 if job.along else 0)
        job.arguments += ["--pattern", f"{job.across}x{job.along}"]
        job.arguments += ["--half-drop"] if job.half_drop else []


def drops_beside(job, place, drops, end):
    """Where the drops end that match a fill and lie one after the other from `end`."""
    x, y, _, along = place
    usable = job.rolls[0].width - 2 * job.selvage
    for drop in range(drops):
        columns = drop - drops
        if job.across:
            columns = (columns * usable + x) // job.across
        if job.along:
            half = job.along // 2 if job.half_drop and columns % 2 else 0
            end += (y - half - end) % job.along
        end += along
    return end


def known_job(dice):
    """Rooms whose fills come from one rectangle, so that a length that does is known."""
    job = Job([], [], metric=dice.random() < 0.3, lay="down")
    whole = dice.choice([144, 180, 60, 26])
    job.rolls = [Roll(str(whole), whole, Fraction(whole))]
    job.min_part = 91 if job.metric else 36
    job.step = 5 if job.metric else 3
    known_options(job, dice)
    usable = whole - 2 * job.selvage
    known = length = dice.randint(10, 400)
    for place in cut_up(usable, length, dice.randint(2, 12), dice):
        width, along = place[2] - job.trim_across, place[3] - job.trim_along
        if width < 1 or along < 1:
            continue
        # A fill has to begin where a column of the pattern does.
        may = place[2] < usable and (not job.across or place[0] % job.across == 0)
        drops = dice.choice([0, 0, 1, 2]) if may else 0
        job.rooms.append(Room(drops * usable + width, along, "C1", dice.choice(NUMBERS),
                              dice.choice(REMARKS)))
        known = drops_beside(job, place, drops, known)
    job.known = {1: known} if job.rooms else {}
    finish(job, dice)
    return job


def long_job(dice):
    """Rooms about as long as a strip may be; together they are far longer."""
    job = Job([], [], metric=dice.random() < 0.3)
    widths = dice.sample([366, 400, 150, 144], 2)
    job.rolls = [Roll(str(width), width, Fraction(width)) for width in widths]
    random_options(job, dice, tiny=False)
    for _ in range(dice.randint(1, 6)):
        less = dice.choice([0, 1, job.trim_along, job.trim_along + 1, 9000])
        job.rooms.append(Room(random_size(job, dice, tiny=False) % 1500, LONGEST - less, "C4",
                              dice.choice(NUMBERS), dice.choice(REMARKS)))
    finish(job, dice)
    return job


def without(arguments, *options):
    """The arguments without some options and their values."""
    kept = list(arguments)
    for option in options:
        while option in kept:
            at = kept.index(option)
            del kept[at:at + (1 if option in ("--half-drop", "--join-rooms") else 2)]
    return kept


def one_row(job, number):
    """The same project with one of its rows alone."""
    roll, lay = job.rows()[number]
    arguments = without(job.arguments, "--roll", "--lay") + ["--roll", roll.argument(),
                                                             "--lay", lay]
    return replace(job, rolls=[roll], lay=lay, arguments=arguments, known={})


def with_less_asked(job, dice):
    """A project for which whatever does for this one does, too."""
    way = dice.randrange(5)
    if way == 0:
        # One room less, which keeps its place.
        rooms = list(job.rooms)
        at = dice.randrange(len(rooms))
        rooms[at] = replace(rooms[at], covering="T1")
        return replace(job, rooms=rooms, known={})
    if way == 1 and not job.join:
        return replace(job, join=True, known={}, arguments=job.arguments + ["--join-rooms"])
    if way == 2 and job.max_parts < 6:
        return replace(job, max_parts=6, known={}, arguments=without(
            job.arguments, "--max-parts") + ["--max-parts", "6"])
    if way == 3 and job.min_part > 1:
        least = dice.choice([1, job.min_part // 2, job.min_part - 1]) or 1
        return replace(job, min_part=least, known={}, arguments=without(
            job.arguments, "--min-part") + ["--min-part", str(least)])
    arguments = without(job.arguments, "--pattern", "--half-drop", "--pattern-drift")
    return replace(job, across=0, along=0, half_drop=False, drift=Fraction(0), known={},
                   arguments=arguments)


def wrong_options(job, dice):
    """Options that have to be refused."""
    units = "cm" if job.metric else "in"
    wrong = [["--half-drop", "--pattern", "18x25"], ["--half-drop", "--pattern", "18x0"],
             ["--pattern", "18.5x24"], ["--pattern", "18x24.25"], ["--pattern-drift", "10.5"],
             ["--pattern-drift", "-1"], ["--max-parts", "7"], ["--max-parts", "0"],
             ["--lay", "up"], ["--carpet", "9"], ["--selvage", "16cm"], ["--selvage", "-1"],
             ["--trim", "61cm"], ["--trim-across", "25in"], ["--roll", "12ft=-1"],
             ["--roll", "12ft=nan"], ["--roll", "12ft=inf"], ["--roll", f"0{units}"],
             ["--roll", "12xy"], ["--feet", "--metric"], ["--steps", "0"]]
    return dice.choice(wrong)
