"""Lengths as they are written for the program, and what they are worth, exactly."""

from fractions import Fraction

CENTIMETRES_PER_INCH = Fraction(254, 100)


def floor(value):
    return value.numerator // value.denominator if isinstance(value, Fraction) else value


def ceiling(value):
    return -floor(-value)


def decimal(value):
    """A Fraction whose denominator divides a power of ten, as decimal text."""
    digits = 0
    while (value * 10**digits).denominator != 1:
        digits += 1
    scaled = int(value * 10**digits)
    if digits == 0:
        return str(scaled)
    text = str(scaled).rjust(digits + 1, "0")
    return f"{text[:-digits]}.{text[-digits:]}"


def in_units(number, unit, metric):
    """So many of a unit ("", "in", "ft", "cm", "m") in the project's units."""
    number = Fraction(number)
    inches = {"in": 1, "ft": 12, "cm": 1 / CENTIMETRES_PER_INCH, "m": 100 / CENTIMETRES_PER_INCH}
    if unit == "":
        return number
    value = number * inches[unit]
    return value * CENTIMETRES_PER_INCH if metric else value


def write_length(whole, metric, dice, bare=0.6):
    """One of the ways to write a length of about so many whole units: its text and its value in the
    project's units."""
    if dice.random() < bare:
        return str(whole), Fraction(whole)
    own, other = ("cm", "in") if metric else ("in", "cm")
    way = dice.randrange(6)
    if way == 0:
        return f"{whole}{own}", Fraction(whole)
    if way == 1:
        inches = max(1, round(whole / 2.54)) if metric else whole
        feet, rest = divmod(inches, 12)
        text = (f"{feet}ft" if feet else "") + (f"{rest}in" if rest or not feet else "")
        return text, in_units(inches, "in", metric)
    if way == 2:
        number = Fraction(max(1, round(whole / 2.54) if metric else round(whole * 2.54)))
        return f"{decimal(number)}{other}", in_units(number, other, metric)
    if way == 3:
        number = Fraction(max(1, whole if metric else round(whole * 2.54)), 100)
        return f"{decimal(number)}m", in_units(number, "m", metric)
    if way == 4:
        # Exactly whole in the project's units, though written in the others.
        if metric:
            whole -= whole % 127 if whole >= 127 else 0
            return ((f"{decimal(whole / CENTIMETRES_PER_INCH)}in" if whole % 127 == 0
                     else f"{whole}cm"), Fraction(whole))
        return f"{decimal(whole * CENTIMETRES_PER_INCH)}cm", Fraction(whole)
    number = Fraction(whole * 10 + dice.randrange(-4, 5), 10)
    if number <= 0:
        number = Fraction(whole)
    return f"{decimal(number)}{own}", number
